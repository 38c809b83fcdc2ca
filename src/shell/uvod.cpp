#include "shell/uvod.h"

#include "platform/controls/controls.h"
#include "platform/forms/desktop.h"
#include "platform/forms/forms.h"
#include "shell/names.h"
#include "shell/rules/shape.h"

namespace ratanka {
namespace {

constexpr Point kOutline[] = {{0, 0}, {241, 0}, {241, 276}, {2, 275}, {1, 276}, {0, 0}};

constexpr int kFirstTop = 240;  // of the sheets' buttons, twips
constexpr int kPitch = 480;
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
  int top = kFirstTop;
  int label = 1;
  for (const ListedSheet& sheet : kSheetList) {
    QPushButton* const button = addButton(client(), {.name = sheet.button,
                                                     .place = {360, top, 855, 375},
                                                     .caption = sheet.caption,
                                                     .tooltip = sheet.tooltip,
                                                     .back = sheet.back});
    addLabel(client(),
             {.name = "Label" + QString::number(++label),
              .place = {sheet.examplesLeft, top + 120, kPageRight - sheet.examplesLeft, 255},
              .caption = sheet.examples});
    on(button, &QPushButton::clicked, [this, name = sheet.name] { handOverTo(name); });
    top += kPitch;
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
  for (const ListedSheet& sheet : kSheetList) forms().unload(sheet.name);
  forms().unload(names::Úvod);
  forms().unload(names::Hodiny);
}

}  // namespace ratanka
