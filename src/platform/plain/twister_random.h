#pragma once

#include <random>

#include "platform/ports/random.h"

namespace ratanka {

// A Mersenne twister in its standard starting state.
class TwisterRandom : public Random {
 public:
  double next() override;
  void reseedFromClock() override;

 private:
  std::mt19937_64 engine_;
};

}  // namespace ratanka
