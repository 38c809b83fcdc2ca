#include "piskorky/rules/board.h"

#include <algorithm>

namespace ratanka::piskorky {

std::string_view text(Mark mark) {
  switch (mark) {
    case Mark::X:
      return "X";
    case Mark::O:
      return "O";
    case Mark::none:
      break;
  }
  return {};
}

bool Board::isFull() const { return std::ranges::find(cells_, Mark::none) == cells_.end(); }

Lines Board::fullLines(Mark mark) const {
  Lines lines;
  for (std::size_t line = 0; line < lines.size(); ++line) {
    lines[line] = std::ranges::all_of(kLineCells[line], [&](int cell) { return at(cell) == mark; });
  }
  return lines;
}

}  // namespace ratanka::piskorky
