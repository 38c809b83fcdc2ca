#pragma once

#include <gtest/gtest.h>
#include <sys/types.h>

#include <memory>
#include <string>
#include <vector>

#include "desktop/weston.h"
#include "platform/ports/units.h"

struct _XDisplay;

namespace ratanka {

// X11 with a window manager, openbox; Wayland with a compositor, weston.
enum class WindowSystem { x11, wayland };

// Of what lies behind all windows, once there is something: nothing of ours looks like it.
inline constexpr Rgb kCloth{150, 250, 20};

// A screen of its own that manages windows, and the built program on it: hands and eyes of a child
// for the tests. Ends everything that it started. Waits give up after ten seconds.
class PrivateDesktop {
 public:
  explicit PrivateDesktop(PixelSize size, WindowSystem system = WindowSystem::x11);
  ~PrivateDesktop();
  PrivateDesktop(const PrivateDesktop&) = delete;
  PrivateDesktop& operator=(const PrivateDesktop&) = delete;

  WindowSystem system() const { return weston_ ? WindowSystem::wayland : WindowSystem::x11; }

  // Starts the program, with further variables ("NAME=value") in its environment. What it says goes
  // to a file where one is named.
  // Another program starts it where words of a command stand before its path.
  void startProgram(const std::vector<std::string>& variables = {}, const std::string& says = {},
                    std::vector<std::string> command = {});
  // Exit status of the ended program; -1 where it doesn't end or was killed.
  int waitForEnd();
  // Sends the program a signal; takes the screen away from it.
  void send(int signal) const;
  void pullThePlug();

  // xdotool with these arguments; its exit status.
  int xdotool(const std::string& arguments) const;
  void click(int x, int y) const;
  void key(const std::string& name) const { xdotool("key " + name); }

  // Visible windows of exactly this title, a regular expression, and whether there are (or come to
  // be) any.
  int count(const std::string& title) const;
  bool hasWindow(const std::string& title) const { return count(title) > 0; }
  bool waitForWindow(const std::string& title) const;
  // On Wayland a window is active that stands in front.
  testing::AssertionResult waitForActive(const std::string& title) const;
  bool waitUntilGone(const std::string& title) const;

  // Upper left corner of a visible window on the screen, without the frame that a manager draws. On
  // Wayland the toolkit draws it: there it counts.
  ScreenPoint place(const std::string& title) const;
  // Wayland: the button of a window's frame that maximises it and brings it back.
  void clickMaximise(const std::string& title) const;
  // What the X server shows of a window: '#' for a pixel inside its shape, '.' for one outside, a
  // text for each row of its rectangle.
  std::vector<std::string> shape(const std::string& title, PixelSize size) const;

  // Presses one of the mouse's buttons (1 left, 2 middle, 3 right), moves in steps, lets go.
  void drag(int button, ScreenPoint from, ScreenPoint to) const;

  // X11: a window of ours behind everything.
  void spreadCloth();

  Rgb pixel(int x, int y) const;
  // Where something dark stands in an area: '#' for a pixel whose three colours are less than
  // `light` together, '.' for the rest, a line a row.
  std::string darkness(int x, int y, PixelSize size, int light = 330) const;
  bool waitForPixel(int x, int y, const Rgb& colour) const;
  // Where pixels of exactly this colour stand in an area, row by row.
  std::vector<ScreenPoint> pixelsOf(const Rgb& colour, ScreenPoint corner, PixelSize size) const;
  // An area as it is seen, row by row.
  std::vector<Rgb> picture(ScreenPoint corner, PixelSize size) const;

 private:
  std::string displayName_;
  // The visible windows of a title on X11, and the last of them.
  std::vector<unsigned long> search(const std::string& title) const;
  unsigned long find(const std::string& title) const;
  std::string active() const;
  void moveTo(int x, int y) const;
  Weston::Window waylandWindow(const std::string& title) const;

  _XDisplay* display_ = nullptr;
  pid_t server_ = 0;
  pid_t windowManager_ = 0;         // on X11
  std::unique_ptr<Weston> weston_;  // on Wayland
  pid_t program_ = 0;
};

}  // namespace ratanka
