#pragma once

#include "soccer/rules/intelligence.h"

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

// Straight for the ball.
Held chase(const Situation& situation);

// The answer of a level, 1 to 5, to the direction in which Red sees the ball.
Held compassAnswer(const Situation& situation, int level);

}  // namespace ratanka::soccer
