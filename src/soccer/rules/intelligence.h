#pragma once

#include "platform/random.h"
#include "soccer/rules/match.h"

namespace ratanka::soccer {

// What a level of the computer looks at. It has no memory and foresees nothing.
struct Situation {
  const Match& match;
  int Tactic;
  Random& random;
};

// Each level takes more into account than the one before it, and says what Red is to hold.
Held Intelligence1(const Situation& situation);
Held Intelligence2(const Situation& situation);
Held Intelligence3(const Situation& situation);
Held Intelligence4(const Situation& situation);
Held Intelligence5(const Situation& situation);

// The decision of a level, 1 to 5; nothing for any other.
Held decide(const Situation& situation, int level);

}  // namespace ratanka::soccer
