// How strong the five levels of the computer are: each plays as Red against the same simple chaser
// as Blue, some hundred whole matches a level. The more goals Red has, the stronger the level.
#include <cstdio>
#include <random>

#include "soccer/rules/computer.h"

namespace ratanka::soccer {
namespace {

// Chance that a seed makes repeatable. Reseeding goes on in the same stream: from the clock no
// match could be played twice.
class SeededRandom : public Random {
 public:
  explicit SeededRandom(unsigned seed) : engine_(seed) {}
  double next() override { return static_cast<unsigned>(engine_()) / 4294967296.0; }
  void reseedFromClock() override {}

 private:
  std::mt19937 engine_;
};

Held towards(const Piece& player, int left, int top) {
  Held held;
  held.up = player.Top > top;
  held.down = player.Top < top;
  held.left = player.Left > left;
  held.right = player.Left < left;
  return held;
}

// Runs to the point right of the ball, or to the one above or below it where the goal lies lower or
// higher, and pushes the ball on. Goes round a ball that is in the way.
Held chaser(const Match& match) {
  const Piece& ball = match.Ball;
  const int left = ball.Left + kStep;
  const int top = ball.Top < 3000   ? ball.Top - kStep
                  : ball.Top > 4920 ? ball.Top + kStep
                                    : ball.Top;
  if (match.Blue.Left == left && match.Blue.Top == top) return {.left = true};
  const bool isBehind = match.Blue.Left < left && match.Blue.Top == ball.Top;
  return towards(match.Blue, left,
                 isBehind ? (top > kBlueStart.Top ? top - kStep : top + kStep) : top);
}

// The chaser does something in one of `pace` ticks, so that it runs at that part of Red's speed, as
// fast as the ball or slower. At full speed it would touch the ball all the time, and none of the
// levels would ever see it again.
Match play(int level, unsigned seed, int pace) {
  SeededRandom random(seed);
  SeededRandom legs(seed + 1000000);
  Computer computer;
  Match match;
  Declarations declarations;
  match.StartMatch(declarations);
  computer.planMatch(random);
  // The window's timers start together and stay in phase; within a millisecond their ticks come in
  // the order in which it makes them.
  for (int ms = 1;; ++ms) {
    if (ms % 10 == 0) {
      match.blueHeld = legs.below(pace) == 0 ? chaser(match) : Held{};
      match.movePlayersAndTap();
    }
    if (ms % 40 == 0 && match.moveBallAndTap()) computer.planKickOff(random);
    match.tmrBallTap();
    if (ms > 1000 && ms % 1000 == 0 && match.tmrCountdown(declarations)) return match;
    computer.ComputerBrain(match, level, random);
  }
}

void print(int pace, unsigned matches) {
  std::printf(
      "Red (the computer) against Blue (a chaser at 1/%d of the speed), %u matches a level\n", pace,
      matches);
  std::printf("level  Red's goals  Blue's goals  Red won  drawn  Blue won\n");
  for (int level = 1; level <= 5; ++level) {
    int redGoals = 0;
    int blueGoals = 0;
    int redWon = 0;
    int drawn = 0;
    for (unsigned seed = 1; seed <= matches; ++seed) {
      const Match match = play(level, seed, pace);
      redGoals += match.RedGoals;
      blueGoals += match.BlueGoals;
      redWon += match.RedGoals > match.BlueGoals ? 1 : 0;
      drawn += match.RedGoals == match.BlueGoals ? 1 : 0;
    }
    std::printf("%5d %12d %13d %8d %6d %9d\n", level, redGoals, blueGoals, redWon, drawn,
                static_cast<int>(matches) - redWon - drawn);
  }
}

}  // namespace
}  // namespace ratanka::soccer

int main() {
  for (const int pace : {4, 8}) ratanka::soccer::print(pace, 200);
}
