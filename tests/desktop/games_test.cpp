#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <fstream>
#include <map>
#include <sstream>
#include <thread>

#include "desktop/reward.h"
#include "maze/rules/maze_file.h"
#include "piskorky/rules/game.h"
#include "platform/twister_random.h"
#include "sheets/rules/sums.h"

namespace ratanka {
namespace {

using piskorky::Game;
using piskorky::Outcome;

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

// The chance of an outcome if the child plays for it from here on.
struct Plan {
  double chance = 0;
  int cell = 0;
};

// Chance that always picks one cell.
class OneCell : public Random {
 public:
  explicit OneCell(int cell) : cell_(cell) {}
  double next() override { return (cell_ + 0.5) / piskorky::kCells; }
  void reseedFromClock() override {}

 private:
  int cell_;
};

std::optional<Outcome> settle(Game& game, int reply) {
  OneCell random(reply);
  while (game.hasWork()) {
    if (const auto outcome = game.tick(random)) return outcome;
  }
  return std::nullopt;
}

std::string key(const Game& game) {
  std::string all;
  for (int cell = 0; cell < piskorky::kCells; ++cell) {
    all += static_cast<char>('0' + static_cast<int>(game.s(cell)));
  }
  return all;
}

Plan plan(const Game& game, Outcome wanted, std::map<std::string, Plan>& known) {
  const auto found = known.find(key(game));
  if (found != known.end()) return found->second;
  Plan best;
  best.chance = -1;
  for (int cell = 0; cell < piskorky::kCells; ++cell) {
    if (game.s(cell) != piskorky::Mark::none) continue;
    // Every reply that chance may give; where a rule replies they are all the same.
    double sum = 0;
    int replies = 0;
    for (int reply = 0; reply < piskorky::kCells; ++reply) {
      if (reply == cell || game.s(reply) != piskorky::Mark::none) continue;
      Game after = game;
      after.play(cell);
      const auto outcome = settle(after, reply);
      sum += outcome ? (*outcome == wanted ? 1 : 0) : plan(after, wanted, known).chance;
      ++replies;
    }
    if (replies == 0) {
      Game after = game;
      after.play(cell);
      sum = settle(after, cell) == wanted ? 1 : 0;
      replies = 1;
    }
    if (sum / replies > best.chance) best = {sum / replies, cell};
  }
  known[key(game)] = best;
  return best;
}

class PiškôrkyOnScreen {
 public:
  explicit PiškôrkyOnScreen(const PrivateDesktop& desktop)
      : desktop_(desktop), corner_(desktop.place("Piškôrky")) {}

  // Plays for an outcome until it comes; whether it came.
  bool playFor(Outcome wanted) {
    for (int game = 0; game < 40; ++game) {
      if (play(wanted) == wanted) return true;
    }
    return false;
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

  Outcome play(Outcome wanted) {
    pressNewGame();
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
    Game game;
    std::map<std::string, Plan> known;
    while (true) {
      const int cell = plan(game, wanted, known).cell;
      pressCell(cell);
      std::this_thread::sleep_for(std::chrono::milliseconds(60));
      game.play(cell);
      const int reply = newMark(game, cell);
      if (const auto outcome = settle(game, reply)) {
        // The box stands over the board; its Enter closes it.
        EXPECT_TRUE(desktop_.waitForActive("Piškôrky"));
        desktop_.key("Return");
        std::this_thread::sleep_for(std::chrono::milliseconds(60));
        return *outcome;
      }
    }
  }

  // The cell that the computer filled; the child's own where it didn't reply.
  int newMark(const Game& game, int own) const {
    for (int cell = 0; cell < piskorky::kCells; ++cell) {
      if (game.s(cell) == piskorky::Mark::none && isFilled(cell)) return cell;
    }
    return own;
  }

  const PrivateDesktop& desktop_;
  ScreenPoint corner_;
};

TEST(Games, PiškôrkyWonLostAndTiedThenTheCardEndsAll) {
  PrivateDesktop desktop(kScreen);
  desktop.startProgram();
  TwisterRandom random;
  doSheet(desktop, 6, sheets::hádanka::ShowStart(random));
  clickIn(desktop, kSheetCorner, 340, 468);
  ASSERT_TRUE(desktop.waitForActive("Piškôrky"));
  ASSERT_TRUE(desktop.waitForActive(kSheet));  // the next set
  PiškôrkyOnScreen game(desktop);

  const std::string atFirst = game.counters();
  EXPECT_TRUE(game.playFor(Outcome::won));
  const std::string afterWin = game.counters();
  EXPECT_TRUE(afterWin != atFirst);
  EXPECT_TRUE(game.playFor(Outcome::lost));
  EXPECT_TRUE(game.counters() != afterWin);
  EXPECT_TRUE(game.playFor(Outcome::tied));

  game.pressNewGame();
  game.pressCell(4);
  game.pressNewGame();  // in the middle
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  EXPECT_TRUE(game.isEmpty());

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
