// How strong the five levels of the computer are: each plays as Red against the same simple chaser
// as Blue, some hundred whole matches a level.
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
  for (int ms = 1;; ++ms) {
    computer.ComputerBrain(match, level, random);
    match.tmrBallTap();
    if (ms % 10 == 0) {
      match.blueHeld = legs.below(pace) == 0 ? chaser(match) : Held{};
      match.tmrMovePlayers();
    }
    if (ms % 40 == 5 && match.tmrMoveBall()) computer.planKickOff(random);
    if (ms > 1000 && ms % 1000 == 0 && match.tmrCountdown(declarations)) return match;
  }
}

void print(int pace, unsigned matches) {
  std::printf("A chaser at 1/%d of the speed, %u matches a level\n", pace, matches);
  std::printf("level  goals for  against   won  drawn  lost\n");
  for (int level = 1; level <= 5; ++level) {
    int goalsFor = 0;
    int against = 0;
    int won = 0;
    int drawn = 0;
    for (unsigned seed = 1; seed <= matches; ++seed) {
      const Match match = play(level, seed, pace);
      goalsFor += match.RedGoals;
      against += match.BlueGoals;
      won += match.RedGoals > match.BlueGoals ? 1 : 0;
      drawn += match.RedGoals == match.BlueGoals ? 1 : 0;
    }
    std::printf("%5d %10d %8d %5d %6d %5d\n", level, goalsFor, against, won, drawn,
                static_cast<int>(matches) - won - drawn);
  }
}

}  // namespace
}  // namespace ratanka::soccer

int main() {
  for (const int pace : {4, 8}) ratanka::soccer::print(pace, 200);
}
