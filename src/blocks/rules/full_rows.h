#pragma once

#include <array>
#include <cstdint>

#include "blocks/rules/game_state.h"

namespace ratanka::blocks {

// The full rows of one landing: all are emptied at once, so that the blocks above hang in the air,
// and then their gaps close from the bottom up, one at a time. The well must outlive it.
class FullRows {
 public:
  explicit FullRows(Well& well);

  int count() const { return count_; }  // 0 to kRows, however many gaps have closed

  // A gap in row 1 is none: nothing hangs above it.
  bool isGapLeft() const { return lowestGap() > 0; }

  // Moves what is above the lowest gap down by a row. Row 1 is not emptied, so that afterwards its
  // blocks stand in row 2 too. There must be a gap left.
  void closeLowestGap();

 private:
  int lowestGap() const;  // its row; 0 where there is none

  Well& well_;
  std::array<bool, kRows> Full_{};  // from row 1
  int count_ = 0;
};

// Points for rows cleared by one landing, with Level as it is after a level-up of that landing.
// None for more than four, which only a well that was filled at the start can give.
std::int64_t points(int rows, int Level);

}  // namespace ratanka::blocks
