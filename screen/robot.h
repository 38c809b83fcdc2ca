#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "platform/ports/units.h"

union _XEvent;     // NOLINT(bugprone-reserved-identifier): the names are Xlib's
struct _XDisplay;  // NOLINT(bugprone-reserved-identifier)

namespace ratanka::screen {

using Time = std::chrono::steady_clock::time_point;

using Point = ScreenPoint;

struct Area {
  Point at;  // upper left corner
  int width = 1;
  int height = 1;
};

constexpr Area shifted(const Area& area, Point by) {
  return {{area.at.x + by.x, area.at.y + by.y}, area.width, area.height};
}

constexpr Point middle(const Area& area) {
  return {area.at.x + area.width / 2, area.at.y + area.height / 2};
}

constexpr bool isInside(const Area& area, const Area& all) {
  return area.at.x >= all.at.x && area.at.x + area.width <= all.at.x + all.width &&
         area.at.y >= all.at.y && area.at.y + area.height <= all.at.y + all.height;
}

enum class Key : unsigned long {
  enter = 0xff0d,
  backspace = 0xff08,
  left = 0xff51,
  right = 0xff53
};  // X's key symbols

inline Key digitKey(char digit) { return static_cast<Key>(digit); }

// A window that the window manager manages.
struct Window {
  unsigned long id = 0;
  std::string title;
  Area area;             // without the frame
  bool isModal = false;  // those beneath it feel nothing
};

// Looks at an X display from outside and uses its mouse and keyboard, as a child would. All points
// are pixels of the screen. What doesn't come within ten seconds is thrown as a runtime_error.
class Robot {
 public:
  // On the display of the environment, where none is named.
  explicit Robot(const std::string& display = {});
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

  // All need a window manager. The windows, those put away too, from the lowest to the topmost, and
  // the title of the active one; empty where there is none.
  std::vector<Window> windows() const;
  std::string activeTitle() const;
  // As a list of windows would have it, and a window's close button.
  void activate(const Window& window);
  void close(const Window& window);
  // Asks the window's program for a sign of life, which it gives when it comes to its events.
  bool answers(const Window& window, std::chrono::milliseconds patience);

  // A plain window behind all others, which nobody manages: clicks that miss go nowhere.
  void spreadCloth(const Rgb& colour);

  void press(Key key);
  // Returns the moment right before the display was told.
  Time release(Key key);
  Time strike(Key key);  // down and up; the moment before down
  void click(Point point);
  void movePointer(Point point);
  // 1 left, 2 middle, 3 right.
  void pressButton(int button);
  void releaseButton(int button);

 private:
  Time sendKey(Key key, bool isDown);
  void sendButton(int button, bool isDown);
  bool awaitEvent(const std::function<bool(const _XEvent&)>& isIt,
                  std::chrono::milliseconds patience);
  void ask(unsigned long target, unsigned long window, const char* what,
           const std::vector<unsigned long>& words, long mask);
  Area areaOf(unsigned long window) const;
  std::string title(unsigned long window) const;
  std::string bytes(unsigned long window, const char* property) const;
  std::vector<unsigned long> numbers(unsigned long window, const char* property) const;
  unsigned long number(unsigned long window, const char* property) const;
  unsigned long atom(const char* name) const;

  _XDisplay* display_;
  unsigned long root_;
};

void rest(std::chrono::milliseconds time);

inline constexpr std::chrono::seconds kPatience{10};

// Asks again and again until it holds, and gives up when the patience is over.
bool comesTrue(const std::function<bool()>& holds, std::chrono::milliseconds patience = kPatience,
               std::chrono::microseconds pace = std::chrono::milliseconds(2));
// The same, but throws after ten seconds, with `what` in the message.
void awaitUntil(const char* what, const std::function<bool()>& isThere,
                std::chrono::microseconds pace);

inline double milliseconds(Time from, Time to) {
  return std::chrono::duration<double, std::milli>(to - from).count();
}

}  // namespace ratanka::screen
