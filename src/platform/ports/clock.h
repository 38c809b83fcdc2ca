#pragma once

namespace ratanka {

// Local time of the day: hour 0 to 23, minute and second 0 to 59.
struct TimeOfDay {
  int hour = 0;
  int minute = 0;
  int second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual TimeOfDay timeOfDay() const = 0;
  // With its fraction, from 0 to below 86400; starts anew at midnight.
  virtual double secondsSinceMidnight() const = 0;
};

}  // namespace ratanka
