// Measures the program from outside, on the X display of the environment, which has to be empty
// and 1024 x 768 pixels large. Arguments: the folder of the build, and `--quick` for fewer runs.

#include <exception>
#include <iostream>
#include <string>

#include "measures.h"

namespace {

using namespace ratanka::bench;

struct Runs {
  int startPairs = 20;
  int memoryPairs = 5;
  int restSeconds = 10;
  int digitPairs = 100;
  int tickSets = 12;
  int visits = 15 * kSheetButtons;
};

constexpr Runs kQuick{.startPairs = 5,
                      .memoryPairs = 2,
                      .restSeconds = 3,
                      .digitPairs = 20,
                      .tickSets = 2,
                      .visits = 3 * kSheetButtons};

void measure(const Programs& programs, const Runs& runs) {
  Robot robot;
  // Without a window manager yet: what it draws around the bare window isn't the window's doing.
  measureStart(robot, programs, runs.startPairs);
  measureMemory(robot, programs, runs.memoryPairs);
  measureWayland(robot, programs, runs.startPairs);

  const Process windowManager({"openbox", "--sm-disable"});
  robot.awaitWindowManager();
  measureRest(robot, programs, runs.restSeconds);
  measureDigits(robot, programs, runs.digitPairs);
  measureTicks(robot, programs, runs.tickSets);
  measureVisits(robot, programs, runs.visits, runs.restSeconds);
  measureGames(robot, programs, runs.restSeconds);
  measureSoccer(robot, programs, runs.restSeconds);
  measureBoards(robot, programs, runs.restSeconds);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount < 2) {
    std::cerr << "usage: desktop_bench FOLDER [--quick]\n";
    return 2;
  }
  const bool isQuick = argumentCount > 2 && std::string(arguments[2]) == "--quick";
  try {
    measure(Programs::in(arguments[1]), isQuick ? kQuick : Runs{});
  } catch (const std::exception& error) {
    std::cerr << "desktop_bench: " << error.what() << '\n';
    return 2;
  }
  return 0;
}
