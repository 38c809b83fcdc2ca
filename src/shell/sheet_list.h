#pragma once

#include <algorithm>
#include <array>

#include "platform/ports/form_name.h"
#include "platform/ports/units.h"
#include "shell/rules/premenne.h"

namespace ratanka {

namespace names {

inline constexpr FormName Delenie{"Delenie"};
inline constexpr FormName Malá{"Malá"};
inline constexpr FormName Veľká{"Veľká"};
inline constexpr FormName Násobilka{"Násobilka"};
inline constexpr FormName Hádanka{"Hádanka"};
inline constexpr FormName Veľkéčísla{"Veľkéčísla"};
inline constexpr FormName Zátvorky{"Zátvorky"};

}  // namespace names

// An exercise sheet as the menu and the report card show it.
struct ListedSheet {
  FormName name;
  double Premenné::*percento;  // its result
  // Its button in the menu, and the words beside it.
  const char* button;
  const char* caption;
  const char* tooltip;
  Rgb back;
  int examplesLeft;  // twips
  const char* examples;
  // Its line on the card, from 1, and the labels there.
  int cardLine;
  const char* titleLabel;
  const char* title;
  const char* markLabel;
};

// All of them, as they stand in the menu.
// clang-format off
inline constexpr auto kSheetList = std::to_array<ListedSheet>({
    {names::Malá, &Premenné::PercentoMalá, "Command1", "1.....20", " Malé počty ", {255, 255, 192}, 1440, "1+1 = ?  6 - 2 = ?...", 2, "Label2", "Malé počty", "Label8"},
    {names::Veľká, &Premenné::PercentoVeľká, "Command2", "1.....200", " Veľké počty ", {128, 255, 255}, 1440, "10+25 = ?   37-15 = ?...", 3, "Label4", "Veľké počty", "Label10"},
    {names::Násobilka, &Premenné::PercentoNásobilka, "Command3", "A x B", " Násobenie ", {0, 255, 0}, 1440, "2 x 4 = ?   6 x 5 = ? ...", 4, "Label3", "Násobenie malých čísel", "Label9"},
    {names::Delenie, &Premenné::PercentoDelenie, "Command4", "A : B", " Delenie ", {255, 0, 255}, 1440, "4 : 2 = ?   8 : 4 = ?...", 1, "Label1", "Delenie  malých čísel", "Label7"},
    {names::Veľkéčísla, &Premenné::PercentoVeľkéčísla, "Command5", "1......X", " Malá rátanka ", {255, 255, 255}, 1440, "1+1-2+8 - 11 = ?...", 5, "Label5", "Malá rátanka", "Label11"},
    {names::Zátvorky, &Premenné::PercentoZátvorky, "Command8", "1.........X", " Veľká rátanka ", {255, 0, 0}, 1320, "(1+25) - (11-2) + 9 = ?...", 6, "Label6", "Veľká rátanka", "Label12"},
    {names::Hádanka, &Premenné::PercentoHádanka, "Command9", "1..........?", " Logická rátanka ", {255, 192, 192}, 1440, "1 + ? = 5     12 - ? = 2...", 7, "Label13", "Logická rátanka", "Label14"},
});
// clang-format on

// The one of that name, which has to be there.
constexpr const ListedSheet& listed(FormName name) {
  return *std::ranges::find(kSheetList, name, &ListedSheet::name);
}

}  // namespace ratanka
