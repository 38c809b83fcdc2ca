#include <algorithm>
#include <cmath>
#include <random>

#include "figure.h"
#include "measures.h"
#include "platform/plain/twister_random.h"
#include "sheets/rules/chains.h"
#include "sheets/rules/products.h"
#include "sheets/rules/sums.h"

namespace ratanka::bench {
namespace {

using namespace std::chrono_literals;

// Their buttons in the menu.
constexpr int kVeľká = 1;
constexpr int kNásobilka = 2;
constexpr int kVeľkéčísla = 4;

constexpr auto kAlt = static_cast<Key>(0xffe9);
constexpr auto kF2 = static_cast<Key>(0xffbf);

// What lies beneath the menu of a window with so high a client area.
Area client(const Area& window, int height) {
  return {{window.at.x, window.at.y + window.height - height}, window.width, height};
}

Area inside(const Area& client, const Area& area) { return shifted(area, client.at); }

// A line down a column of the falling blocks: changes with whatever comes into it or leaves it.
Area column(const Area& client, int fromOne) {
  constexpr int kEdge = 10;
  constexpr int kCell = 16;
  constexpr int kRows = 18;
  return inside(client, {{kEdge + kCell * (fromOne - 1) + kCell / 2, kEdge}, 1, kCell * kRows});
}

// The game that is on is ended by its menu. Returns when the first piece of the next one is there.
void restart(Robot& robot) {
  constexpr auto kUnfolding = 200ms;  // of a menu
  robot.press(kAlt);
  robot.strike(static_cast<Key>('m'));
  robot.release(kAlt);
  rest(kUnfolding);
  robot.strike(static_cast<Key>('k'));
  rest(kUnfolding);
  robot.strike(kF2);
  rest(kUnfolding);
}

// How far the times from one painted row to the next lie from half a second.
void measureFalls(Robot& robot, const Area& client) {
  constexpr int kGames = 2;
  constexpr int kFalls = 12;  // of the first piece, which doesn't land so soon
  constexpr auto kMostOfAStep = 450ms;
  constexpr double kStep = 500;
  const Area fifth = column(client, 5);  // where every piece comes in
  std::vector<double> off;
  for (int game = 0; game < kGames; ++game) {
    restart(robot);
    Time last = robot.awaitChange(fifth, robot.look(fifth));
    for (int fall = 0; fall < kFalls; ++fall) {
      const std::string before = robot.look(fifth);
      rest(kMostOfAStep);
      const Time painted = robot.awaitChange(fifth, before);
      off.push_back(std::abs(milliseconds(last, painted) - kStep));
      last = painted;
    }
  }
  print({"a step of the blocks off by: median", median(off), "ms"});
  print({"a step of the blocks off by: worst", std::ranges::max(off), "ms", 3});
}

// From an arrow key to the painted move, into the first column and nowhere else: that a piece falls
// meanwhile isn't seen there.
void measureMoves(Robot& robot, const Area& client) {
  constexpr int kGames = 4;
  constexpr int kMoves = 25;  // in less time than the first piece takes to land
  constexpr int kToTheWall = 4;
  std::minstd_rand random;
  std::uniform_int_distribution moment(50, 250);  // milliseconds
  const Area first = column(client, 1);
  std::vector<double> samples;
  for (int game = 0; game < kGames; ++game) {
    restart(robot);
    const std::string empty = robot.look(first);
    for (int step = 0; step < kToTheWall; ++step) robot.strike(Key::left);
    robot.awaitChange(first, empty);
    for (int move = 0; move < kMoves; ++move) {
      robot.strike(Key::right);
      robot.awaitLook(first, empty);
      rest(std::chrono::milliseconds(moment(random)));
      const Time pressed = robot.strike(Key::left);
      samples.push_back(milliseconds(pressed, robot.awaitChange(first, empty)));
    }
  }
  print({"a key to its painted move: median", median(samples), "ms"});
  print({"a key to its painted move: 99th percentile", percentile(samples, 99), "ms", 20});
}

void measureBlocks(Robot& robot, const Programs& programs, int seconds) {
  constexpr int kHeight = 310;
  const OpenWindow window(robot, programs.ratanka);
  TwisterRandom random;
  earnReward(robot, window, kVeľkéčísla, sheets::veľkéčísla::ShowStart(random));
  const Process::Usage usage = usageBeyondSheet(robot, window, seconds, [&] { robot.strike(kF2); });
  print({"a game of blocks beyond its sheet: of one core", usage.cpuSeconds * 100, "%", 1});
  const Area board = client(robot.activeWindow(), kHeight);
  measureFalls(robot, board);
  measureMoves(robot, board);
}

// A part of a window that tells whether it is painted, and how it looks then.
struct Telling {
  Area area;
  std::string look;
};

Telling tellingOf(const Robot& robot, const Area& area) { return {area, robot.look(area)}; }

// From the press on the reward to the painted game, the first one that the program opens.
double openingMilliseconds(Robot& robot, const Telling& telling) {
  const Time called = std::chrono::steady_clock::now();
  robot.click(kReward);
  return milliseconds(called, robot.awaitLook(telling.area, telling.look));
}

constexpr int kOpenings = 3;  // each in a program of its own

// The middle of a tile of the puzzle, which has four a side at first.
Area tile(const Area& client, int row, int column) {
  constexpr int kSide = 54;
  constexpr int kSeen = 20;
  constexpr int kMargin = kSide / 2 + (kSide - kSeen) / 2;
  return inside(client,
                {{kMargin + kSide * (column - 1), kMargin + kSide * (row - 1)}, kSeen, kSeen});
}

// Moves the last tile to and fro, from the first sound on, and looks where it is to appear.
double longestFreeze(Robot& robot, const Area& client) {
  constexpr int kMoves = 20;
  Area from = tile(client, 4, 3);
  Area to = tile(client, 4, 4);
  double longest = 0;
  for (int move = 0; move < kMoves; ++move) {
    const std::string blank = robot.look(to);
    const Time pressed = std::chrono::steady_clock::now();
    robot.click(middle(from));
    longest = std::max(longest, milliseconds(pressed, robot.awaitChange(to, blank)));
    std::swap(from, to);
    rest(20ms);
  }
  return longest;
}

void earnPuzzle(Robot& robot, const OpenWindow& window) {
  TwisterRandom random;
  earnReward(robot, window, kNásobilka, sheets::násobilka::ShowStart(random));
}

void measurePuzzle(Robot& robot, const Programs& programs, int seconds) {
  constexpr int kHeight = 336;
  constexpr Area kShuffle{{142, 285}, 101, 31};
  constexpr auto kSilence = 11s;  // after which the sound device is given back
  const Program program = withSound(programs.ratanka);
  Area board;
  Telling telling;
  {
    const OpenWindow window(robot, program);
    earnPuzzle(robot, window);
    const Process::Usage usage = usageBeyondSheet(robot, window, seconds, [&] {
      board = client(robot.activeWindow(), kHeight);
      telling = tellingOf(robot, tile(board, 1, 1));
      robot.click(middle(inside(board, kShuffle)));
      rest(kSilence);
    });
    print({"a running puzzle beyond its sheet: of one core", usage.cpuSeconds * 100, "%", 0.2});
  }
  std::vector<double> openings;
  std::vector<double> freezes;
  for (int opening = 0; opening < kOpenings; ++opening) {
    const OpenWindow window(robot, program);
    earnPuzzle(robot, window);
    openings.push_back(openingMilliseconds(robot, telling));
    robot.awaitFocus(window.process().id());
    rest(1s);
    freezes.push_back(longestFreeze(robot, board));
  }
  print({"opening the puzzle: median", median(openings), "ms", 60});
  print({"its first sound: longest freeze", std::ranges::max(freezes), "ms", 150});
}

void earnPiano(Robot& robot, const OpenWindow& window) {
  TwisterRandom random;
  earnReward(robot, window, kVeľká, sheets::veľká::ShowStart(random));
}

void measurePiano(Robot& robot, const Programs& programs, int seconds) {
  constexpr int kHeight = 219;
  constexpr Area kSomeKeys{{24, 80}, 100, 20};
  const Program program = withSound(programs.ratanka);
  Telling telling;
  {
    const OpenWindow window(robot, program);
    earnPiano(robot, window);
    const Process::Usage usage = usageBeyondSheet(robot, window, seconds, [&] {
      telling = tellingOf(robot, inside(client(robot.activeWindow(), kHeight), kSomeKeys));
    });
    print({"a silent piano beyond its sheet: of one core", usage.cpuSeconds * 100, "%", 1});
  }
  std::vector<double> openings;
  for (int opening = 0; opening < kOpenings; ++opening) {
    const OpenWindow window(robot, program);
    earnPiano(robot, window);
    openings.push_back(openingMilliseconds(robot, telling));
  }
  print({"opening the piano: median", median(openings), "ms", 60});
}

}  // namespace

void measureBoards(Robot& robot, const Programs& programs, int seconds) {
  measureBlocks(robot, programs, seconds);
  measurePuzzle(robot, programs, seconds);
  measurePiano(robot, programs, seconds);
}

}  // namespace ratanka::bench
