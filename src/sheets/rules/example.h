#pragma once

#include <array>
#include <string>

namespace ratanka::sheets {

inline constexpr int kRows = 9;

// One row's example as the child reads it, and the number to be typed. A row that stands in a
// single label (a chain, an expression with brackets) has it all in `first`.
struct Example {
  std::string first;
  std::string sign;  // the operator with its blanks
  std::string second;
  int Výsledok = 0;
};

using Examples = std::array<Example, kRows>;

}  // namespace ratanka::sheets
