#include "screen/robot.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <poll.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <thread>

namespace ratanka::screen {
namespace {

using std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto kPixelPace = 50us;  // between two looks, so that the display has time to paint
constexpr auto kPace = 2ms;
constexpr long kToWindowManager = SubstructureRedirectMask | SubstructureNotifyMask;
constexpr unsigned long kHand = 2;  // who asks: the user, not the program itself

// A window may be gone before its property is read.
int ignoreError(Display*, XErrorEvent*) { return 0; }

}  // namespace

void rest(std::chrono::milliseconds time) { std::this_thread::sleep_for(time); }

bool comesTrue(const std::function<bool()>& holds, std::chrono::milliseconds patience,
               std::chrono::microseconds pace) {
  const auto deadline = steady_clock::now() + patience;
  while (!holds()) {
    if (steady_clock::now() > deadline) return false;
    std::this_thread::sleep_for(pace);
  }
  return true;
}

void awaitUntil(const char* what, const std::function<bool()>& isThere,
                std::chrono::microseconds pace) {
  if (!comesTrue(isThere, kPatience, pace)) {
    throw std::runtime_error(std::string("in vain: ") + what);
  }
}

Robot::Robot(const std::string& display)
    : display_(XOpenDisplay(display.empty() ? nullptr : display.c_str())), root_(0) {
  if (display_ == nullptr) throw std::runtime_error("no X display");
  XSetErrorHandler(ignoreError);
  root_ = DefaultRootWindow(display_);
  // The windows that come, and what is answered to the root window.
  XSelectInput(display_, root_, SubstructureNotifyMask | StructureNotifyMask);
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

bool Robot::awaitEvent(const std::function<bool(const XEvent&)>& isIt,
                       std::chrono::milliseconds patience) {
  const auto deadline = steady_clock::now() + patience;
  while (steady_clock::now() < deadline) {
    while (XPending(display_) > 0) {
      XEvent event;
      XNextEvent(display_, &event);
      if (isIt(event)) return true;
    }
    const auto left = duration_cast<std::chrono::milliseconds>(deadline - steady_clock::now());
    pollfd connection{ConnectionNumber(display_), POLLIN, 0};
    poll(&connection, 1, std::max(0, static_cast<int>(left.count())));
  }
  return false;
}

void Robot::awaitWindow() {
  const auto isWindow = [](const XEvent& event) { return event.type == MapNotify; };
  if (!awaitEvent(isWindow, kPatience)) throw std::runtime_error("in vain: a window");
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

unsigned long Robot::atom(const char* name) const { return XInternAtom(display_, name, False); }

std::string Robot::bytes(unsigned long window, const char* property) const {
  constexpr long kMost = 1024;  // times four bytes
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long left = 0;
  unsigned char* data = nullptr;
  XGetWindowProperty(display_, window, atom(property), 0, kMost, False, AnyPropertyType, &type,
                     &format, &count, &left, &data);
  if (data == nullptr) return {};
  const std::unique_ptr<unsigned char, int (*)(unsigned char*)> owner(
      data, [](unsigned char* bytes) { return XFree(bytes); });
  // Xlib hands out values of 32 bits as longs.
  const std::size_t size = format == 32 ? sizeof(long) : 1;
  return {reinterpret_cast<const char*>(data), count * size};
}

std::vector<unsigned long> Robot::numbers(unsigned long window, const char* property) const {
  const std::string all = bytes(window, property);
  std::vector<unsigned long> result(all.size() / sizeof(unsigned long));
  if (!all.empty()) std::memcpy(result.data(), all.data(), all.size());
  return result;
}

unsigned long Robot::number(unsigned long window, const char* property) const {
  const std::vector<unsigned long> all = numbers(window, property);
  return all.empty() ? 0 : all.front();
}

std::string Robot::title(unsigned long window) const { return bytes(window, "_NET_WM_NAME"); }

void Robot::awaitWindowManager() const {
  awaitUntil(
      "a window manager", [&] { return number(root_, "_NET_SUPPORTING_WM_CHECK") != 0; }, kPace);
}

void Robot::awaitFocus(pid_t process) const {
  const auto hasFocus = [&] {
    const unsigned long window = number(root_, "_NET_ACTIVE_WINDOW");
    return window != 0 && number(window, "_NET_WM_PID") == static_cast<unsigned long>(process);
  };
  awaitUntil("the keyboard's focus", hasFocus, kPace);
}

Area Robot::areaOf(unsigned long window) const {
  Area area;
  unsigned long child = 0;
  XTranslateCoordinates(display_, window, root_, 0, 0, &area.at.x, &area.at.y, &child);
  XWindowAttributes attributes{};
  XGetWindowAttributes(display_, window, &attributes);
  area.width = attributes.width;
  area.height = attributes.height;
  return area;
}

Area Robot::activeWindow() const {
  unsigned long active = 0;
  int revert = 0;
  XGetInputFocus(display_, &active, &revert);
  return areaOf(active);
}

std::vector<Window> Robot::windows() const {
  std::vector<Window> all;
  const unsigned long modal = atom("_NET_WM_STATE_MODAL");
  for (const unsigned long id : numbers(root_, "_NET_CLIENT_LIST_STACKING")) {
    const std::vector<unsigned long> states = numbers(id, "_NET_WM_STATE");
    const bool isModal = std::ranges::find(states, modal) != states.end();
    all.push_back({id, title(id), areaOf(id), isModal});
  }
  // One may have gone meanwhile.
  std::erase_if(all, [](const Window& each) { return each.area.width == 0; });
  return all;
}

std::string Robot::activeTitle() const {
  const unsigned long active = number(root_, "_NET_ACTIVE_WINDOW");
  return active == 0 ? std::string() : title(active);
}

void Robot::ask(unsigned long target, unsigned long window, const char* what,
                const std::vector<unsigned long>& words, long mask) {
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = atom(what);
  event.xclient.format = 32;
  std::ranges::transform(words, event.xclient.data.l,
                         [](unsigned long word) { return static_cast<long>(word); });
  XSendEvent(display_, target, False, mask, &event);
  XFlush(display_);
}

void Robot::activate(const Window& window) {
  ask(root_, window.id, "_NET_ACTIVE_WINDOW", {kHand, CurrentTime}, kToWindowManager);
}

void Robot::close(const Window& window) {
  ask(root_, window.id, "_NET_CLOSE_WINDOW", {CurrentTime, kHand}, kToWindowManager);
}

bool Robot::answers(const Window& window, std::chrono::milliseconds patience) {
  const unsigned long ping = atom("_NET_WM_PING");
  ask(window.id, window.id, "WM_PROTOCOLS", {ping, CurrentTime, window.id}, NoEventMask);
  // It comes back to the root window.
  const auto isAnswer = [&](const XEvent& event) {
    const auto& words = event.xclient.data.l;
    return event.type == ClientMessage && event.xclient.window == root_ &&
           words[0] == static_cast<long>(ping) && words[2] == static_cast<long>(window.id);
  };
  return awaitEvent(isAnswer, patience);
}

void Robot::spreadCloth(const Rgb& colour) {
  XSetWindowAttributes attributes{};
  attributes.background_pixel =
      static_cast<unsigned long>(colour.red << 16 | colour.green << 8 | colour.blue);
  attributes.override_redirect = True;
  const unsigned long cloth =
      XCreateWindow(display_, root_, 0, 0, 4000, 4000, 0, CopyFromParent, InputOutput,
                    CopyFromParent, CWBackPixel | CWOverrideRedirect, &attributes);
  XMapWindow(display_, cloth);
  XLowerWindow(display_, cloth);
  XSync(display_, False);
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

void Robot::sendButton(int button, bool isDown) {
  XTestFakeButtonEvent(display_, static_cast<unsigned>(button), isDown ? True : False, CurrentTime);
  XFlush(display_);
}

void Robot::pressButton(int button) { sendButton(button, true); }

void Robot::releaseButton(int button) { sendButton(button, false); }

void Robot::click(Point point) {
  movePointer(point);
  pressButton(Button1);
  releaseButton(Button1);
}

void Robot::movePointer(Point point) {
  XTestFakeMotionEvent(display_, DefaultScreen(display_), point.x, point.y, CurrentTime);
  XFlush(display_);
}

}  // namespace ratanka::screen
