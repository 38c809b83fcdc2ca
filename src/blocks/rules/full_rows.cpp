#include "blocks/rules/full_rows.h"

#include <algorithm>

namespace ratanka::blocks {

FullRows::FullRows(Well& well) : well_(well) {
  for (int row = kRows; row >= 1; --row) {
    if (std::ranges::count(well_.row(row), 0) > 0) continue;
    Full_[index(row)] = true;
    ++count_;
    well_.row(row).fill(0);
  }
}

void FullRows::closeLowestGap() {
  for (int row = lowestGap(); row >= 2; --row) {
    well_.row(row) = well_.row(row - 1);
    Full_[index(row)] = Full_[index(row - 1)];
  }
  Full_[index(1)] = false;  // a gap there has moved down like any other, or would close for ever
}

int FullRows::lowestGap() const {
  for (int row = kRows; row >= 2; --row) {
    if (Full_[index(row)]) return row;
  }
  return 0;
}

std::int64_t points(int rows, int Level) {
  static constexpr std::array<std::int64_t, 5> kPoints{0, 50, 150, 500, 1000};
  const auto index = static_cast<std::size_t>(rows);
  return index < kPoints.size() ? kPoints[index] * (Level + 1) : 0;
}

}  // namespace ratanka::blocks
