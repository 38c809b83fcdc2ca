#include "figure.h"
#include "measures.h"

namespace ratanka::bench {
namespace {

using namespace std::chrono_literals;

constexpr auto kSettled = 250ms;
constexpr int kWarmUps = 3 * kSheetButtons;
// The heap breathes by some percent; a leak of a window a visit would be many times as much.
constexpr double kMemoryLimit = 1.05;

struct Visit {
  double opening = 0;  // milliseconds
  double closing = 0;
};

Visit visit(Robot& robot, const OpenWindow& window, Point button) {
  const std::string nothing = robot.look(kSheetEdge);
  const Time called = std::chrono::steady_clock::now();
  robot.click(button);
  const Time painted = robot.awaitChange(kSheetEdge, nothing);
  robot.awaitFocus(window.process().id());
  rest(kSettled);

  const std::string sheet = robot.look(kSheetEdge);
  const Time left = std::chrono::steady_clock::now();
  robot.click(kBackToMenu);
  const Time gone = robot.awaitChange(kSheetEdge, sheet);
  robot.awaitLook(kSheetEdge, nothing);
  robot.awaitFocus(window.process().id());
  rest(kSettled);
  return {milliseconds(called, painted), milliseconds(left, gone)};
}

double endMilliseconds(Robot& robot, OpenWindow& window) {
  const std::string nothing = robot.look(kCardEdge);
  robot.click(kCardButton);
  robot.awaitChange(kCardEdge, nothing);
  robot.awaitFocus(window.process().id());
  rest(kSettled);
  const Time pressed = std::chrono::steady_clock::now();
  robot.click(kCardOk);
  window.process().awaitEnd();
  return milliseconds(pressed, std::chrono::steady_clock::now());
}

}  // namespace

void measureVisits(Robot& robot, const Programs& programs, int visits) {
  OpenWindow window(robot, programs.ratanka);
  robot.awaitFocus(window.process().id());
  rest(kSettled);
  // Every sheet some times, to have its pictures and fonts and a heap that has found its size.
  for (int count = 0; count < kWarmUps; ++count) {
    visit(robot, window, sheetButton(count % kSheetButtons));
  }

  const double memoryBefore = window.process().ownMemoryKilobytes();
  std::vector<double> opening;
  std::vector<double> closing;
  for (int count = 0; count < visits; ++count) {
    const Visit times = visit(robot, window, sheetButton(count % kSheetButtons));
    opening.push_back(times.opening);
    closing.push_back(times.closing);
  }
  const double memoryAfter = window.process().ownMemoryKilobytes();

  print({"opening a sheet: median", median(opening), "ms"});
  print({"opening a sheet: 99th percentile", percentile(opening, 99), "ms", 50});
  print({"closing a sheet: median", median(closing), "ms"});
  print({"closing a sheet: 99th percentile", percentile(closing, 99), "ms", 30});
  print({"own memory after " + std::to_string(visits) + " visits, ratio",
         memoryAfter / memoryBefore, "", kMemoryLimit});
  print({"from the card's OK to the end", endMilliseconds(robot, window), "ms", 200});
}

}  // namespace ratanka::bench
