#include "soccer/rules/directions.h"

#include <array>

namespace ratanka::soccer {

void SetPlayerDirection2(Held& held, int direction) {
  if (direction == 8 || direction == 1 || direction == 2) held.up = true;
  if (direction >= 2 && direction <= 4) held.right = true;
  if (direction >= 4 && direction <= 6) held.down = true;
  if (direction >= 6 && direction <= 8) held.left = true;
}

void MovePlayerTowardsBall(Held& held, const Match& match) {
  MoveRedTowardsX(held, match, match.Ball);
}

void MoveRedTowardsX(Held& held, const Match& match, const Piece& XObject) {
  // By the compass point, from 0 (the centres coincide: nowhere) to 16.
  constexpr std::array<int, 17> kDirections{0, 1, 2, 2, 2, 3, 4, 4, 4, 5, 6, 6, 6, 7, 8, 8, 8};
  const int point = GetDirection(match.Red, XObject);
  SetPlayerDirection2(held, kDirections.at(point));
}

}  // namespace ratanka::soccer
