#pragma once

#include "platform/ports/ticks.h"

namespace ratanka {

// Ticks of the event loop; intervals under 20 ms are precise.
class QtTicks : public Ticks {
 public:
  std::unique_ptr<Source> every(std::chrono::milliseconds interval, Precision precision,
                                std::function<void()> tick) override;
};

}  // namespace ratanka
