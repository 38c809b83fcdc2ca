#pragma once

#include "platform/ports/clock.h"

namespace ratanka {

// The machine's clock in its local time.
class SystemClock : public Clock {
 public:
  TimeOfDay timeOfDay() const override;
  double secondsSinceMidnight() const override;
};

}  // namespace ratanka
