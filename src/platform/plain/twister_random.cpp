#include "platform/plain/twister_random.h"

#include <chrono>

namespace ratanka {

double TwisterRandom::next() {
  // The upper 53 bits fill a double's significand exactly, so 1 itself can't come out.
  return static_cast<double>(engine_() >> 11) * 0x1p-53;
}

void TwisterRandom::reseedFromClock() {
  const auto moment = std::chrono::steady_clock::now().time_since_epoch().count();
  engine_.seed(static_cast<std::mt19937_64::result_type>(moment));
}

}  // namespace ratanka
