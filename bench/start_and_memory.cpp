#include <stdexcept>

#include "figure.h"
#include "measures.h"

namespace ratanka::bench {
namespace {

using namespace std::chrono_literals;

constexpr int kWarmUps = 2;

// In pairs, so that whatever else the machine does falls on both sides of a ratio.
struct Pairs {
  std::vector<double> ratanka;
  std::vector<double> bare;
  std::vector<double> ratios;

  void add(double ours, double theirs) {
    ratanka.push_back(ours);
    bare.push_back(theirs);
    ratios.push_back(ours / theirs);
  }
};

void report(const std::string& what, const char* unit, double limit, const Pairs& pairs) {
  print({what + ", menu", median(pairs.ratanka), unit});
  print({what + ", bare window", median(pairs.bare), unit});
  print({what + ", ratio", median(pairs.ratios), "", limit});
}

// One pixel tells of the start only while all the others come with it.
void requireWholePaint(Robot& robot, const Program& program) {
  const OpenWindow window(robot, program);
  const std::string first = robot.look(window.area());
  rest(500ms);
  if (robot.look(window.area()) != first) throw std::runtime_error("a window painted in parts");
}

double restingMegabytes(Robot& robot, const Program& program) {
  const OpenWindow window(robot, program);
  rest(1s);
  return window.process().memoryKilobytes() / 1024;
}

}  // namespace

void measureStart(Robot& robot, const Programs& programs, int pairs) {
  for (int warmUp = 0; warmUp < kWarmUps; ++warmUp) {
    requireWholePaint(robot, programs.ratanka);
    requireWholePaint(robot, programs.bare);
  }
  Pairs times;
  for (int pair = 0; pair < pairs; ++pair) {
    const double ratanka = OpenWindow(robot, programs.ratanka).startMilliseconds();
    const double bare = OpenWindow(robot, programs.bare).startMilliseconds();
    times.add(ratanka, bare);
  }
  report("start", "ms", 1.5, times);
}

void measureMemory(Robot& robot, const Programs& programs, int pairs) {
  Pairs sizes;
  for (int pair = 0; pair < pairs; ++pair) {
    sizes.add(restingMegabytes(robot, programs.ratanka), restingMegabytes(robot, programs.bare));
  }
  report("memory", "MB", 1.4, sizes);
}

}  // namespace ratanka::bench
