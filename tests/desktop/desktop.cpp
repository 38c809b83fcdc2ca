#include "desktop/desktop.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <regex>
#include <sstream>
#include <thread>

#include "desktop/processes.h"

// After everything else: its macros leave no name alone.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/shape.h>

namespace ratanka {
namespace {

// Starts a server on a free display and reads its number.
pid_t startServer(PixelSize size, std::string& displayName) {
  int ends[2];
  if (pipe(ends) != 0) return 0;
  const std::string screen = std::to_string(size.width) + 'x' + std::to_string(size.height) + "x24";
  const pid_t server = start({.words = {"Xvfb", "-displayfd", std::to_string(ends[1]), "-screen",
                                        "0", screen, "-nolisten", "tcp", "-noreset"},
                              .says = "/dev/null"});
  close(ends[1]);
  char sign = 0;
  displayName = ":";
  while (read(ends[0], &sign, 1) == 1 && sign != '\n') displayName += sign;
  close(ends[0]);
  return server;
}

bool matches(const std::string& title, const std::string& expression) {
  return std::regex_match(title, std::regex(expression, std::regex::extended));
}

Rgb colourIn(XImage& image, int x, int y) {
  const unsigned long value = XGetPixel(&image, x, y);
  const auto part = [value](int shift) { return static_cast<int>((value >> shift) & 0xff); };
  return {part(16), part(8), part(0)};
}

}  // namespace

PrivateDesktop::PrivateDesktop(PixelSize size, WindowSystem system) {
  server_ = startServer(size, displayName_);
  display_ = XOpenDisplay(displayName_.c_str());
  if (display_ == nullptr) {
    ADD_FAILURE() << "no display";
    return;
  }
  if (system == WindowSystem::wayland) {
    weston_ = std::make_unique<Weston>(displayName_, size, kCloth);
    return;
  }
  windowManager_ =
      start({.words = {"openbox"}, .variables = {"DISPLAY=" + displayName_}, .says = "/dev/null"});
  const Atom check = XInternAtom(display_, "_NET_SUPPORTING_WM_CHECK", False);
  EXPECT_TRUE(waitFor([&] {
    int count = 0;
    Atom* const properties = XListProperties(display_, DefaultRootWindow(display_), &count);
    bool found = false;
    for (int i = 0; i < count; ++i) found = found || properties[i] == check;
    if (properties != nullptr) XFree(properties);
    return found;
  })) << "no window manager";
}

PrivateDesktop::~PrivateDesktop() {
  end(program_);
  end(windowManager_);
  weston_.reset();
  if (display_ != nullptr) XCloseDisplay(display_);
  end(server_);
}

void PrivateDesktop::startProgram(const std::vector<std::string>& variables,
                                  const std::string& says, std::vector<std::string> command) {
  std::vector<std::string> all{"DISPLAY=" + displayName_, "QT_QPA_PLATFORM=xcb"};
  if (weston_) all = weston_->variables();
  all.insert(all.end(), variables.begin(), variables.end());
  command.emplace_back(RATANKA_PROGRAM);
  program_ = start({.words = command, .variables = all, .says = says});
}

int PrivateDesktop::waitForEnd() {
  int status = 0;
  if (!waitFor([&] { return waitpid(program_, &status, WNOHANG) != 0; })) return -1;
  program_ = 0;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void PrivateDesktop::send(int signal) const { kill(program_, signal); }

void PrivateDesktop::pullThePlug() {
  XCloseDisplay(display_);  // or this test would go with it
  display_ = nullptr;
  kill(server_, SIGKILL);
  waitpid(server_, nullptr, 0);
  server_ = 0;
}

int PrivateDesktop::xdotool(const std::string& arguments) const {
  const std::string command =
      "DISPLAY=" + displayName_ + " xdotool " + arguments + " >/dev/null 2>&1";
  return std::system(command.c_str());  // NOLINT(cert-env33-c): a test's own words
}

void PrivateDesktop::moveTo(int x, int y) const {
  xdotool("mousemove " + std::to_string(x) + ' ' + std::to_string(y));
  if (weston_) weston_->waitForPointerOf(program_);
}

void PrivateDesktop::click(int x, int y) const {
  moveTo(x, y);
  // As long as a finger takes.
  xdotool("mousedown 1 sleep 0.05 mouseup 1");
}

int PrivateDesktop::count(const std::string& title) const {
  if (weston_) {
    return static_cast<int>(std::ranges::count_if(
        weston_->windows(), [&](const auto& window) { return matches(window.title, title); }));
  }
  return static_cast<int>(search(title).size());
}

bool PrivateDesktop::waitForWindow(const std::string& title) const {
  return waitFor([&] { return hasWindow(title); });
}

std::string PrivateDesktop::active() const {
  if (weston_) {
    const std::vector<Weston::Window> windows = weston_->windows();
    return windows.empty() ? std::string() : windows.front().title;
  }
  const std::string title =
      answerOf("DISPLAY=" + displayName_ + " xdotool getactivewindow getwindowname 2>/dev/null");
  return title.substr(0, title.find('\n'));
}

testing::AssertionResult PrivateDesktop::waitForActive(const std::string& title) const {
  if (waitFor([&] { return matches(active(), title); })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "active: " << active();
}

bool PrivateDesktop::waitUntilGone(const std::string& title) const {
  return waitFor([&] { return !hasWindow(title); });
}

Rgb PrivateDesktop::pixel(int x, int y) const {
  const std::vector<Rgb> seen = picture({x, y}, {1, 1});
  return seen.empty() ? Rgb{} : seen.front();
}

std::vector<Rgb> PrivateDesktop::picture(ScreenPoint corner, PixelSize size) const {
  std::vector<Rgb> seen;
  XImage* const image = XGetImage(display_, DefaultRootWindow(display_), corner.x, corner.y,
                                  static_cast<unsigned>(size.width),
                                  static_cast<unsigned>(size.height), AllPlanes, ZPixmap);
  if (image == nullptr) return seen;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) seen.push_back(colourIn(*image, x, y));
  }
  XDestroyImage(image);
  return seen;
}

std::vector<ScreenPoint> PrivateDesktop::pixelsOf(const Rgb& colour, ScreenPoint corner,
                                                  PixelSize size) const {
  std::vector<ScreenPoint> places;
  ScreenPoint at = corner;
  for (const Rgb& seen : picture(corner, size)) {
    if (seen == colour) places.push_back(at);
    if (++at.x < corner.x + size.width) continue;
    at = {corner.x, at.y + 1};
  }
  return places;
}

std::vector<unsigned long> PrivateDesktop::search(const std::string& title) const {
  std::string answer;
  // A search that meets a window in the moment of its end breaks off.
  EXPECT_TRUE(waitFor([&] {
    answer = answerOf("DISPLAY=" + displayName_ + " xdotool search --onlyvisible --name '^" +
                      title + "$' 2>&1");
    return answer.find("X Error") == std::string::npos;
  })) << answer;
  std::istringstream numbers(answer);
  return {std::istream_iterator<unsigned long>(numbers), {}};
}

unsigned long PrivateDesktop::find(const std::string& title) const {
  const std::vector<unsigned long> found = search(title);
  EXPECT_FALSE(found.empty()) << "no window " << title;
  return found.empty() ? 0 : found.back();
}

Weston::Window PrivateDesktop::waylandWindow(const std::string& title) const {
  for (const Weston::Window& window : weston_->windows()) {
    if (matches(window.title, title)) return window;
  }
  ADD_FAILURE() << "no window " << title;
  return {};
}

void PrivateDesktop::clickMaximise(const std::string& title) const {
  const Weston::Window window = waylandWindow(title);
  click(window.corner.x + window.size.width - 41, window.corner.y + 14);
}

ScreenPoint PrivateDesktop::place(const std::string& title) const {
  if (weston_) return waylandWindow(title).corner;
  ScreenPoint corner;
  Window child = 0;
  XTranslateCoordinates(display_, find(title), DefaultRootWindow(display_), 0, 0, &corner.x,
                        &corner.y, &child);
  return corner;
}

std::vector<std::string> PrivateDesktop::shape(const std::string& title, PixelSize size) const {
  std::vector<std::string> rows(static_cast<std::size_t>(size.height),
                                std::string(static_cast<std::size_t>(size.width), '.'));
  int count = 0;
  int ordering = 0;
  XRectangle* const rectangles =
      XShapeGetRectangles(display_, find(title), ShapeBounding, &count, &ordering);
  for (int i = 0; i < count; ++i) {
    const XRectangle& part = rectangles[i];
    for (int y = part.y; y < part.y + part.height; ++y) {
      for (int x = part.x; x < part.x + part.width; ++x) {
        rows.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x)) = '#';
      }
    }
  }
  if (rectangles != nullptr) XFree(rectangles);
  return rows;
}

void PrivateDesktop::drag(int button, ScreenPoint from, ScreenPoint to) const {
  const auto pause = [](int time) { std::this_thread::sleep_for(std::chrono::milliseconds(time)); };
  moveTo(from.x, from.y);
  pause(30);
  xdotool("mousedown " + std::to_string(button));
  for (int step = 1; step <= 4; ++step) {
    pause(30);
    xdotool("mousemove " + std::to_string(from.x + (to.x - from.x) * step / 4) + ' ' +
            std::to_string(from.y + (to.y - from.y) * step / 4));
  }
  pause(30);
  xdotool("mouseup " + std::to_string(button));
  pause(100);
}

void PrivateDesktop::spreadCloth() {
  XSetWindowAttributes attributes{};
  attributes.background_pixel =
      static_cast<unsigned long>(kCloth.red << 16 | kCloth.green << 8 | kCloth.blue);
  attributes.override_redirect = True;
  const Window cloth =
      XCreateWindow(display_, DefaultRootWindow(display_), 0, 0, 4000, 4000, 0, CopyFromParent,
                    InputOutput, CopyFromParent, CWBackPixel | CWOverrideRedirect, &attributes);
  XMapWindow(display_, cloth);
  XLowerWindow(display_, cloth);
  XSync(display_, False);
}

std::string PrivateDesktop::darkness(int x, int y, PixelSize size, int light) const {
  std::string shape;
  int column = 0;
  for (const Rgb& colour : picture({x, y}, size)) {
    shape += colour.red + colour.green + colour.blue < light ? '#' : '.';
    if (++column % size.width == 0) shape += '\n';
  }
  return shape;
}

bool PrivateDesktop::waitForPixel(int x, int y, const Rgb& colour) const {
  return waitFor([&] { return pixel(x, y) == colour; });
}

}  // namespace ratanka
