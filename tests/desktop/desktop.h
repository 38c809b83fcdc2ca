#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "platform/units.h"

struct _XDisplay;

namespace ratanka {

// A screen of its own with a window manager, and the built program on it: hands and eyes of a child
// for the tests. Ends everything that it started. Waits give up after ten seconds.
class PrivateDesktop {
 public:
  explicit PrivateDesktop(PixelSize size);
  ~PrivateDesktop();
  PrivateDesktop(const PrivateDesktop&) = delete;
  PrivateDesktop& operator=(const PrivateDesktop&) = delete;

  // Starts the program, with further variables ("NAME=value") in its environment.
  void startProgram(const std::vector<std::string>& variables = {});
  // Exit status of the ended program; -1 where it doesn't end or was killed.
  int waitForEnd();

  // xdotool with these arguments; its exit status.
  int xdotool(const std::string& arguments) const;
  void click(int x, int y) const;
  void key(const std::string& name) const { xdotool("key " + name); }

  // Whether a visible window has (or comes to have) exactly this title.
  bool hasWindow(const std::string& title) const;
  bool waitForWindow(const std::string& title) const;
  bool waitForActive(const std::string& title) const;
  bool waitUntilGone(const std::string& title) const;

  // Upper left corner of a visible window on the screen.
  ScreenPoint place(const std::string& title) const;
  // What the server shows of a window: '#' for a pixel inside its shape, '.' for one outside, a
  // text for each row of its rectangle.
  std::vector<std::string> shape(const std::string& title, PixelSize size) const;

  // Presses one of the mouse's buttons (1 left, 2 middle, 3 right), moves in steps, lets go.
  void drag(int button, ScreenPoint from, ScreenPoint to) const;

  // A window of ours behind everything, and whether it has felt a press since it was last asked.
  void spreadCloth();
  bool clothWasPressed();

  Rgb pixel(int x, int y) const;
  // Where something dark stands in an area: '#' for a pixel whose three colours are less than
  // `light` together, '.' for the rest, a line a row.
  std::string darkness(int x, int y, PixelSize size, int light = 330) const;
  bool waitForPixel(int x, int y, const Rgb& colour) const;
  // Where pixels of exactly this colour stand in an area, row by row.
  std::vector<ScreenPoint> pixelsOf(const Rgb& colour, ScreenPoint corner, PixelSize size) const;

 private:
  std::string displayName_;
  unsigned long find(const std::string& title) const;

  _XDisplay* display_ = nullptr;
  pid_t server_ = 0;
  pid_t windowManager_ = 0;
  pid_t program_ = 0;
};

}  // namespace ratanka
