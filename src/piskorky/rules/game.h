#pragma once

#include <optional>

#include "piskorky/rules/board.h"
#include "piskorky/rules/outcome.h"
#include "platform/ports/random.h"

namespace ratanka::piskorky {

// Noughts and crosses of a child, X, who moves first, against the computer, O; and the count of
// games over a visit. A move only marks its cell: that a line is full, that a game has ended and
// what the computer replies come with the ticks after it. The game owns no timer. While hasWork(),
// its owner calls tick() every millisecond; an outcome that it returns is told to the child, and
// then finish() called.
class Game {
 public:
  // Which of the four pollers run.
  struct Timers {
    bool Timer1 = true;   // looks for full lines and a full board
    bool Timer2 = false;  // the computer's move by the rules
    bool Timer3 = false;  // the computer's move by chance
    bool Timer4 = true;   // ends a game
    bool operator==(const Timers&) const = default;
  };

  // The child's move on a cell, 0 to 8. Does nothing on a filled one, on the computer's turn, and
  // once a line or the board is seen to be full.
  void play(int cell);

  // A fresh board; the counters stay. May come at any moment: an ended game that isn't finished yet
  // is finished first.
  void newGame();

  // Whether a tick has anything to do: a changed board to scan, a game to end, a move to make.
  bool hasWork() const;

  // One round of the running pollers: the scan of the position, then the end of the game, then the
  // computer's move. Chance is reseeded before every draw. Returns the outcome, once, in the round
  // that ends a game; from then on all pollers stand still.
  std::optional<Outcome> tick(Random& random);

  // The child has been told: counts the ended game and leaves nobody's turn. Without an ended game,
  // or called again, does nothing.
  void finish();

  Mark s(int cell) const { return board_.at(cell); }
  Mark turn() const { return turn_; }     // none after a finished game
  int lblnum() const { return lblnum_; }  // 1, and 2 more after each move of the child: up to 11
  bool xWon() const { return found_ == Outcome::won; }
  bool oWon() const { return found_ == Outcome::lost; }
  bool boardTied() const { return found_ == Outcome::tied; }
  Lines strokes() const { return strokes_; }  // the lines that are struck through
  int won() const { return won_; }
  int lost() const { return lost_; }
  const Timers& timers() const { return timers_; }

 private:
  void put(int cell, Mark mark);
  void ArmComputerMove();
  void scan();
  bool strike(Mark mark);
  void reply(Random& random);

  Board board_;
  Mark turn_ = Mark::X;
  int lblnum_ = 1;
  std::optional<Outcome> found_;  // what the scan saw, at most one of the three
  bool isFinishDue_ = false;      // the outcome is out, but not yet counted
  bool isScanDue_ = false;        // the board has changed since the last scan
  Lines strokes_;
  Timers timers_;
  int won_ = 0;
  int lost_ = 0;
};

}  // namespace ratanka::piskorky
