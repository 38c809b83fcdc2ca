#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <fstream>
#include <map>
#include <sstream>
#include <thread>

#include "desktop/processes.h"
#include "desktop/reward.h"
#include "maze/rules/maze_file.h"
#include "piskorky/rules/board.h"
#include "platform/plain/twister_random.h"
#include "sheets/rules/sums.h"

namespace ratanka {
namespace {

// The arrow keys of the shortest way through a maze.
std::string wayThrough(const maze::Maze& maze) {
  struct Step {
    const char* key;
    int down, right;
  };
  constexpr Step kSteps[] = {{"Left", 0, -1}, {"Up", -1, 0}, {"Right", 0, 1}, {"Down", 1, 0}};
  std::map<std::size_t, std::string> ways{{maze.index(maze.Player), ""}};
  std::deque<maze::Cell> open{maze.Player};
  while (!open.empty()) {
    const maze::Cell cell = open.front();
    open.pop_front();
    for (const Step& step : kSteps) {
      const maze::Cell next{cell.Row + step.down, cell.Col + step.right};
      if (!maze.Map(next) || ways.contains(maze.index(next))) continue;
      ways[maze.index(next)] = ways[maze.index(cell)] + ' ' + step.key;
      open.push_back(next);
    }
  }
  return ways[maze.index(maze.Finish)];
}

TEST(Games, TheMazeFromStartToFinishAgainAndOut) {
  std::stringstream text;
  text << std::ifstream(RATANKA_MAZE_FILE).rdbuf();
  const auto maze = std::get<maze::Maze>(maze::parseMaze(text.str()));
  const std::string way = wayThrough(maze);
  ASSERT_FALSE(way.empty());

  PrivateDesktop desktop(kScreen);
  desktop.startProgram();
  TwisterRandom random;
  doSheet(desktop, 0, sheets::malá::ShowStart(random));
  clickIn(desktop, kSheetCorner, 348, 460);
  const auto* const game = "Rátanka - hra Bludisko";
  const auto* const box = " Koniec Hry ";
  ASSERT_TRUE(desktop.waitForActive(game));
  // The next set takes the keyboard back to the sheet; the child goes back to the maze.
  ASSERT_TRUE(desktop.waitForActive(kSheet));
  const ScreenPoint corner = desktop.place(game);
  desktop.click(corner.x + 10, corner.y + 10);
  ASSERT_TRUE(desktop.waitForActive(game));

  desktop.xdotool("key --delay 8" + way);
  ASSERT_TRUE(desktop.waitForActive(box));
  desktop.key("Return");  // Yes
  ASSERT_TRUE(desktop.waitForActive(game));
  desktop.xdotool("key --delay 8" + way);
  ASSERT_TRUE(desktop.waitForActive(box));
  desktop.key("Escape");  // No
  EXPECT_TRUE(desktop.waitUntilGone(game));
  EXPECT_TRUE(desktop.hasWindow(kSheet));
}

class PiškôrkyOnScreen {
 public:
  explicit PiškôrkyOnScreen(const PrivateDesktop& desktop)
      : desktop_(desktop), corner_(desktop.place("Piškôrky")) {}

  // Fills the cells in their order until the box tells the end; its Enter closes it.
  void play() {
    pressNewGame();
    for (int cell = 0; cell < piskorky::kCells && !hasBox(); ++cell) {
      pressCell(cell);
      std::this_thread::sleep_for(std::chrono::milliseconds(60));
    }
    ASSERT_TRUE(waitFor([&] { return hasBox(); }));
    std::this_thread::sleep_for(std::chrono::milliseconds(100));  // until it has the keyboard
    desktop_.key("Return");
    ASSERT_TRUE(waitFor([&] { return !hasBox(); }));
  }

  void pressNewGame() { desktop_.click(corner_.x + 220, corner_.y + 20); }
  bool isEmpty() const {
    for (int cell = 0; cell < piskorky::kCells; ++cell) {
      if (isFilled(cell)) return false;
    }
    return true;
  }
  std::string counters() const {
    return desktop_.darkness(corner_.x + 168, corner_.y + 124, {100, 40}, 128);
  }
  void pressCell(int cell) {
    desktop_.click(corner_.x + cellX(cell) + 20, corner_.y + cellY(cell) + 20);
  }

 private:
  static int cellX(int cell) {
    return std::array{16, 72, 120}.at(static_cast<std::size_t>(cell % 3));
  }
  static int cellY(int cell) {
    return std::array{8, 64, 120}.at(static_cast<std::size_t>(cell / 3));
  }

  // Marks are blue; strokes over them are yellow.
  bool isFilled(int cell) const {
    for (int y = 6; y < 36; y += 2) {
      for (int x = 8; x < 34; x += 2) {
        const Rgb seen = desktop_.pixel(corner_.x + cellX(cell) + x, corner_.y + cellY(cell) + y);
        if (seen.blue > 120 && seen.red < 80) return true;
      }
    }
    return false;
  }

  bool hasBox() const { return desktop_.count("Piškôrky") == 2; }

  const PrivateDesktop& desktop_;
  ScreenPoint corner_;
};

TEST(Games, PiškôrkyToTheEndThenTheCardEndsAll) {
  PrivateDesktop desktop(kScreen);
  desktop.startProgram();
  TwisterRandom random;
  doSheet(desktop, 6, sheets::hádanka::ShowStart(random));
  clickIn(desktop, kSheetCorner, 340, 468);
  ASSERT_TRUE(desktop.waitForActive("Piškôrky"));
  ASSERT_TRUE(desktop.waitForActive(kSheet));  // the next set
  PiškôrkyOnScreen game(desktop);

  const std::string before = game.counters();
  // Not each game is won or lost.
  for (int go = 0; go < 20 && game.counters() == before; ++go) {
    ASSERT_NO_FATAL_FAILURE(game.play());
  }
  EXPECT_NE(game.counters(), before);

  game.pressNewGame();
  game.pressCell(4);
  EXPECT_TRUE(waitFor([&] { return !game.isEmpty(); }));
  game.pressNewGame();  // in the middle
  EXPECT_TRUE(waitFor([&] { return game.isEmpty(); }));

  // The sheet goes, then the program, with the game still open.
  clickIn(desktop, kSheetCorner, 476, 460);
  ASSERT_TRUE(desktop.waitForActive(kMenu));
  EXPECT_TRUE(desktop.hasWindow("Piškôrky"));
  clickIn(desktop, kMenuCorner, 120, 252);
  ASSERT_TRUE(desktop.waitForActive(kCard));
  clickIn(desktop, kCardCorner, 181, 430);
  EXPECT_EQ(desktop.waitForEnd(), 0);
}

}  // namespace
}  // namespace ratanka
