#include "puzzle/rules/board.h"

#include <cstdlib>
#include <numeric>

namespace ratanka::puzzle {

TileArea tileArea(int Size, int place) {
  const int side = 2 * (90 / Size) + 10;
  return {place % Size * side + side / 2, place / Size * side + side / 2, side};
}

Board::Board(int Size) : size_(Size), blank_(Size * Size - 1) {
  std::iota(numbers_.begin(), numbers_.end(), 1);
}

std::string Board::caption(int button) const {
  return number(button) == 0 ? std::string() : std::to_string(number(button));
}

void Board::ShuffleBoard(Random& random) {
  const int steps = size_ * size_ * size_ * size_;
  int x = blank_ % size_;
  int y = blank_ / size_;
  for (int step = 0; step < steps;) {
    const int r = random.below(4);
    if (r == 0 && x > 0) --x;
    if (r == 1 && x < size_ - 1) ++x;
    if (r == 2 && y > 0) --y;
    if (r == 3 && y < size_ - 1) ++y;
    const int next = y * size_ + x;
    if (next == blank_) continue;
    MoveTile(next);
    ++step;
  }
}

bool Board::isNextToBlank(int place) const {
  const int columns = std::abs(place % size_ - blank_ % size_);
  const int rows = std::abs(place / size_ - blank_ / size_);
  return columns + rows == 1;
}

void Board::MoveTile(int place) {
  number(blank_) = number(place);
  number(place) = 0;
  blank_ = place;
}

bool Board::isInOrder() const {
  for (int place = 0; place < places() - 1; ++place) {
    if (number(place) != place + 1) return false;
  }
  return true;
}

}  // namespace ratanka::puzzle
