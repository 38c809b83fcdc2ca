#include "shell/rules/mark.h"

#include <cmath>

namespace ratanka {
namespace {

constexpr double kStep = 20;  // percent from one mark to the next
constexpr double kLowestOnCard = 1;
constexpr int kWorst = 5;
constexpr int kBest = 1;

}  // namespace

double percentage(int right, int wrong) {
  return static_cast<double>(right) / (right + wrong) * 100;
}

double wholePercentage(double percentage) {
  // Rounds halves to even, as the processor does unless told otherwise.
  return std::nearbyint(percentage);
}

int mark(double percentage) {
  int result = kWorst;
  while (result > kBest && percentage >= kStep * (kWorst + 1 - result)) --result;
  return result;
}

int markOnCard(double percentage) { return percentage < kLowestOnCard ? 0 : mark(percentage); }

bool earnsReward(double percentage) { return mark(percentage) == kBest; }

}  // namespace ratanka
