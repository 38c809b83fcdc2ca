#pragma once

#include "platform/ports/random.h"
#include "soccer/rules/directions.h"

namespace ratanka::soccer {

// What a level of the computer looks at. It has no memory and foresees nothing.
struct Situation {
  const Match& match;
  int Tactic;
  Random& random;
};

// Straight for the ball.
Held chase(const Situation& situation);

// The answer of a level, 1 to 5, to the direction in which Red sees the ball.
Held compassAnswer(const Situation& situation, int level);

}  // namespace ratanka::soccer
