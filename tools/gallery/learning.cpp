// Menu, sheets, report card and clock.

#include <algorithm>
#include <array>

#include "gallery/gallery.h"
#include "platform/base/text.h"
#include "platform/controls/controls.h"
#include "shell/names.h"

namespace ratanka {

void Gallery::showMenu() {
  forms_.show(names::Úvod);
  take(names::Úvod, "menu");
}

// Fresh, in work, with the box that comes up over an empty answer, and done with mistakes.
void Gallery::showSheet(const sheets::SheetDesign& design, int mistakes) {
  const FormName name = design.name;
  TwisterRandom sameDraws = random_;
  const sheets::Examples examples = design.ShowStart(sameDraws);
  // The empty row first, so that its box comes up on every sheet.
  constexpr std::array kMistakenRows{5, 2, 7, 1, 8, 4, 6};
  const auto answerRow = [&](int row) {
    const auto* const end = kMistakenRows.begin() + mistakes;
    const bool isMistaken = std::find(kMistakenRows.begin(), end, row) != end;
    const int result = examples.at(static_cast<std::size_t>(row - 1)).Výsledok;
    answer(name, row, row == 5 ? "" : QString::number(isMistaken ? result + 1 : result));
  };

  forms_.show(name);
  take(name, "fresh");
  for (const int row : {1, 2, 3}) answerRow(row);
  auto& fourth = control<TextBox>(name, "Text4");
  fourth.setText("12");
  fourth.setFocus();
  take(name, "in-work");
  takeBox(text(name.text()) + "-empty");
  for (const int row : {5, 4, 6, 7, 8, 9}) answerRow(row);
  take(name, "done");
  forms_.unload(name);
}

void Gallery::showCard() {
  forms_.show(names::Vysvedčenie);
  take(names::Vysvedčenie, "full");
  forms_.unload(names::Vysvedčenie);
  program_.premenné = {};
  forms_.show(names::Vysvedčenie);
  take(names::Vysvedčenie, "empty");
}

void Gallery::showClock() {
  for (const TimeOfDay& time : {TimeOfDay{10, 8, 36}, TimeOfDay{18, 30, 15}}) {
    time_.now = time;
    forms_.show(names::Hodiny);
    take(names::Hodiny, QString::number(time.hour));
    forms_.unload(names::Hodiny);
  }
}

}  // namespace ratanka
