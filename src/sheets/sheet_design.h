#pragma once

#include <QString>
#include <array>

#include "platform/controls.h"
#include "platform/form_name.h"
#include "platform/random.h"
#include "sheets/rules/worksheet.h"
#include "shell/rules/premenne.h"

// What makes one exercise sheet differ from another: data for the one engine.
namespace ratanka::sheets {

// A part of a row's example in a label of its own.
struct RowLabel {
  int number = 0;  // of the label: 5 for Label5; 0 where the row has no such label
  int left = 0;    // twips
  int width = 0;
};

// Where the controls of one row stand, in twips.
struct RowDesign {
  RowLabel first;
  RowLabel sign;
  RowLabel second;
  int equalsLeft = 3480;
  int boxLeft = 4560;
  int boxWidth = 585;
  int tickLeft = 5280;
  int crossLeft = 5160;
};
using RowDesigns = std::array<RowDesign, kRows>;

// The rows of a plain sheet: operand, operator, operand, equals sign, box.
RowDesigns plainRows();

struct MarkColours {
  std::array<Rgb, 5> back;  // of the marks 1 to 5
};
inline constexpr MarkColours kColoursA{
    {{{0, 255, 0}, {0, 0, 255}, {255, 255, 128}, {255, 128, 255}, {255, 0, 0}}}};
inline constexpr MarkColours kColoursB{
    {{{0, 255, 0}, {0, 255, 0}, {0, 255, 255}, {255, 0, 0}, {255, 0, 0}}}};

struct RewardDesign {
  FormName game;
  QString tooltip;
  QString icon;
  int left = 4800;
  int top = 6720;
  Rgb back{224, 224, 224};
};

struct SheetDesign {
  FormName name;
  Examples (*ShowStart)(Random& random) = nullptr;
  // The next set where it isn't a fresh ShowStart; no examples: the old ones are asked again.
  std::optional<Examples> (*nextSet)(Premenné& premenné) = nullptr;
  Worksheet::Percentage percentage = Worksheet::Percentage::exact;
  double Premenné::*percento = nullptr;

  RowDesigns rows;
  double signPoints = 13.5;
  // Names of the reward button, of " Nové príklady " and of " Návrat do MENU ".
  std::array<QString, 3> buttons{"Command1", "Command2", "Command3"};
  QString bookTimer = "Timer3";
  RewardDesign reward;
  bool countersHaveTooltips = false;
  Rgb wrongColour{255, 0, 0};
  Place markPlace;
  QString markTooltip = " Priebežné hodnotenie ";
  const MarkColours* markColours = &kColoursA;
  int bookWidth = 615;
};

}  // namespace ratanka::sheets
