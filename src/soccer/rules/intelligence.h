#pragma once

#include "soccer/rules/compass.h"

namespace ratanka::soccer {

// Each level takes more into account than the one before it, and says what Red is to hold.
Held Intelligence1(const Situation& situation);
Held Intelligence2(const Situation& situation);
Held Intelligence3(const Situation& situation);
Held Intelligence4(const Situation& situation);
Held Intelligence5(const Situation& situation);

// The decision of a level, 1 to 5; nothing for any other.
Held decide(const Situation& situation, int level);

}  // namespace ratanka::soccer
