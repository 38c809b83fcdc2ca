#include "sheets/rules/products.h"

#include <cstddef>
#include <vector>

namespace ratanka::sheets {
namespace {

constexpr int kLargestDividend = 10;
constexpr int kCycle = 4;

std::vector<Example> allDivisions() {
  std::vector<Example> divisions;
  for (int a = 1; a <= kLargestDividend; ++a) {
    for (int b = 1; b <= a; ++b) {
      if (a % b != 0) continue;
      divisions.push_back({.first = std::to_string(a),
                           .sign = " : ",
                           .second = std::to_string(b),
                           .Výsledok = a / b});
    }
  }
  return divisions;
}

Examples divisionSet(int number) {
  const std::vector<Example> divisions = allDivisions();
  auto next = divisions.begin() + std::ptrdiff_t{kRows} * number;
  return nineRows([&] { return *next++; });
}

}  // namespace

Examples násobilka::ShowStart(Random& random) {
  return nineRows([&]() -> Example {
    const int a = random.below(10);
    const int b = random.below(10);
    return {
        .first = std::to_string(a), .sign = " x ", .second = std::to_string(b), .Výsledok = a * b};
  });
}

Examples delenie::ShowStart() { return divisionSet(0); }
Examples delenie::ShowStart1() { return divisionSet(1); }
Examples delenie::ShowStart2() { return divisionSet(2); }

std::optional<Examples> delenie::nextSet(std::int16_t& DelenieKolo) {
  if (++DelenieKolo == kCycle) {
    DelenieKolo = 0;
    return std::nullopt;
  }
  return divisionSet(DelenieKolo - 1);
}

}  // namespace ratanka::sheets
