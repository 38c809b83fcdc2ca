#include "soccer/rules/match.h"

#include <cstdlib>
#include <initializer_list>

namespace ratanka::soccer {
namespace {

// Where a player can stand.
constexpr int kPlayerTop = 360;
constexpr int kPlayerBottom = 7560;
constexpr int kPlayerLeft = 360;
constexpr int kPlayerRight = 10920;

// Where the ball turns back, or scores.
constexpr int kLeftEnd = 120;
constexpr int kRightEnd = 11160;
constexpr int kUpperLine = 240;
constexpr int kLowerLine = 7560;
constexpr int kMouthTop = 3000;     // of a goal, included
constexpr int kMouthBottom = 5160;  // excluded

void move(Piece& player, const Held& held) {
  if (player.Top != kPlayerTop && held.up) player.Top -= kStep;
  if (player.Top != kPlayerBottom && held.down) player.Top += kStep;
  if (player.Left != kPlayerLeft && held.left) player.Left -= kStep;
  if (player.Left != kPlayerRight && held.right) player.Left += kStep;
}

bool isStepOrNone(int distance) { return distance == 0 || std::abs(distance) == kStep; }

}  // namespace

void Match::StartMatch(Declarations& declarations) {
  *this = {};
  declarations.TimeLeft = kMatchSeconds;
}

void Match::tmrMovePlayers() {
  if (isPaused) return;
  move(Blue, blueHeld);
  move(Red, redHeld);
}

void Match::tmrBallTap() {
  for (const Piece* const player : {&Red, &Blue}) {
    const int hx = Ball.Left - player->Left;
    const int hy = Ball.Top - player->Top;
    const bool touches = isStepOrNone(hx) && isStepOrNone(hy) && (hx != 0 || hy != 0);
    if (!touches) continue;
    BallStepX = hx;
    BallStepY = hy;
  }
}

bool Match::tmrMoveBall() {
  bool isGoal = false;
  const auto meetEnd = [&](int& goals) {
    if (isInMouth()) {
      ++goals;
      kickOff();
      isGoal = true;
    } else {
      BallStepX = -BallStepX;
    }
  };
  if (Ball.Left <= kLeftEnd) meetEnd(BlueGoals);
  if (Ball.Left >= kRightEnd) meetEnd(RedGoals);
  if (Ball.Top <= kUpperLine) BallStepY = -BallStepY;
  if (Ball.Top >= kLowerLine) BallStepY = -BallStepY;
  if (!isPaused) {
    Ball.Left += BallStepX;
    Ball.Top += BallStepY;
  }
  return isGoal;
}

bool Match::tmrCountdown(Declarations& declarations) {
  if (isPaused) return false;
  --declarations.TimeLeft;
  isPaused = declarations.TimeLeft == 0;
  return isPaused;
}

void Match::movePlayersAndTap() {
  tmrMovePlayers();
  tmrBallTap();
}

bool Match::moveBallAndTap() {
  const bool isGoal = tmrMoveBall();
  tmrBallTap();
  return isGoal;
}

bool Match::isInMouth() const { return Ball.Top >= kMouthTop && Ball.Top < kMouthBottom; }

void Match::kickOff() {
  Ball = kBallStart;
  Red = kRedStart;
  Blue = kBlueStart;
  BallStepX = 0;
  BallStepY = kStep;
}

}  // namespace ratanka::soccer
