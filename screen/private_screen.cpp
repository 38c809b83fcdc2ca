#include "screen/private_screen.h"

#include <unistd.h>

#include <stdexcept>
#include <vector>

#include "screen/robot.h"

namespace ratanka::screen {
namespace {

std::array<int, 2> openPipe() {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  return ends;
}

// On a free display, whose number it writes there.
std::vector<std::string> server(PixelSize size, int number) {
  const std::string screen = std::to_string(size.width) + 'x' + std::to_string(size.height) + "x24";
  return {"Xvfb", "-displayfd", std::to_string(number), "-screen", "0", screen, "-nolisten",
          "tcp",  "-noreset"};
}

std::string readDisplay(const std::array<int, 2>& number) {
  close(number[1]);
  std::string display = ":";
  for (char digit = 0; read(number[0], &digit, 1) == 1 && digit != '\n';) display += digit;
  close(number[0]);
  if (display == ":") throw std::runtime_error("no X server");
  return display;
}

}  // namespace

PrivateScreen::PrivateScreen(PixelSize size)
    : number_(openPipe()),
      server_(server(size, number_[1]), {.says = "/dev/null"}),
      display_(readDisplay(number_)),
      windowManager_({"openbox", "--sm-disable"},
                     {.variables = {variable()}, .says = "/dev/null"}) {
  Robot(display_).awaitWindowManager();
}

PrivateScreen::~PrivateScreen() {
  windowManager_.end();
  server_.end();
}

}  // namespace ratanka::screen
