#pragma once

#include "soccer/rules/declarations.h"
#include "soccer/rules/game_library.h"

namespace ratanka::soccer {

// Pieces and ball stand only on the points (120 + 240 i, 120 + 240 j) and move by one step along an
// axis or along both, so that positions can be compared for equality.
inline constexpr int kStep = 240;

inline constexpr Piece kRedStart{360, 3960, 495, 495};
inline constexpr Piece kBlueStart{10920, 3960, 495, 495};
inline constexpr Piece kBallStart{5640, 3960, 480, 480};

inline constexpr int kMatchSeconds = 90;

// Which directions of a player are held; each starts up.
struct Held {
  bool up = false;
  bool down = false;
  bool left = false;
  bool right = false;
  bool operator==(const Held&) const = default;
};

// A match on the pitch: two players, a ball, the goals. Red attacks to the right, Blue to the left.
// It owns no timer: its owner calls the four tick functions at their intervals, each a fixed step,
// and what moves a piece together with a look for a touch: movePlayersAndTap, moveBallAndTap.
struct Match {
  Piece Red = kRedStart;
  Piece Blue = kBlueStart;
  Piece Ball = kBallStart;
  int BallStepX = 0;  // what the ball moves by at each of its ticks: a step either way, or 0
  int BallStepY = kStep;
  int RedGoals = 0;
  int BlueGoals = 0;
  Held redHeld{};
  Held blueHeld{};
  bool isPaused = false;  // frozen; taps and bounces are worked out all the same

  // Everything to its start. The countdown's timer begins anew with its first wait of two seconds.
  void StartMatch(Declarations& declarations);

  // Every 10 ms: Blue and then Red go a step where they are held. Each direction is looked at after
  // the step before it, so that opposite ones cancel out everywhere but at an edge.
  void tmrMovePlayers();

  // Every millisecond: a player on one of the eight points round the ball sends it straight away
  // from himself. With both there, Blue decides.
  void tmrBallTap();

  // Every 40 ms: the ball bounces, scores, and goes its step. True where it was a goal; the
  // kick-off is then under way.
  bool tmrMoveBall();

  // Every second: true once the time is up; the match is then frozen.
  bool tmrCountdown(Declarations& declarations);

  // tmrMovePlayers and tmrMoveBall, each with a look for a touch right after its step. Ticks that
  // are due together come in any order, and tmrBallTap may be late: two steps with no look between
  // them can take a player through the ball. One step can't, as it brings the two nearer by one
  // point at most along each axis.
  void movePlayersAndTap();
  bool moveBallAndTap();  // true where it was a goal

 private:
  bool isInMouth() const;
  void kickOff();
};

}  // namespace ratanka::soccer
