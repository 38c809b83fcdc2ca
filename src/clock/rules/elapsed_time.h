#pragma once

namespace ratanka::clock {

// How long the clock has been open, counted by a tick a second. Each part runs from 0 to 59; the
// hours start anew after 59, too.
class ElapsedTime {
 public:
  void tick();

  int hours() const { return hours_; }
  int minutes() const { return minutes_; }
  int seconds() const { return seconds_; }

 private:
  int hours_ = 0;
  int minutes_ = 0;
  int seconds_ = 0;
};

}  // namespace ratanka::clock
