#pragma once

#include <string>
#include <vector>

#include "screen/places.h"
#include "screen/process.h"
#include "screen/robot.h"
#include "sheets/rules/example.h"

namespace ratanka::bench {

using namespace screen;

struct Program {
  std::vector<std::string> command;
  Point corner;  // upper left one of its first window
};

// The same with a sound device that nobody hears.
Program withSound(const Program& program);

// What is compared. All first windows are of one size and have a button at the same place.
struct Programs {
  Program ratanka;
  Program bare;
  Program bareEdit;  // with a line to type into

  static Programs in(const std::string& folder);
};

// A program with its first window painted. The place must be empty, or become so at once, as it
// does behind a program that was just ended.
class OpenWindow {
 public:
  OpenWindow(Robot& robot, const Program& program);

  const Process& process() const { return process_; }
  Process& process() { return process_; }
  Area area() const { return area_; }
  double startMilliseconds() const { return startMilliseconds_; }  // until it was painted

 private:
  Area area_;
  Time started_;
  Process process_;
  double startMilliseconds_ = 0;
};

// Goes from the menu to a sheet, that of small sums unless told otherwise; returns when it stands
// there and has the keyboard.
void openSheet(Robot& robot, const OpenWindow& menu, int number = 0);

// Goes to a sheet and does a set of it with all answers right; returns when the next set has come,
// and the reward can be had for as long as one likes.
void earnReward(Robot& robot, const OpenWindow& menu, int number, const sheets::Examples& examples);

// Clicks, and returns when a window has come up and has settled.
void clickAndAwaitWindow(Robot& robot, Point point);

}  // namespace ratanka::bench
