#pragma once

#include <array>
#include <bitset>
#include <string_view>

// The board of noughts and crosses: cells 0 to 8, row by row from the top left.
namespace ratanka::piskorky {

inline constexpr int kCells = 9;
inline constexpr int kLines = 8;

enum class Mark { none, X, O };
// As it stands in a cell: "X", "O", or nothing.
std::string_view text(Mark mark);

// The three cells of each line, in the order in which lines are scanned: rows from the top, columns
// from the left, the falling and the rising diagonal.
inline constexpr std::array<std::array<int, 3>, kLines> kLineCells{
    {{0, 1, 2}, {3, 4, 5}, {6, 7, 8}, {0, 3, 6}, {1, 4, 7}, {2, 5, 8}, {0, 4, 8}, {2, 4, 6}}};

// A set of lines, by their place in kLineCells.
using Lines = std::bitset<kLines>;

class Board {
 public:
  // Cells outside 0 to 8 throw std::out_of_range.
  Mark at(int cell) const { return cells_.at(cell); }
  bool isEmpty(int cell) const { return at(cell) == Mark::none; }
  void put(int cell, Mark mark) { cells_.at(cell) = mark; }

  bool isFull() const;
  // The lines that hold this mark, X or O, in all three cells.
  Lines fullLines(Mark mark) const;

 private:
  std::array<Mark, kCells> cells_{};
};

}  // namespace ratanka::piskorky
