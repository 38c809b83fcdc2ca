#pragma once

#include <QString>
#include <array>
#include <vector>

#include "platform/controls/controls.h"
#include "platform/ports/form_name.h"
#include "platform/ports/random.h"
#include "sheets/rules/worksheet.h"

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
  RowLabel first{};
  RowLabel sign{};
  RowLabel second{};
  int equalsLeft = 3480;
  int boxLeft = 4560;
  int boxWidth = 585;
  int tickLeft = 5280;
  int crossLeft = 5160;
};
using RowDesigns = std::array<RowDesign, kRows>;

// Rows of operand, operator, operand, equals sign, box.
RowDesigns plainRows();
// Rows with the whole example in one label that begins at `left`.
RowDesigns oneLabelRows(int left, int width);
// Rows with the box in the place of one operand, the equals sign and the right side after it.
RowDesigns hiddenOperandRows();

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
  int left = 4800;  // twips
  int top = 6720;
  Rgb back{224, 224, 224};
};

// A button that can't be caught: where the pointer comes over it, it hides and the other one of the
// two shows.
struct ShyButton {
  QString name;
  int left = 0;
  bool visible = false;
};

struct SheetDesign {
  FormName name;
  Examples (*ShowStart)(Random& random) = nullptr;
  // The next set where it isn't a fresh ShowStart; no examples: the old ones are asked again.
  std::optional<Examples> (*nextSet)(std::int16_t& DelenieKolo) = nullptr;
  Worksheet::Percentage percentage = Worksheet::Percentage::exact;

  RowDesigns rows{};
  double signPoints = 13.5;
  // Names of the reward button, of " Nové príklady " and of " Návrat do MENU ".
  std::array<QString, 3> buttons{"Command1", "Command2", "Command3"};
  QString bookTimer = "Timer3";
  RewardDesign reward;
  bool countersHaveTooltips = false;
  Rgb wrongColour = kRed;
  Place markPlace{1920, 6840, 615, 495};
  const MarkColours* markColours = &kColoursA;
  int bookWidth = 615;                  // twips
  std::vector<ShyButton> shyButtons{};  // none or two

  bool leavingClosesGame = false;
  bool keepsCounting = false;  // the counters live on after the sheet is left
};

}  // namespace ratanka::sheets
