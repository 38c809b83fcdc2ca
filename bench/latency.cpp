#include <stdexcept>

#include "figure.h"
#include "measures.h"
#include "platform/plain/twister_random.h"
#include "sheets/rules/sums.h"

namespace ratanka::bench {
namespace {

using namespace std::chrono_literals;

// Long enough for every paint before to be over, short enough for the cursor not to blink.
constexpr auto kSettled = 60ms;

// Types a digit into the box that has the keyboard, and takes it away again.
double digitMilliseconds(Robot& robot, const Area& box) {
  const std::string before = robot.look(box);
  const Time typed = robot.strike(digitKey('8'));
  const Time painted = robot.awaitChange(box, before);
  rest(kSettled);
  robot.strike(Key::backspace);
  return milliseconds(typed, painted);
}

double digitMilliseconds(Robot& robot, const OpenWindow& window, const Area& box) {
  robot.click(middle(box));
  robot.awaitFocus(window.process().id());
  rest(2 * kSettled);
  return digitMilliseconds(robot, box);
}

// Answers a row rightly.
double tickMilliseconds(Robot& robot, int row, const std::string& answer) {
  const std::string noTick = robot.look(tick(row));
  const std::string noResult = robot.look(shownResult(row));
  for (const char digit : answer) robot.strike(digitKey(digit));
  robot.press(Key::enter);
  rest(kSettled);
  if (robot.look(tick(row)) != noTick) throw std::runtime_error("a mark before the answer");

  const Time released = robot.release(Key::enter);
  const Time painted = robot.awaitChange(tick(row), noTick);
  rest(kSettled);
  if (robot.look(shownResult(row)) != noResult) throw std::runtime_error("a wrong answer");
  return milliseconds(released, painted);
}

}  // namespace

void measureDigits(Robot& robot, const Programs& programs, int pairs) {
  const OpenWindow bare(robot, programs.bareEdit);
  const OpenWindow ratanka(robot, programs.ratanka);
  openSheet(robot, ratanka);
  const Area bareBox{{bare.area().at.x + 24, bare.area().at.y + 16}, 39, 24};

  std::vector<double> ours;
  std::vector<double> theirs;
  for (int pair = 0; pair < pairs; ++pair) {
    ours.push_back(digitMilliseconds(robot, ratanka, answerBox(1)));
    theirs.push_back(digitMilliseconds(robot, bare, bareBox));
  }
  print({"typed digit, sheet: median", median(ours), "ms"});
  print({"typed digit, bare window: median", median(theirs), "ms"});
  print({"typed digit, ratio", median(ours) / median(theirs), "", 1.5});
}

void measureTicks(Robot& robot, const Programs& programs, int sets) {
  const OpenWindow ratanka(robot, programs.ratanka);
  openSheet(robot, ratanka);
  const std::string noTick = robot.look(tick(1));

  // A program that has just started draws the same examples as we do.
  TwisterRandom random;
  std::vector<double> samples;
  for (int set = 0; set < sets; ++set) {
    const sheets::Examples examples = sheets::malá::ShowStart(random);
    for (int row = 1; row <= sheets::kRows; ++row) {
      const auto& example = examples.at(static_cast<std::size_t>(row - 1));
      samples.push_back(tickMilliseconds(robot, row, std::to_string(example.Výsledok)));
    }
    robot.click(kFreshExamples);
    robot.movePointer({});
    robot.awaitLook(tick(1), noTick);
    rest(kSettled);
  }
  print({"tick after Enter: median", median(samples), "ms", 5});
  print({"tick after Enter: 99th percentile", percentile(samples, 99), "ms", 16.7});
}

}  // namespace ratanka::bench
