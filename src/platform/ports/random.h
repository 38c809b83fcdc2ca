#pragma once

namespace ratanka {

// The program's one stream of chance. Every run starts it in the same state, so that a fresh start
// shows the same examples in the same order.
class Random {
 public:
  virtual ~Random() = default;

  // The next number, uniform from 0 (included) to 1 (excluded).
  virtual double next() = 0;

  // Goes on from a state that the moment gives, another one at each call.
  virtual void reseedFromClock() = 0;

  // The next number as a whole one from 0 to n - 1; n is at least 1.
  int below(int n) { return static_cast<int>(next() * n); }
};

}  // namespace ratanka
