#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace ratanka {

// Where timers get their ticks from: the event loop in the program, a steered time in the tests.
class Ticks {
 public:
  // Ticks come for as long as this object lives; it may be destroyed inside its own tick.
  class Source {
   public:
    virtual ~Source() = default;
  };

  // Any precision shares wake-ups with other timers where the interval is 20 ms or more.
  enum class Precision { any, fine };

  virtual ~Ticks() = default;
  // Calls `tick` once an interval (above 0), the first time after one interval. A tick that comes
  // late is late: no others are crowded together to catch up.
  virtual std::unique_ptr<Source> every(std::chrono::milliseconds interval, Precision precision,
                                        std::function<void()> tick) = 0;
};

}  // namespace ratanka
