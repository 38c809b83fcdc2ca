#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

#include "figure.h"
#include "measures.h"

namespace ratanka::bench {
namespace {

using namespace std::chrono_literals;

constexpr auto kSocket = "ratanka-bench";
constexpr int kWidth = 1024;  // of the screen
constexpr int kHeight = 768;

// What of the screen tells of a window, wherever the compositor puts it: several rows cross it.
std::vector<std::string> glance(const Robot& robot) {
  constexpr int kApart = 100;
  std::vector<std::string> rows;
  for (int y = kApart; y < kHeight; y += kApart) rows.push_back(robot.look({{0, y}, kWidth, 1}));
  return rows;
}

// How long a program takes until it is seen, in milliseconds, and its memory then, in megabytes.
struct Figures {
  double start = 0;
  double memory = 0;
};

double restingMegabytes(const Process& process) {
  rest(1s);
  return process.memoryKilobytes() / 1024;
}

Figures showOnX11(Robot& robot, const Program& program) {
  const OpenWindow window(robot, program);
  return {window.startMilliseconds(), restingMegabytes(window.process())};
}

// A compositor whose screen is the whole display, empty and still. It shows a change at once: how
// long others wait for their next frame isn't the program's doing.
class Compositor {
 public:
  explicit Compositor(const Robot& robot) : process_(command()) {
    rest(2s);
    empty_ = glance(robot);
  }

  Figures show(const Robot& robot, const Program& program) const {
    const auto isEmpty = [&] { return glance(robot) == empty_; };
    awaitUntil("an empty screen", isEmpty, 2ms);
    const Time before = std::chrono::steady_clock::now();
    const Process shown({"env", "QT_QPA_PLATFORM=wayland",
                         std::string("WAYLAND_DISPLAY=") + kSocket, program.command.front()});
    awaitUntil(
        "a window", [&] { return !isEmpty(); }, 50us);
    const double start = milliseconds(before, std::chrono::steady_clock::now());
    return {start, restingMegabytes(shown)};
  }

 private:
  static std::vector<std::string> command() {
    const std::filesystem::path folder = std::getenv("XDG_RUNTIME_DIR");
    std::ofstream(folder / "weston.ini")
        << "[core]\nrepaint-window=16\n[shell]\npanel-position=none\nlocking=false\n"
           "animation=none\nclose-animation=none\nstartup-animation=none\n"
           "focus-animation=none\nbackground-color=0xff96fa14\n";
    return {"weston",
            "--backend=x11-backend.so",
            "--use-pixman",
            "--idle-time=0",
            "--width=" + std::to_string(kWidth),
            "--height=" + std::to_string(kHeight),
            std::string("--socket=") + kSocket,
            "--config=" + (folder / "weston.ini").string(),
            "--log=" + (folder / "weston.log").string()};
  }

  Process process_;
  std::vector<std::string> empty_;
};

}  // namespace

void measureWayland(Robot& robot, const Programs& programs, int pairs) {
  const Compositor compositor(robot);
  std::vector<double> starts, startRatios, sizes, sizeRatios;
  for (int pair = 0; pair < pairs; ++pair) {
    const Figures onX11 = showOnX11(robot, programs.ratanka);
    const Figures here = compositor.show(robot, programs.ratanka);
    starts.push_back(here.start);
    startRatios.push_back(here.start / onX11.start);
    sizes.push_back(here.memory);
    sizeRatios.push_back(here.memory / onX11.memory);
  }
  print({"start, menu on Wayland", median(starts), "ms"});
  print({"start, on Wayland to on X11", median(startRatios), "", 1.15});
  print({"memory, menu on Wayland", median(sizes), "MB"});
  print({"memory, on Wayland to on X11", median(sizeRatios), "", 1.15});
}

}  // namespace ratanka::bench
