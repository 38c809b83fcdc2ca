#include "blocks/rules/full_rows.h"

#include <algorithm>

namespace ratanka::blocks {

FullRows::FullRows(Well& well) : well_(well) {
  for (int row = kRows; row >= 1; --row) {
    if (std::ranges::count(well_.row(row), 0) > 0) continue;
    Full_[row - 1] = true;
    ++count_;
    well_.row(row).fill(0);
  }
}

void FullRows::closeLowestGap() {
  for (int row = lowestGap(); row >= 2; --row) {
    well_.row(row) = well_.row(row - 1);
    Full_[row - 1] = Full_[row - 2];
  }
  Full_[0] = false;  // a gap there has moved down like any other, or would close for ever
}

int FullRows::lowestGap() const {
  for (int row = kRows; row >= 2; --row) {
    if (Full_[row - 1]) return row;
  }
  return 0;
}

std::int64_t points(int rows, int Level) {
  static constexpr std::array<std::int64_t, 5> kPoints{0, 50, 150, 500, 1000};
  const bool isKnown = 0 <= rows && rows < std::ssize(kPoints);
  return isKnown ? kPoints[rows] * (Level + 1) : 0;
}

}  // namespace ratanka::blocks
