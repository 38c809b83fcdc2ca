#pragma once

#include "platform/random.h"
#include "soccer/rules/match.h"

namespace ratanka::soccer {

// The label in Red's own goal that Red runs home to.
inline constexpr Piece kRedGoalLine{240, 3840, 60, 732};

// The outer width of the window of a match against the computer, in twips. The computer's thirds
// are thirds of it.
inline constexpr int kOuterWidth = 12000;

// The horizontal band of the pitch in which a thing stands: 1 (upper), 2 (the goals') or 3.
int Section(const Piece& playerOrBall);

// Holds what leads in one of eight directions, clockwise from 1, straight up. Lets nothing go.
void SetPlayerDirection2(Held& held, int direction);

// Run to the ball, or to another thing; twelve of the sixteen compass points go along a diagonal.
void MovePlayerTowardsBall(Held& held, const Match& match);
void MoveRedTowardsX(Held& held, const Match& match, const Piece& XObject);

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
