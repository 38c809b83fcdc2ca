#include "programs.h"

#include <algorithm>

namespace ratanka::bench {
namespace {

using namespace std::chrono_literals;

constexpr Area kFirstWindow{{0, 0}, 248, 285};
// Inside the button. The toolkit shows a window's picture as a whole, so this tells of all of it.
constexpr Area kTellingPixel{{28, 220}, 1, 1};
constexpr auto kSettled = 300ms;

// The bare background has one colour.
bool isEmpty(const std::string& pixels) {
  constexpr std::size_t kPixelBytes = 4;
  return std::equal(pixels.begin() + kPixelBytes, pixels.end(), pixels.begin());
}

Time startAt(Robot& robot, const Area& area) {
  awaitUntil(
      "an empty place", [&] { return isEmpty(robot.look(area)); }, 2ms);
  robot.forgetWindows();
  return std::chrono::steady_clock::now();
}

}  // namespace

Program withSound(const Program& program) {
  Program result{{"env", "SDL_AUDIODRIVER=dummy"}, program.corner};
  result.command.insert(result.command.end(), program.command.begin(), program.command.end());
  return result;
}

Programs Programs::in(const std::string& folder) {
  return {.ratanka = {{folder + "/ratanka"}, {388, 241}},
          .bare = {{folder + "/bench/bare_window"}, {388, 241}},
          .bareEdit = {{folder + "/bench/bare_window", "edit"}, {0, 0}}};
}

OpenWindow::OpenWindow(Robot& robot, const Program& program)
    : area_(shifted(kFirstWindow, program.corner)),
      started_(startAt(robot, area_)),
      process_(program.command) {
  const Area pixel = shifted(kTellingPixel, area_.at);
  const std::string before = robot.look(pixel);
  robot.awaitWindow();
  startMilliseconds_ = milliseconds(started_, robot.awaitChange(pixel, before));
}

void openSheet(Robot& robot, const OpenWindow& menu, int number) {
  rest(kSettled);
  const std::string before = robot.look(kSheetEdge);
  robot.click(sheetButton(number));
  robot.awaitChange(kSheetEdge, before);
  robot.movePointer({});
  robot.awaitFocus(menu.process().id());
  rest(kSettled);
}

void earnReward(Robot& robot, const OpenWindow& menu, int number,
                const sheets::Examples& examples) {
  constexpr auto kNextSet = 3500ms;
  openSheet(robot, menu, number);
  for (const sheets::Example& example : examples) {
    for (const char digit : std::to_string(example.Výsledok)) robot.strike(digitKey(digit));
    robot.strike(Key::enter);
    rest(60ms);
  }
  rest(kNextSet);
}

void clickAndAwaitWindow(Robot& robot, Point point) {
  constexpr auto kOpening = 500ms;
  robot.forgetWindows();
  robot.click(point);
  robot.awaitWindow();
  rest(kOpening);
}

}  // namespace ratanka::bench
