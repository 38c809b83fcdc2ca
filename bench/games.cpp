#include <filesystem>
#include <fstream>

#include "figure.h"
#include "measures.h"
#include "platform/plain/twister_random.h"
#include "sheets/rules/sums.h"

namespace ratanka::bench {
namespace {

using namespace std::chrono_literals;

constexpr int kMalá = 0;  // their buttons in the menu
constexpr int kHádanka = 6;
constexpr int kMazeSide = 200;

void measurePiškôrky(Robot& robot, const Programs& programs, int seconds) {
  const OpenWindow window(robot, programs.ratanka);
  TwisterRandom random;
  earnReward(robot, window, kHádanka, sheets::hádanka::ShowStart(random));
  const Process::Usage usage = usageBeyondSheet(robot, window, seconds);
  print({"Piškôrky beyond their sheet: wake-ups a second", usage.wakeUps, "", 10});
  print({"Piškôrky beyond their sheet: of one core", usage.cpuSeconds * 100, "%", 0.5});
}

// A copy of the program with a maze of walls and ways in turn.
std::filesystem::path withGreatMaze(const std::string& program) {
  std::filesystem::path folder = std::filesystem::temp_directory_path() / "ratanka-great-maze";
  std::filesystem::create_directories(folder);
  std::filesystem::copy_file(program, folder / "ratanka",
                             std::filesystem::copy_options::overwrite_existing);
  std::ofstream maze(folder / "bludisko.txt");
  maze << kMazeSide << ',' << kMazeSide << '\n';
  for (int row = 0; row < kMazeSide; ++row) {
    std::string cells(kMazeSide, '.');
    for (int column = row % 2; column < kMazeSide; column += 3) {
      cells[static_cast<std::size_t>(column)] = '#';
    }
    if (row == 0) cells[1] = 's';
    if (row == kMazeSide - 1) cells[kMazeSide - 3] = 'f';
    maze << cells << '\n';
  }
  return folder;
}

// From an arrow key to the painted step, to and fro before the maze's first wall.
void measureSteps(Robot& robot) {
  constexpr Area kTop{{0, 0}, 400, 60};  // where the figure stands
  constexpr int kSteps = 60;
  std::vector<double> samples;
  for (int step = 0; step < kSteps; ++step) {
    const std::string before = robot.look(kTop);
    const Time pressed = robot.strike(step % 2 == 0 ? Key::right : Key::left);
    samples.push_back(milliseconds(pressed, robot.awaitChange(kTop, before)));
    rest(30ms);
  }
  print({"a step in it: 99th percentile", percentile(samples, 99), "ms", 16.7});
}

void measureMaze(Robot& robot, const Programs& programs) {
  const std::filesystem::path folder = withGreatMaze(programs.ratanka.command.front());
  {
    const OpenWindow window(robot, {{folder / "ratanka"}, programs.ratanka.corner});
    TwisterRandom random;
    earnReward(robot, window, kMalá, sheets::malá::ShowStart(random));
    const std::string before = robot.look(kSheetEdge);
    const Time called = std::chrono::steady_clock::now();
    robot.click(kReward);
    const Time painted = robot.awaitChange(kSheetEdge, before);
    print({"opening a maze of 200 x 200", milliseconds(called, painted), "ms", 100});
    robot.awaitFocus(window.process().id());
    rest(1s);
    measureSteps(robot);
  }
  std::filesystem::remove_all(folder);
}

}  // namespace

void measureGames(Robot& robot, const Programs& programs, int seconds) {
  measurePiškôrky(robot, programs, seconds);
  measureMaze(robot, programs);
}

}  // namespace ratanka::bench
