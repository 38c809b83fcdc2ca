#include <X11/Xlib.h>

#include <filesystem>
#include <string>

#include "figure.h"
#include "measures.h"

namespace ratanka::bench {
namespace {

using namespace std::chrono_literals;

constexpr int kDivision = 3;  // its button in the menu
constexpr Point kReward{244 + 348, 133 + 468};
constexpr auto kPause = 3500ms;  // until the next set has come
constexpr auto kOpening = 500ms;

// In the title and in the choice of an opponent.
constexpr Point kAgainstComputer{312, 206};
constexpr Point kBelko{416, 56};  // level 5

constexpr int kPitchHeight = 551;  // of the window, what lies beneath the menu
constexpr Area kBlueAtStart{{728, 264}, 33, 33};
constexpr auto kNewMatch = static_cast<Key>(0xffbe);  // F1

// The place of the window that has the keyboard.
Area activeWindow() {
  Display* const display = XOpenDisplay(nullptr);
  Window active = 0;
  int revert = 0;
  XGetInputFocus(display, &active, &revert);
  Area area;
  Window child = 0;
  XTranslateCoordinates(display, active, DefaultRootWindow(display), 0, 0, &area.at.x, &area.at.y,
                        &child);
  XWindowAttributes attributes{};
  XGetWindowAttributes(display, active, &attributes);
  XCloseDisplay(display);
  area.width = attributes.width;
  area.height = attributes.height;
  return area;
}

void clickAndAwaitWindow(Robot& robot, Point point) {
  robot.forgetWindows();
  robot.click(point);
  robot.awaitWindow();
  rest(kOpening);
}

void clickInActive(Robot& robot, Point inside) {
  const Area area = activeWindow();
  clickAndAwaitWindow(robot, {area.at.x + inside.x, area.at.y + inside.y});
}

void doDivisions(Robot& robot) {
  for (const char quotient : std::string("121314215")) {
    robot.strike(digitKey(quotient));
    robot.strike(Key::enter);
    rest(60ms);
  }
  rest(kPause);
}

// From an arrow key to Blue's first painted step. Each sample has a match of its own, in whose
// first moments nobody else comes near him.
void measureKey(Robot& robot) {
  constexpr int kSamples = 100;
  const Area match = activeWindow();
  const Area blue = shifted(kBlueAtStart, {match.at.x, match.at.y + match.height - kPitchHeight});
  robot.strike(kNewMatch);
  rest(100ms);
  const std::string atStart = robot.look(blue);
  std::vector<double> samples;
  for (int sample = 0; sample < kSamples; ++sample) {
    robot.strike(kNewMatch);
    robot.awaitLook(blue, atStart);
    rest(std::chrono::milliseconds(50 + sample % 10));  // in no step with the ticks
    const Time pressed = std::chrono::steady_clock::now();
    robot.press(Key::left);
    samples.push_back(milliseconds(pressed, robot.awaitChange(blue, atStart)));
    robot.release(Key::left);
  }
  print({"a key to its first step: median", median(samples), "ms"});
  print({"a key to its first step: 99th percentile", percentile(samples, 99), "ms", 20});
}

void measureMatch(Robot& robot, const Programs& programs, int seconds) {
  const OpenWindow window(robot, programs.ratanka);
  openSheet(robot, window, kDivision);
  doDivisions(robot);
  const Process::Usage without = usageASecond(window.process(), seconds);
  clickAndAwaitWindow(robot, kReward);
  clickInActive(robot, kAgainstComputer);
  clickInActive(robot, kBelko);
  robot.movePointer({});
  const Process::Usage with = usageASecond(window.process(), seconds);
  print({"a match at level 5 beyond its sheet: wake-ups a second", with.wakeUps - without.wakeUps});
  print({"a match at level 5 beyond its sheet: of one core",
         (with.cpuSeconds - without.cpuSeconds) * 100, "%", 8});
  measureKey(robot);
}

}  // namespace

void measureSoccer(Robot& robot, const Programs& programs, int seconds) {
  measureMatch(robot, programs, seconds);
  const auto beside = std::filesystem::path(programs.bare.command.front());
  Process counting({beside.parent_path() / "match_ticks", std::to_string(seconds)});
  counting.awaitEnd();
}

}  // namespace ratanka::bench
