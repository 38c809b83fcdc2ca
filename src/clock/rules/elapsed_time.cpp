#include "clock/rules/elapsed_time.h"

namespace ratanka::clock {
namespace {

constexpr int kWrap = 60;

// Counts on; whether it came round to 0.
bool countOn(int& part) {
  part = (part + 1) % kWrap;
  return part == 0;
}

}  // namespace

void ElapsedTime::tick() {
  if (countOn(seconds_) && countOn(minutes_)) countOn(hours_);
}

}  // namespace ratanka::clock
