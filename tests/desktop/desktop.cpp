#include "desktop/desktop.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <thread>

// After everything else: its macros leave no name alone.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/shape.h>

namespace ratanka {
namespace {

using std::chrono::milliseconds;

bool waitFor(const std::function<bool()>& holds) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (!holds()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(milliseconds(20));
  }
  return true;
}

pid_t spawn(const std::vector<std::string>& command, const std::vector<std::string>& variables,
            bool isSilent) {
  const pid_t child = fork();
  if (child != 0) return child;
  for (const std::string& variable : variables) {
    const std::size_t equals = variable.find('=');
    setenv(variable.substr(0, equals).c_str(), variable.substr(equals + 1).c_str(), 1);
  }
  if (isSilent) {
    const int nothing = open("/dev/null", O_WRONLY);
    dup2(nothing, STDOUT_FILENO);
    dup2(nothing, STDERR_FILENO);
  }
  std::vector<char*> arguments;
  for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  execvp(arguments[0], arguments.data());
  _exit(127);
}

void end(pid_t process) {
  if (process <= 0) return;
  kill(process, SIGTERM);
  if (!waitFor([process] { return waitpid(process, nullptr, WNOHANG) != 0; })) {
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
  }
}

// Starts a server on a free display and reads its number.
pid_t startServer(PixelSize size, std::string& displayName) {
  int ends[2];
  if (pipe(ends) != 0) return 0;
  const std::string screen = std::to_string(size.width) + 'x' + std::to_string(size.height) + "x24";
  const pid_t server = spawn({"Xvfb", "-displayfd", std::to_string(ends[1]), "-screen", "0", screen,
                              "-nolisten", "tcp", "-noreset"},
                             {}, true);
  close(ends[1]);
  char sign = 0;
  displayName = ":";
  while (read(ends[0], &sign, 1) == 1 && sign != '\n') displayName += sign;
  close(ends[0]);
  return server;
}

Rgb colourIn(XImage& image, int x, int y) {
  const unsigned long value = XGetPixel(&image, x, y);
  const auto part = [value](int shift) { return static_cast<int>((value >> shift) & 0xff); };
  return {part(16), part(8), part(0)};
}

}  // namespace

PrivateDesktop::PrivateDesktop(PixelSize size) {
  server_ = startServer(size, displayName_);
  display_ = XOpenDisplay(displayName_.c_str());
  if (display_ == nullptr) {
    ADD_FAILURE() << "no display";
    return;
  }
  windowManager_ = spawn({"openbox"}, {"DISPLAY=" + displayName_}, true);
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
  if (display_ != nullptr) XCloseDisplay(display_);
  end(server_);
}

void PrivateDesktop::startProgram(const std::vector<std::string>& variables) {
  std::vector<std::string> all = variables;
  all.push_back("DISPLAY=" + displayName_);
  all.emplace_back("QT_QPA_PLATFORM=xcb");
  program_ = spawn({RATANKA_PROGRAM}, all, false);
}

int PrivateDesktop::waitForEnd() {
  int status = 0;
  if (!waitFor([&] { return waitpid(program_, &status, WNOHANG) != 0; })) return -1;
  program_ = 0;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int PrivateDesktop::xdotool(const std::string& arguments) const {
  const std::string command =
      "DISPLAY=" + displayName_ + " xdotool " + arguments + " >/dev/null 2>&1";
  return std::system(command.c_str());  // NOLINT(cert-env33-c): a test's own words
}

void PrivateDesktop::click(int x, int y) const {
  xdotool("mousemove " + std::to_string(x) + ' ' + std::to_string(y) + " click 1");
}

bool PrivateDesktop::hasWindow(const std::string& title) const {
  return xdotool("search --onlyvisible --name '^" + title + "$'") == 0;
}

bool PrivateDesktop::waitForWindow(const std::string& title) const {
  return waitFor([&] { return hasWindow(title); });
}

bool PrivateDesktop::waitForActive(const std::string& title) const {
  const std::string check = "DISPLAY=" + displayName_ +
                            " xdotool getactivewindow getwindowname 2>/dev/null | grep -qx '" +
                            title + "'";
  return waitFor([&] { return std::system(check.c_str()) == 0; });  // NOLINT(cert-env33-c)
}

bool PrivateDesktop::waitUntilGone(const std::string& title) const {
  return waitFor([&] { return !hasWindow(title); });
}

Rgb PrivateDesktop::pixel(int x, int y) const {
  XImage* const image =
      XGetImage(display_, DefaultRootWindow(display_), x, y, 1, 1, AllPlanes, ZPixmap);
  if (image == nullptr) return {};
  const Rgb seen = colourIn(*image, 0, 0);
  XDestroyImage(image);
  return seen;
}

std::vector<ScreenPoint> PrivateDesktop::pixelsOf(const Rgb& colour, ScreenPoint corner,
                                                  PixelSize size) const {
  std::vector<ScreenPoint> places;
  XImage* const image = XGetImage(display_, DefaultRootWindow(display_), corner.x, corner.y,
                                  static_cast<unsigned>(size.width),
                                  static_cast<unsigned>(size.height), AllPlanes, ZPixmap);
  if (image == nullptr) return places;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      if (colourIn(*image, x, y) == colour) places.push_back({corner.x + x, corner.y + y});
    }
  }
  XDestroyImage(image);
  return places;
}

unsigned long PrivateDesktop::find(const std::string& title) const {
  const std::string command = "DISPLAY=" + displayName_ +
                              " xdotool search --onlyvisible --name '^" + title +
                              "$' 2>/dev/null | tail -n 1";
  const std::unique_ptr<FILE, decltype(&pclose)> answer(popen(command.c_str(), "r"), &pclose);
  unsigned long window = 0;
  if (!answer || std::fscanf(answer.get(), "%lu", &window) != 1) {  // NOLINT(cert-err34-c)
    ADD_FAILURE() << "no window " << title;
  }
  return window;
}

ScreenPoint PrivateDesktop::place(const std::string& title) const {
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
  const auto moveTo = [this](int x, int y) {
    xdotool("mousemove " + std::to_string(x) + ' ' + std::to_string(y));
    std::this_thread::sleep_for(milliseconds(30));
  };
  moveTo(from.x, from.y);
  xdotool("mousedown " + std::to_string(button));
  for (int step = 1; step <= 4; ++step) {
    moveTo(from.x + (to.x - from.x) * step / 4, from.y + (to.y - from.y) * step / 4);
  }
  xdotool("mouseup " + std::to_string(button));
  std::this_thread::sleep_for(milliseconds(100));
}

void PrivateDesktop::spreadCloth() {
  XSetWindowAttributes attributes{};
  attributes.override_redirect = True;
  attributes.event_mask = ButtonPressMask;
  const Window cloth =
      XCreateWindow(display_, DefaultRootWindow(display_), 0, 0, 4000, 4000, 0, CopyFromParent,
                    InputOutput, CopyFromParent, CWOverrideRedirect | CWEventMask, &attributes);
  XMapWindow(display_, cloth);
  XLowerWindow(display_, cloth);
  XSync(display_, False);
}

bool PrivateDesktop::clothWasPressed() {
  XSync(display_, False);
  XEvent event;
  bool pressed = false;
  while (XCheckTypedEvent(display_, ButtonPress, &event) == True) pressed = true;
  return pressed;
}

std::string PrivateDesktop::darkness(int x, int y, PixelSize size, int light) const {
  std::string shape;
  for (int row = 0; row < size.height; ++row) {
    for (int column = 0; column < size.width; ++column) {
      const Rgb colour = pixel(x + column, y + row);
      shape += colour.red + colour.green + colour.blue < light ? '#' : '.';
    }
    shape += '\n';
  }
  return shape;
}

bool PrivateDesktop::waitForPixel(int x, int y, const Rgb& colour) const {
  return waitFor([&] { return pixel(x, y) == colour; });
}

}  // namespace ratanka
