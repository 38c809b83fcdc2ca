#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <string>

struct _XDisplay;  // NOLINT(bugprone-reserved-identifier): the name is Xlib's

namespace ratanka::bench {

using Time = std::chrono::steady_clock::time_point;

struct Point {
  int x = 0;
  int y = 0;
};

struct Area {
  Point at;  // upper left corner
  int width = 1;
  int height = 1;
};

inline Area shifted(const Area& area, Point by) {
  return {{area.at.x + by.x, area.at.y + by.y}, area.width, area.height};
}

inline Point middle(const Area& area) {
  return {area.at.x + area.width / 2, area.at.y + area.height / 2};
}

enum class Key : unsigned long {
  enter = 0xff0d,
  backspace = 0xff08,
  left = 0xff51,
  right = 0xff53
};  // X's key symbols

inline Key digitKey(char digit) { return static_cast<Key>(digit); }

// Looks at an X display from outside and uses its mouse and keyboard, as a child would. All points
// are pixels of the screen. What doesn't come within ten seconds is thrown as a runtime_error.
class Robot {
 public:
  Robot();  // on the display of the environment
  ~Robot();
  Robot(const Robot&) = delete;
  Robot& operator=(const Robot&) = delete;

  // The pixels as they are seen, in the display's own order: only good for comparing.
  std::string look(const Area& area) const;

  // Forgets the windows that have come up so far, then waits without any work for the next.
  void forgetWindows();
  void awaitWindow();

  // Returns as soon as the area doesn't look like `before`, at most a tenth of a millisecond late.
  Time awaitChange(const Area& area, const std::string& before) const;
  // The same, as soon as it does look like `wanted`.
  Time awaitLook(const Area& area, const std::string& wanted) const;

  void awaitWindowManager() const;
  // Waits until a window of the process has the keyboard.
  void awaitFocus(pid_t process) const;
  // The place of the window that has the keyboard.
  Area activeWindow() const;

  void press(Key key);
  // Returns the moment right before the display was told.
  Time release(Key key);
  Time strike(Key key);  // down and up; the moment before down
  void click(Point point);
  void movePointer(Point point);

 private:
  Time sendKey(Key key, bool isDown);
  unsigned long property(unsigned long window, const char* name) const;

  _XDisplay* display_;
  unsigned long root_;
};

void rest(std::chrono::milliseconds time);

// Asks again and again, `pace` apart; throws after ten seconds, with `what` in the message.
void awaitUntil(const char* what, const std::function<bool()>& isThere,
                std::chrono::microseconds pace);

inline double milliseconds(Time from, Time to) {
  return std::chrono::duration<double, std::milli>(to - from).count();
}

}  // namespace ratanka::bench
