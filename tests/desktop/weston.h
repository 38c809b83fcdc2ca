#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "platform/ports/units.h"

namespace ratanka {

// A Wayland compositor whose screen is an X display of its size: mouse and keys of that display are
// those of its child, and what it shows is read there. It tells more of its windows than any
// program is told: where they stand.
class Weston {
 public:
  // Starts it, with nothing on its screen but one colour, and waits until it feels the mouse.
  Weston(const std::string& displayName, PixelSize size, const Rgb& background);
  ~Weston();
  Weston(const Weston&) = delete;
  Weston& operator=(const Weston&) = delete;

  // What a program's environment has to say for it to come here.
  std::vector<std::string> variables() const;

  struct Window {
    std::string title;
    ScreenPoint corner;  // upper left, of the frame where the toolkit draws one, as is the size
    PixelSize size;
  };
  // Those that are to be seen, from front to back, without menus and the like.
  std::vector<Window> windows() const;
  // Waits until the pointer is a program's: until this one has answered that the pointer came in.
  // The compositor takes a window that is slow to answer for busy, and keeps presses for itself.
  void waitForPointerOf(pid_t program) const;

 private:
  std::string scene() const;
  bool takePointerToCorner(const std::string& displayName, PixelSize size) const;

  std::string folder_;
  pid_t compositor_ = 0;
};

}  // namespace ratanka
