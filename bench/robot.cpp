#include "robot.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <poll.h>

#include <memory>
#include <stdexcept>
#include <thread>

namespace ratanka::bench {
namespace {

using std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto kPatience = 10s;
constexpr auto kPixelPace = 50us;  // between two looks, so that the display has time to paint
constexpr auto kPace = 2ms;

// A window may be gone before its property is read.
int ignoreError(Display*, XErrorEvent*) { return 0; }

}  // namespace

void rest(std::chrono::milliseconds time) { std::this_thread::sleep_for(time); }

void awaitUntil(const char* what, const std::function<bool()>& isThere,
                std::chrono::microseconds pace) {
  const auto deadline = steady_clock::now() + kPatience;
  while (!isThere()) {
    if (steady_clock::now() > deadline) throw std::runtime_error(std::string("in vain: ") + what);
    std::this_thread::sleep_for(pace);
  }
}

Robot::Robot() : display_(XOpenDisplay(nullptr)), root_(0) {
  if (display_ == nullptr) throw std::runtime_error("no X display");
  XSetErrorHandler(ignoreError);
  root_ = DefaultRootWindow(display_);
  XSelectInput(display_, root_, SubstructureNotifyMask);
  movePointer({});
}

Robot::~Robot() { XCloseDisplay(display_); }

std::string Robot::look(const Area& area) const {
  XImage* const image =
      XGetImage(display_, root_, area.at.x, area.at.y, static_cast<unsigned>(area.width),
                static_cast<unsigned>(area.height), AllPlanes, ZPixmap);
  if (image == nullptr) throw std::runtime_error("an area outside the screen");
  const auto bytes =
      static_cast<std::size_t>(image->bytes_per_line) * static_cast<std::size_t>(image->height);
  std::string pixels(image->data, bytes);
  XDestroyImage(image);
  return pixels;
}

void Robot::forgetWindows() { XSync(display_, True); }

void Robot::awaitWindow() {
  const auto deadline = steady_clock::now() + kPatience;
  while (steady_clock::now() < deadline) {
    while (XPending(display_) > 0) {
      XEvent event;
      XNextEvent(display_, &event);
      if (event.type == MapNotify) return;
    }
    pollfd connection{ConnectionNumber(display_), POLLIN, 0};
    poll(&connection, 1, 100);
  }
  throw std::runtime_error("in vain: a window");
}

Time Robot::awaitChange(const Area& area, const std::string& before) const {
  awaitUntil(
      "a change of the picture", [&] { return look(area) != before; }, kPixelPace);
  return steady_clock::now();
}

Time Robot::awaitLook(const Area& area, const std::string& wanted) const {
  awaitUntil(
      "a known picture", [&] { return look(area) == wanted; }, kPixelPace);
  return steady_clock::now();
}

unsigned long Robot::property(unsigned long window, const char* name) const {
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long left = 0;
  unsigned char* data = nullptr;
  XGetWindowProperty(display_, window, XInternAtom(display_, name, False), 0, 1, False,
                     AnyPropertyType, &type, &format, &count, &left, &data);
  if (data == nullptr) return 0;
  const std::unique_ptr<unsigned char, int (*)(unsigned char*)> owner(
      data, [](unsigned char* bytes) { return XFree(bytes); });
  // Xlib hands out values of 32 bits as longs.
  return format == 32 && count > 0 ? *reinterpret_cast<const unsigned long*>(data) : 0;
}

void Robot::awaitWindowManager() const {
  awaitUntil(
      "a window manager", [&] { return property(root_, "_NET_SUPPORTING_WM_CHECK") != 0; }, kPace);
}

void Robot::awaitFocus(pid_t process) const {
  const auto hasFocus = [&] {
    const unsigned long window = property(root_, "_NET_ACTIVE_WINDOW");
    return window != 0 && property(window, "_NET_WM_PID") == static_cast<unsigned long>(process);
  };
  awaitUntil("the keyboard's focus", hasFocus, kPace);
}

Area Robot::activeWindow() const {
  Window active = 0;
  int revert = 0;
  XGetInputFocus(display_, &active, &revert);
  Area area;
  Window child = 0;
  XTranslateCoordinates(display_, active, root_, 0, 0, &area.at.x, &area.at.y, &child);
  XWindowAttributes attributes{};
  XGetWindowAttributes(display_, active, &attributes);
  area.width = attributes.width;
  area.height = attributes.height;
  return area;
}

Time Robot::sendKey(Key key, bool isDown) {
  const KeyCode code = XKeysymToKeycode(display_, static_cast<KeySym>(key));
  const Time before = steady_clock::now();
  XTestFakeKeyEvent(display_, code, isDown ? True : False, CurrentTime);
  XFlush(display_);
  return before;
}

void Robot::press(Key key) { sendKey(key, true); }

Time Robot::release(Key key) { return sendKey(key, false); }

Time Robot::strike(Key key) {
  const Time before = sendKey(key, true);
  sendKey(key, false);
  return before;
}

void Robot::click(Point point) {
  movePointer(point);
  XTestFakeButtonEvent(display_, Button1, True, CurrentTime);
  XTestFakeButtonEvent(display_, Button1, False, CurrentTime);
  XFlush(display_);
}

void Robot::movePointer(Point point) {
  XTestFakeMotionEvent(display_, DefaultScreen(display_), point.x, point.y, CurrentTime);
  XFlush(display_);
}

}  // namespace ratanka::bench
