#include "soccer/rules/intelligence.h"

namespace ratanka::soccer {
namespace {

constexpr int kCentre = kBallStart.Left;  // the column that the ball runs in after a kick-off
constexpr int kBesideCentre = 5400;       // the column left of it
constexpr float kNear = 480;              // of GetDistance

// The label in Red's own goal that Red runs home to.
constexpr Piece kRedGoalLine{240, 3840, 60, 732};

bool isKickOff(const Match& match) { return match.BallStepX == 0 && match.Ball.Left == kCentre; }

bool isHomeEnd(const Match& match) { return match.BallStepX == 0 && match.Ball.Left <= 360; }

bool isNear(const Match& match) { return GetDistance(match.Red, match.Ball) < kNear; }

// The ball stands in front of the child's goal, and Red by it.
bool isAtFarGoal(const Match& match) {
  return match.BallStepX == 0 && Section(match.Ball) == 2 && isNear(match) &&
         match.Ball.Left >= 11040;
}

bool isInCorner(const Piece& ball) {
  if (ball.Top <= 600) return ball.Left <= 600 || ball.Left >= 11160;
  return ball.Top >= 7500 && (ball.Left <= 600 || ball.Left >= 11040);
}

// Waits in the column beside the end line for a ball that runs along it.
Held waitAtHome(const Piece& red) {
  constexpr int kWaiting = 600;
  if (red.Left == kWaiting) return kNone;
  return red.Left < kWaiting ? kRight : kLeft;
}

Held atHomeEnd(const Situation& situation) {
  const Match& match = situation.match;
  const int band = Section(match.Ball);
  if (band == 2) return kLeft + (match.Ball.Top < match.Red.Top ? kUp : kDown);
  return Section(match.Red) == band ? waitAtHome(match.Red) : chase(situation);
}

// A ball that runs level to the right through the band of the goals.
Held rightThroughTheMiddle(const Match& match) {
  switch (GetDirection(match.Red, match.Ball)) {
    case 4:
    case 6:
      return kRight;
    case 12:
    case 14:
      return kDown;
    default:
      return kLeft + kUp;
  }
}

bool isPassingTheCentre(const Match& match) { return isNear(match) && match.Ball.Left >= 6480; }

Held followLeft(const Match& match) {
  if (match.Red.Left < match.Ball.Left) return kRight;
  return kLeft + (match.Red.Top + 120 < match.Ball.Top ? kDown : kUp);
}

Held kickOff3(const Situation& situation) {
  const Match& match = situation.match;
  if (situation.Tactic != 1) return match.Blue.Left <= 7600 ? chase(situation) : kNone;
  if (match.Blue.Left > 9600) return kNone;
  return match.Red.Left < kBesideCentre ? kRight : kDown;
}

Held kickOff4(const Situation& situation) {
  if (situation.match.Red.Left < kBesideCentre) return kRight;
  return situation.Tactic == 1 ? kDown : kNone;
}

Held kickOff5(const Situation& situation) {
  if (situation.Tactic > 2) return chase(situation);
  return situation.match.Red.Left < kBesideCentre ? kRight : kDown;
}

Held levelRight4(const Match& match) {
  switch (Section(match.Ball)) {
    case 1:
      return isPassingTheCentre(match) ? kDown : kRight;
    case 2:
      return rightThroughTheMiddle(match);
    default:
      return match.Ball.Left < 6480 ? kRight : kUp;
  }
}

Held levelRight5(const Situation& situation) {
  const Match& match = situation.match;
  switch (Section(match.Ball)) {
    case 1:
      if (GetDirection(match.Red, match.Ball) == 15) return kNone;
      if (isPassingTheCentre(match)) return kDown;
      return match.Red.Left < 6400 ? kRight : kNone;
    case 2:
      return rightThroughTheMiddle(match);
    default:
      return match.Ball.Left < 6480 ? kRight : chase(situation);
  }
}

// Keeps a line in the child's half while the ball comes back from there.
Held levelLeft5(const Match& match) {
  if (match.Ball.Left < 6400) return followLeft(match);
  return match.Red.Left > 7200 ? kLeft : kNone;
}

}  // namespace

Held Intelligence1(const Situation& situation) { return compassAnswer(situation, 1); }

Held Intelligence2(const Situation& situation) {
  const bool isIdle = situation.random.below(3) == 1;
  return isIdle ? kNone : compassAnswer(situation, 2);
}

Held Intelligence3(const Situation& situation) {
  const Match& match = situation.match;
  if (isKickOff(match)) return kickOff3(situation);
  if (isInCorner(match.Ball)) {
    Held home;
    MoveRedTowardsX(home, match, kRedGoalLine);
    return home;
  }
  return compassAnswer(situation, 3);
}

Held Intelligence4(const Situation& situation) {
  const Match& match = situation.match;
  situation.random.reseedFromClock();
  if (isKickOff(match)) return kickOff4(situation);
  if (isHomeEnd(match)) return atHomeEnd(situation);
  if (isAtFarGoal(match)) return kLeft;
  if (match.BallStepY != 0) return compassAnswer(situation, 4);
  return match.BallStepX > 0 ? levelRight4(match) : followLeft(match);
}

Held Intelligence5(const Situation& situation) {
  const Match& match = situation.match;
  situation.random.reseedFromClock();
  if (isKickOff(match)) return kickOff5(situation);
  if (isHomeEnd(match)) return atHomeEnd(situation);
  if (isAtFarGoal(match)) return kLeft;
  if (match.BallStepY != 0) return compassAnswer(situation, 5);
  return match.BallStepX > 0 ? levelRight5(situation) : levelLeft5(match);
}

Held decide(const Situation& situation, int level) {
  switch (level) {
    case 1:
      return Intelligence1(situation);
    case 2:
      return Intelligence2(situation);
    case 3:
      return Intelligence3(situation);
    case 4:
      return Intelligence4(situation);
    case 5:
      return Intelligence5(situation);
    default:
      return kNone;
  }
}

}  // namespace ratanka::soccer
