#include "figure.h"
#include "measures.h"

namespace ratanka::bench {
namespace {

using namespace std::chrono_literals;

constexpr auto kSettled = 250ms;
constexpr int kWarmUps = 3 * kSheetButtons;
constexpr double kMemoryLimit = 5;  // percent; a window left behind by each visit is many times it

struct Visit {
  double opening = 0;  // milliseconds
  double closing = 0;
};

// From a sheet, where the menu left `nothing` at its edge. Returns the milliseconds.
double goBack(Robot& robot, const OpenWindow& window, const std::string& nothing) {
  const std::string sheet = robot.look(kSheetEdge);
  const Time left = std::chrono::steady_clock::now();
  robot.click(kBackToMenu);
  const Time gone = robot.awaitChange(kSheetEdge, sheet);
  robot.awaitLook(kSheetEdge, nothing);
  robot.awaitFocus(window.process().id());
  rest(kSettled);
  return milliseconds(left, gone);
}

Visit visit(Robot& robot, const OpenWindow& window, Point button) {
  const std::string nothing = robot.look(kSheetEdge);
  const Time called = std::chrono::steady_clock::now();
  robot.click(button);
  const Time painted = robot.awaitChange(kSheetEdge, nothing);
  robot.awaitFocus(window.process().id());
  rest(kSettled);
  return {milliseconds(called, painted), goBack(robot, window, nothing)};
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

// What a program's memory grew by, in percent, from looks at it after equal rounds. Once, at the
// second visit or at the twentieth, the heap takes a tenth more and keeps it, and now and then the
// toolkit throws pictures away. A leak shows in every round, so in the middle one of them too.
double growth(const std::vector<double>& looks) {
  std::vector<double> rounds;
  for (std::size_t at = 1; at < looks.size(); ++at) rounds.push_back(looks[at] - looks[at - 1]);
  return median(rounds) * static_cast<double>(rounds.size()) / looks.front() * 100;
}

}  // namespace

void measureVisits(Robot& robot, const Programs& programs, int visits, int restSeconds) {
  OpenWindow window(robot, programs.ratanka);
  robot.awaitFocus(window.process().id());
  rest(kSettled);
  // Every sheet some times, to have its pictures and fonts and a heap that has found its size.
  for (int count = 0; count < kWarmUps; ++count) {
    visit(robot, window, sheetButton(count % kSheetButtons));
  }

  std::vector<double> memory{window.process().ownMemoryKilobytes()};
  std::vector<double> opening;
  std::vector<double> closing;
  for (int count = 0; count < visits; ++count) {
    const Visit times = visit(robot, window, sheetButton(count % kSheetButtons));
    opening.push_back(times.opening);
    closing.push_back(times.closing);
    const bool isRoundOver = (count + 1) % kSheetButtons == 0;
    if (isRoundOver) memory.push_back(window.process().ownMemoryKilobytes());
  }

  print({"opening a sheet: median", median(opening), "ms"});
  print({"opening a sheet: 99th percentile", percentile(opening, 99), "ms", 50});
  print({"closing a sheet: median", median(closing), "ms"});
  print({"closing a sheet: 99th percentile", percentile(closing, 99), "ms", 30});
  const std::string after = "after " + std::to_string(visits) + " visits";
  print({"own memory " + after + ": growth", growth(memory), "%", kMemoryLimit});
  const std::string nothing = robot.look(kSheetEdge);
  measureRestAtSheet(robot, window, restSeconds, "at rest " + after);
  goBack(robot, window, nothing);
  print({"from the card's OK to the end", endMilliseconds(robot, window), "ms", 200});
}

}  // namespace ratanka::bench
