#pragma once

#include <array>
#include <string>

namespace ratanka::sheets {

inline constexpr int kRows = 9;

// One row's example as it stands on the sheet, and the number to be typed.
struct Example {
  // What the box stands for. Where it hides an operand, `first` is the known operand and `second`
  // the right side of the equals sign.
  enum class Box { result, firstOperand, secondOperand };

  std::string first;   // a row in a single label (a chain, brackets) has all of it here
  std::string sign{};  // the operator with its blanks
  std::string second{};
  int Výsledok = 0;
  Box box = Box::result;
};

using Examples = std::array<Example, kRows>;

// Nine rows from nine calls, in the order of the rows.
template <typename MakeRow>
Examples nineRows(MakeRow makeRow) {
  Examples examples;
  for (Example& example : examples) example = makeRow();
  return examples;
}

// The row from left to right as a child reads it, with "?" for the box: "7 - 2 = ?".
std::string reading(const Example& example);

// The same for the ear, in Slovak words: "7 mínus 2 rovná sa koľko".
std::string spoken(const Example& example);

}  // namespace ratanka::sheets
