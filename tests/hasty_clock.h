#pragma once

#include "platform/ports/clock.h"

namespace ratanka {

// Seconds that pass as fast as the loop of the blocks game asks for them.
class HastyClock : public Clock {
 public:
  TimeOfDay timeOfDay() const override { return {}; }
  double secondsSinceMidnight() const override { return now_ += 0.02; }

 private:
  mutable double now_ = 0;
};

}  // namespace ratanka
