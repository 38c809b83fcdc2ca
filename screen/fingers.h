#pragma once

#include <chrono>
#include <map>
#include <string>

#include "screen/robot.h"

namespace ratanka::screen {

// A hand at a robot's keyboard and mouse: nothing is down for less time than a finger takes.
class Fingers {
 public:
  explicit Fingers(Robot& robot) : robot_(robot) {}

  void strike(Key key);
  void strikeWithAlt(Key key);
  void type(const std::string& digits);
  // 1 left, 2 middle, 3 right. On a busy machine a pointer that leaves at once takes the click
  // along: the window manager holds the press back, and the release is told of where the pointer is
  // then.
  void click(Point point, int button = 1);
  void drag(Point from, Point to, int button = 1);

  // Puts a key down for so long, while other things happen: releaseDue lets go of those whose time
  // is over. There are five fingers; a sixth key lets go of all.
  void hold(Key key, std::chrono::milliseconds time);
  bool isDown(Key key) const { return down_.contains(key); }
  void releaseDue();
  void releaseAll();

 private:
  Robot& robot_;
  std::map<Key, Time> down_;  // until when
};

}  // namespace ratanka::screen
