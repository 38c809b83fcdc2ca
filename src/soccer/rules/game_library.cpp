#include "soccer/rules/game_library.h"

#include <cmath>
#include <cstdlib>

namespace ratanka::soccer {
namespace {

// Centres are kept doubled, so that their halves stay whole.
int doubledX(const Piece& piece) { return 2 * piece.Left + piece.Width; }
int doubledY(const Piece& piece) { return 2 * piece.Top + piece.Height; }

// Half of a whole number, a half going to the even neighbour.
int halved(int doubled) {
  const int below = (doubled - (doubled & 1)) / 2;
  const bool isBetween = (doubled & 1) != 0;
  return isBetween && (below & 1) != 0 ? below + 1 : below;
}

// The point of a quarter's diagonal, or the one next to it towards the axis that is nearer.
int inQuarter(int diagonal, int dx, int dy, int vertical, int horizontal) {
  if (dx == dy) return diagonal;
  return dx < dy ? vertical : horizontal;
}

}  // namespace

int GetDirection(const Piece& from, const Piece& to) {
  const int x = doubledX(to) - doubledX(from);
  const int y = doubledY(to) - doubledY(from);
  if (y == 0) return x == 0 ? 0 : (x > 0 ? 5 : 13);

  const int dx = halved(std::abs(x));
  const int dy = halved(std::abs(y));
  if (y < 0) {
    if (x == 0) return 1;
    return x < 0 ? inQuarter(15, dx, dy, 16, 14) : inQuarter(3, dx, dy, 2, 4);
  }
  if (from.Left == to.Left) return 9;
  return to.Left < from.Left ? inQuarter(11, dx, dy, 10, 12) : inQuarter(7, dx, dy, 8, 6);
}

int Section(const Piece& playerOrBall) {
  if (playerOrBall.Top <= 2760) return 1;
  return playerOrBall.Top <= 5040 ? 2 : 3;
}

float GetDistance(const Piece& one, const Piece& other) {
  const auto dx = static_cast<float>(halved(doubledX(one)) - halved(doubledX(other)));
  const auto dy = static_cast<float>(halved(doubledY(one)) - halved(doubledY(other)));
  return std::sqrt(dx * dx + dy * dy);
}

}  // namespace ratanka::soccer
