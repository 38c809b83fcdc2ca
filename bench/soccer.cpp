#include <filesystem>
#include <string>

#include "figure.h"
#include "measures.h"
#include "sheets/rules/products.h"

namespace ratanka::bench {
namespace {

using namespace std::chrono_literals;

constexpr int kDivision = 3;  // its button in the menu

// In the title and in the choice of an opponent.
constexpr Point kAgainstComputer{312, 206};
constexpr Point kBelko{416, 56};  // level 5

constexpr int kPitchHeight = 551;  // of the window, what lies beneath the menu
constexpr Area kBlueAtStart{{728, 264}, 33, 33};
constexpr auto kNewMatch = static_cast<Key>(0xffbe);  // F1

void clickInActive(Robot& robot, Point inside) {
  const Area area = robot.activeWindow();
  clickAndAwaitWindow(robot, {area.at.x + inside.x, area.at.y + inside.y});
}

// From an arrow key to Blue's first painted step. Each sample has a match of its own, in whose
// first moments nobody else comes near him.
void measureKey(Robot& robot) {
  constexpr int kSamples = 100;
  const Area match = robot.activeWindow();
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
  earnReward(robot, window, kDivision, sheets::delenie::ShowStart());
  const Process::Usage usage = usageBeyondSheet(robot, window, seconds, [&] {
    clickInActive(robot, kAgainstComputer);
    clickInActive(robot, kBelko);
  });
  print({"a match at level 5 beyond its sheet: wake-ups a second", usage.wakeUps});
  print({"a match at level 5 beyond its sheet: of one core", usage.cpuSeconds * 100, "%", 8});
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
