#include "piskorky/rules/computer.h"

namespace ratanka::piskorky {

std::optional<int> ruleMove(const Board& board) {
  for (const auto& [given, target] : kTwoInLineRules) {
    const Mark mark = board.at(given[0]);
    if (mark != Mark::none && mark == board.at(given[1]) && board.isEmpty(target)) return target;
  }
  return std::nullopt;
}

int randomMove(const Board& board, Random& random) {
  while (true) {
    random.reseedFromClock();
    const int cell = random.below(kCells);
    if (board.isEmpty(cell)) return cell;
  }
}

}  // namespace ratanka::piskorky
