#pragma once

#include <optional>
#include <string>
#include <vector>

namespace ratanka::bench {

// One line of the result: what was measured, and how much of it may be.
struct Figure {
  std::string name;
  double value = 0;
  const char* unit = "";
  std::optional<double> limit{};  // the most that is fine
};

// As a line of four columns with tabs between: name, value, limit, and `ok`, `over` or `-`.
void print(const Figure& figure);

// Of at least one sample.
double median(std::vector<double> samples);

// The smallest sample that at least that share of all samples isn't above.
double percentile(std::vector<double> samples, double percent);

}  // namespace ratanka::bench
