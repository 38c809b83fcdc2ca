#include "figure.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace ratanka::bench {
namespace {

std::string written(double value, const char* unit) {
  char text[64];
  std::snprintf(text, sizeof text, "%.3g %s", value, unit);
  // Large numbers aren't written as powers of ten.
  if (std::abs(value) >= 100) std::snprintf(text, sizeof text, "%.0f %s", value, unit);
  return text;
}

}  // namespace

void print(const Figure& figure) {
  const std::string limit = figure.limit ? written(*figure.limit, figure.unit) : "-";
  const char* const verdict = !figure.limit ? "-" : figure.value <= *figure.limit ? "ok" : "over";
  std::printf("%s\t%s\t%s\t%s\n", figure.name.c_str(), written(figure.value, figure.unit).c_str(),
              limit.c_str(), verdict);
  std::fflush(stdout);
}

double median(std::vector<double> samples) {
  std::ranges::sort(samples);
  const std::size_t half = samples.size() / 2;
  return samples.size() % 2 == 1 ? samples[half] : (samples[half - 1] + samples[half]) / 2;
}

double percentile(std::vector<double> samples, double percent) {
  std::ranges::sort(samples);
  const double rank = std::ceil(static_cast<double>(samples.size()) * percent / 100);
  return samples.at(static_cast<std::size_t>(rank) - 1);
}

}  // namespace ratanka::bench
