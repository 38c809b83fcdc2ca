#pragma once

#include "platform/ports/random.h"
#include "soccer/rules/match.h"

namespace ratanka::soccer {

// The player who plays Red in a match against a child, at five levels, one for each opponent.
class Computer {
 public:
  // The plan for the first kick-off of a match, 1 to 3, and for one after a goal, 1 or 2. The first
  // comes from a stream that was reseeded before.
  void planMatch(Random& random) { Tactic_ = random.below(3) + 1; }
  void planKickOff(Random& random) { Tactic_ = random.below(2) + 1; }
  int Tactic() const { return Tactic_; }

  // Every millisecond, in a frozen match too: lets all of Red's directions go and holds what the
  // level decides. `level` is 1 to 5; any other holds nothing.
  void ComputerBrain(Match& match, int level, Random& random) const;

 private:
  int Tactic_ = 0;
};

}  // namespace ratanka::soccer
