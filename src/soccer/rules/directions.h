#pragma once

#include "soccer/rules/match.h"

namespace ratanka::soccer {

inline constexpr Held kNone{};
inline constexpr Held kUp{.up = true};
inline constexpr Held kDown{.down = true};
inline constexpr Held kLeft{.left = true};
inline constexpr Held kRight{.right = true};

constexpr Held operator+(const Held& one, const Held& other) {
  return {.up = one.up || other.up,
          .down = one.down || other.down,
          .left = one.left || other.left,
          .right = one.right || other.right};
}

// Holds what leads in one of eight directions, clockwise from 1, straight up. Lets nothing go.
void SetPlayerDirection2(Held& held, int direction);

// Run to the ball, or to another thing; twelve of the sixteen compass points go along a diagonal.
void MovePlayerTowardsBall(Held& held, const Match& match);
void MoveRedTowardsX(Held& held, const Match& match, const Piece& XObject);

}  // namespace ratanka::soccer
