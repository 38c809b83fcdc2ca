#pragma once

#include <array>
#include <string>

#include "platform/ports/random.h"

// The sliding board. A place is counted row by row from the top left, from 0: row * Size + column.
namespace ratanka::puzzle {

inline constexpr int kMinSize = 3;  // tiles a side
inline constexpr int kMaxSize = 7;
inline constexpr int kButtons = kMaxSize * kMaxSize;  // cmdButton(0) to cmdButton(48)

// Where the button of a place stands, in logical pixels. A tile is square and its side even: the
// more tiles a side, the smaller, so that every board fits the same window with a border of half a
// tile.
struct TileArea {
  int left = 0;
  int top = 0;
  int side = 0;
};
TileArea tileArea(int Size, int place);

// The numbers on the buttons. The tiles are 1 to Size * Size - 1; one place is empty, and its
// button hidden.
class Board {
 public:
  // A board in order. Size is kMinSize to kMaxSize.
  explicit Board(int Size);

  int Size() const { return size_; }
  int places() const { return size_ * size_; }
  int Blank() const { return blank_; }  // the empty place

  // Of cmdButton(0) to cmdButton(48), the hidden ones included: their number from 1, and nothing
  // (0) on the empty place once a tile has moved.
  std::string caption(int button) const;
  int number(int button) const { return numbers_.at(button); }
  bool isVisible(int button) const { return button < places() && button != blank_; }

  // A walk of the empty place of Size to the fourth power steps, so that the board can be solved.
  // Each draw is one of four directions; one that leads off the board is no step. The walk may turn
  // back at once, and may end in order.
  void ShuffleBoard(Random& random);

  // Whether a place is beside, above or below the empty one.
  bool isNextToBlank(int place) const;
  // The tile of a place goes to the empty one, wherever that is.
  void MoveTile(int place);

  // Whether every place but the last has its tile: the first one 1, the second one 2 and so on.
  bool isInOrder() const;

 private:
  int& number(int button) { return numbers_.at(button); }

  int size_;
  int blank_;
  std::array<int, kButtons> numbers_{};  // by button; 0 is an empty caption
};

}  // namespace ratanka::puzzle
