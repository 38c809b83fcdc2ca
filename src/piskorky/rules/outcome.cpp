#include "piskorky/rules/outcome.h"

namespace ratanka::piskorky {

namespace {

// Beside the board: the winning strokes are to be seen.
MessageBox box(const char* text, MessageBox::Icon icon) {
  return {.title = "Piškôrky", .text = text, .icon = icon, .isBeside = true};
}

}  // namespace

// The blank at the head of a second line belongs to it.
MessageBox outcomeBox(Outcome outcome) {
  switch (outcome) {
    case Outcome::lost:
      return box("Prehral si.\r\n Nevadí, skús to znova!", MessageBox::Icon::information);
    case Outcome::won:
      return box("Výborne!\r\n Vyhral si.", MessageBox::Icon::information);
    case Outcome::tied:
      break;
  }
  return box("Si úplne slabý hráč!\r\nUž to radšej vzdaj a venuj sa rátanke.",
             MessageBox::Icon::exclamation);
}

}  // namespace ratanka::piskorky
