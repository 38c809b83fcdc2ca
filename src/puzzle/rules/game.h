#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/ports/random.h"
#include "puzzle/rules/board.h"

namespace ratanka::puzzle {

// The sliding puzzle with its clock of whole seconds. It is in one of three states:
//
//   ordered     Solved, clock off   a shuffle begins a game, a moved tile free play
//   playing     clock on            ends in order, with a time; or is given up
//   free play   clock off           ends in order or is given up; nothing is recorded
//
// The game owns no timer. While isClockOn(), its owner calls tick() every second.
class Game {
 public:
  struct Press {
    std::optional<int> movedTo;  // the place that the tile went to
    std::optional<int> time;     // in seconds, from 0, if this ended a game
  };

  // The tile of a place of the board is pressed, the empty place included. It moves if it is next
  // to the empty place; whether it did or not, the order is looked at.
  Press press(int place);

  // cmdShuffle: from an ordered board to a game, from all else to an ordered board.
  void shuffleOrReset(Random& random);

  // kMinSize to kMaxSize. Another size gives up the game; the same one does nothing.
  void chooseSize(int Size);

  void tick();

  // The clock stands still while the window is minimised, and goes on from there.
  void setMinimised(bool isMinimised) { isMinimised_ = isMinimised; }

  const Board& board() const { return board_; }
  bool Solved() const { return solved_; }
  int Seconds() const { return seconds_; }
  bool isClockOn() const { return isPlaying_ && !isMinimised_; }

  // The form's; the only display of the clock. The last time stays there after the end of a game.
  const std::string& caption() const { return caption_; }
  // The caption of cmdShuffle.
  std::string_view shuffleCaption() const { return solved_ ? "Zamiešať" : "Nová hra"; }

 private:
  void ResetBoard(int Size);

  Board board_{4};
  bool solved_ = true;
  int seconds_ = 0;
  bool isPlaying_ = false;
  bool isMinimised_ = false;
  std::string caption_ = "Pucle";
};

}  // namespace ratanka::puzzle
