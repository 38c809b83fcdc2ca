#include "shell/uvod.h"

#include "platform/controls/controls.h"
#include "platform/forms/desktop.h"
#include "platform/forms/forms.h"
#include "shell/names.h"
#include "shell/rules/shape.h"

namespace ratanka {
namespace {

struct Entry {
  const char* button;
  const char* caption;
  const char* tooltip;
  Rgb back;
  int top;  // twips, as labelLeft
  const char* label;
  int labelLeft;
  const char* examples;
  FormName sheet;
};

// clang-format off
constexpr Entry kEntries[] = {
    {"Command1", "1.....20", " Malé počty ", {255, 255, 192}, 240, "Label2", 1440, "1+1 = ?  6 - 2 = ?...", names::Malá},
    {"Command2", "1.....200", " Veľké počty ", {128, 255, 255}, 720, "Label3", 1440, "10+25 = ?   37-15 = ?...", names::Veľká},
    {"Command3", "A x B", " Násobenie ", {0, 255, 0}, 1200, "Label4", 1440, "2 x 4 = ?   6 x 5 = ? ...", names::Násobilka},
    {"Command4", "A : B", " Delenie ", {255, 0, 255}, 1680, "Label5", 1440, "4 : 2 = ?   8 : 4 = ?...", names::Delenie},
    {"Command5", "1......X", " Malá rátanka ", {255, 255, 255}, 2160, "Label6", 1440, "1+1-2+8 - 11 = ?...", names::Veľkéčísla},
    {"Command8", "1.........X", " Veľká rátanka ", {255, 0, 0}, 2640, "Label7", 1320, "(1+25) - (11-2) + 9 = ?...", names::Zátvorky},
    {"Command9", "1..........?", " Logická rátanka ", {255, 192, 192}, 3120, "Label8", 1440, "1 + ? = 5     12 - ? = 2...", names::Hádanka},
};
// clang-format on

constexpr FormName kClosedForTheCard[] = {
    names::Veľká,      names::Násobilka, names::Delenie, names::Malá,    names::Úvod,
    names::Veľkéčísla, names::Zátvorky,  names::Hodiny,  names::Hádanka,
};

constexpr Point kOutline[] = {{0, 0}, {241, 0}, {241, 276}, {2, 275}, {1, 276}, {0, 0}};

constexpr int kPageRight = 3615;  // where the page's right edge ends, for the labels

}  // namespace

Úvod::Úvod(Forms& forms)
    : Form(forms, {.name = names::Úvod,
                   .caption = "Rátanka Menu",
                   .width = 3720,
                   .height = 4275,
                   .hasBorder = false,
                   .picture = "menu-page",
                   .pictureSize = {242, 277}}) {}

void Úvod::build() {
  for (const Entry& entry : kEntries) {
    QPushButton* const button = addButton(client(), {.name = entry.button,
                                                     .place = {360, entry.top, 855, 375},
                                                     .caption = entry.caption,
                                                     .tooltip = entry.tooltip,
                                                     .back = entry.back});
    addLabel(client(),
             {.name = entry.label,
              .place = {entry.labelLeft, entry.top + 120, kPageRight - entry.labelLeft, 255},
              .caption = entry.examples});
    on(button, &QPushButton::clicked, [this, sheet = entry.sheet] { handOverTo(sheet); });
  }
  QPushButton* const card = addButton(client(), {.name = "Command6",
                                                 .place = {240, 3600, 3135, 375},
                                                 .caption = "V Y S V E D Č E N I E",
                                                 .tooltip = " Zobrazí vysvedčenie ",
                                                 .icon = "icon-card",
                                                 .iconSize = 20,
                                                 .type = {.bold = true}});
  on(card, &QPushButton::clicked, [this] { Command6_Click(); });
}

void Úvod::Form_Load() {
  centreOnScreen(window());
  cutTo(GetFormRegion(kOutline));
}

void Úvod::handOverTo(FormName sheet) {
  if (!forms().hasMaker(sheet)) return;
  forms().show(sheet);
  forms().drop(names::Úvod);
}

void Úvod::Command6_Click() {
  if (!forms().hasMaker(names::Vysvedčenie)) return;
  forms().show(names::Vysvedčenie);
  for (const FormName& name : kClosedForTheCard) forms().unload(name);
}

}  // namespace ratanka
