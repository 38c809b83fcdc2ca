#pragma once

#include <array>
#include <optional>

#include "piskorky/rules/board.h"
#include "platform/ports/random.h"

// How the computer chooses a cell. It looks at one line at a time, takes a win and blocks one with
// the same zeal, and knows no better cells: a child is meant to be able to win.
namespace ratanka::piskorky {

// Two cells of a line with the same mark call for the target, the line's third cell.
struct TwoInLine {
  std::array<int, 2> given{};
  int target = 0;
};

// Line by line, and in a line from its last cell as the target to its first. The order is the only
// priority: a block that stands earlier is played although a win stands later.
inline constexpr auto kTwoInLineRules = [] {
  std::array<TwoInLine, 3 * kLineCells.size()> rules;
  std::size_t rule = 0;
  for (const auto& [a, b, c] : kLineCells) {
    rules[rule++] = {{a, b}, c};
    rules[rule++] = {{a, c}, b};
    rules[rule++] = {{b, c}, a};
  }
  return rules;
}();

// The target of the first rule that applies: it is empty and the given cells hold the same mark,
// no matter whose. None if no rule applies.
std::optional<int> ruleMove(const Board& board);

// Any empty cell, each with the same chance; the board must have one. Tries cells until one is
// empty, and reseeds the stream of chance before every try.
int randomMove(const Board& board, Random& random);

}  // namespace ratanka::piskorky
