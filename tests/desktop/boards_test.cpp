#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <fstream>
#include <map>
#include <thread>

#include "desktop/home.h"
#include "desktop/processes.h"
#include "desktop/reward.h"
#include "platform/plain/twister_random.h"
#include "sheets/rules/chains.h"
#include "sheets/rules/products.h"

// The falling blocks, the puzzle and the piano as a child meets them.
namespace ratanka {
namespace {

void pause(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

constexpr auto kBlocks = "Rátanka - hra TETRIS";
constexpr auto kAfterPause = "Rátanka - hra Tetris";
constexpr int kMenuBar = 20;  // its height

class BlocksOnScreen {
 public:
  explicit BlocksOnScreen(const PrivateDesktop& desktop, const std::string& title = kBlocks)
      : desktop_(desktop), corner_(desktop.place(title)) {}

  // A sign for each cell: '#' where a block is.
  std::string board() const {
    std::string seen;
    for (int row = 0; row < 18; ++row) {
      for (int column = 0; column < 10; ++column) {
        // The rim of every tile is black.
        const Rgb rim =
            desktop_.pixel(corner_.x + 10 + 16 * column + 4, corner_.y + kTop + 16 * row);
        seen += rim == Rgb{0, 0, 0} ? '#' : '.';
      }
    }
    return seen;
  }

  // By the menu's letters.
  void choose(char item) const {
    desktop_.xdotool("key alt+m");
    pause(150);
    desktop_.xdotool(std::string("key ") + item);
  }

 private:
  static constexpr int kTop = kMenuBar + 10;
  const PrivateDesktop& desktop_;
  ScreenPoint corner_;
};

sheets::Examples chains() {
  TwisterRandom random;
  return sheets::veľkéčísla::ShowStart(random);
}

TEST(Blocks, AGameEndsByItselfAndItsOptionsAreRefusedAndTaken) {
  const Home home;
  PrivateDesktop desktop(kScreen);
  desktop.startProgram({home.variable()});
  ASSERT_NO_FATAL_FAILURE(earn(desktop, 4, chains(), kBlocks));
  const BlocksOnScreen game(desktop);
  desktop.key("F2");
  pause(300);
  const std::string fresh = game.board();
  EXPECT_NE(fresh.find('#'), std::string::npos);
  desktop.key("Left Left Left");
  pause(100);
  EXPECT_NE(game.board(), fresh);
  // Dropped pieces pile up, until nothing moves any more.
  bool isOver = false;
  for (int piece = 0; piece < 40 && !isOver; ++piece) {
    desktop.key("Down");
    pause(200);
    if (piece < 8) continue;
    const std::string before = game.board();
    pause(600);
    isOver = game.board() == before;
  }
  EXPECT_TRUE(isOver);

  game.choose('n');
  ASSERT_TRUE(desktop.waitForActive("Konfigurácia TETRIS"));
  desktop.key("Tab Tab 1 2 Return");
  ASSERT_TRUE(desktop.waitForActive(kBlocks));  // the box
  desktop.key("Return");
  ASSERT_TRUE(desktop.waitUntilGone("Konfigurácia TETRIS"));
  game.choose('n');
  ASSERT_TRUE(desktop.waitForActive("Konfigurácia TETRIS"));
  desktop.key("Tab Tab 2 comma 5 Tab space Return");
  ASSERT_TRUE(desktop.waitUntilGone("Konfigurácia TETRIS"));
  EXPECT_EQ(home.read("Kockovka32.ini"),
            "[Kockovka32]\nStarting Level=2.5\nFill Lines=True\nPlay Sounds=False\nHide Splash=\n");
  // By the menu's letters, and then by keys that still reach the game.
  game.choose('h');
  pause(400);
  const std::string filled = game.board();
  EXPECT_NE(filled.find('#', 100), std::string::npos);
  desktop.key("Left Left");
  pause(100);
  EXPECT_NE(game.board().substr(0, 90), filled.substr(0, 90));
  desktop.key("F4");
  EXPECT_TRUE(desktop.waitUntilGone(kBlocks));
}

TEST(Blocks, AGameEndsWithItsWindowAndWithItsSheet) {
  PrivateDesktop desktop(kScreen);
  desktop.startProgram();
  ASSERT_NO_FATAL_FAILURE(earn(desktop, 4, chains(), kBlocks));
  desktop.key("F2");
  pause(300);
  desktop.key("alt+F4");
  EXPECT_TRUE(desktop.waitUntilGone(kBlocks));

  clickIn(desktop, kSheetCorner, 345, 465);  // the reward once more
  ASSERT_TRUE(desktop.waitForActive(kBlocks));
  desktop.key("F2");
  pause(300);
  desktop.key("p");
  const std::string paused = std::string(kAfterPause) + " : Pauza";
  ASSERT_TRUE(desktop.waitForActive(paused));
  clickIn(desktop, kSheetCorner, 476, 460);
  ASSERT_TRUE(desktop.waitForActive(kMenu));
  EXPECT_TRUE(desktop.waitUntilGone(paused));
  clickIn(desktop, kMenuCorner, 120, 252);
  ASSERT_TRUE(desktop.waitForActive(kCard));
  clickIn(desktop, kCardCorner, 181, 430);
  EXPECT_EQ(desktop.waitForEnd(), 0);
}

constexpr auto kPuzzle = "Pucle";
constexpr auto kList = "Výsledková listina";

class PuzzleOnScreen {
 public:
  explicit PuzzleOnScreen(const PrivateDesktop& desktop)
      : desktop_(desktop), corner_(desktop.place(kPuzzle)) {}

  void chooseSmallest() const {
    desktop_.click(corner_.x + 95, corner_.y + kMenuBar + 300);
    pause(300);
    desktop_.key("Home Return");
    pause(300);
  }

  // Learns how the tiles look while the board is in order.
  void learn() {
    for (int place = 0; place < 8; ++place) looks_[look(place)] = static_cast<char>('1' + place);
  }

  void shuffle() const {
    desktop_.click(corner_.x + 190, corner_.y + kMenuBar + 300);
    pause(300);
  }

  // A sign for each place; 0 is the hole.
  std::string board() const {
    std::string seen;
    for (int place = 0; place < 9; ++place) {
      const auto known = looks_.find(look(place));
      seen += known == looks_.end() ? '0' : known->second;
    }
    return seen;
  }

  void press(int place) const {
    desktop_.click(left(place) + 35, top(place) + 35);
    pause(60);
  }

 private:
  int left(int place) const { return corner_.x + 35 + 70 * (place % 3); }
  int top(int place) const { return corner_.y + kMenuBar + 35 + 70 * (place / 3); }
  std::string look(int place) const {
    return desktop_.darkness(left(place) + 20, top(place) + 20, {30, 30});
  }

  const PrivateDesktop& desktop_;
  ScreenPoint corner_;
  std::map<std::string, char> looks_;
};

// The places to press one after another, by a shortest way.
std::vector<int> solve(const std::string& board) {
  const std::string wanted = "123456780";
  std::map<std::string, std::vector<int>> ways{{board, {}}};
  std::deque<std::string> open{board};
  while (!open.empty() && !ways.contains(wanted)) {
    const std::string now = open.front();
    open.pop_front();
    const int hole = static_cast<int>(now.find('0'));
    for (int place = 0; place < 9; ++place) {
      const int distance = std::abs(place % 3 - hole % 3) + std::abs(place / 3 - hole / 3);
      if (distance != 1) continue;
      std::string next = now;
      std::swap(next[static_cast<std::size_t>(hole)], next[static_cast<std::size_t>(place)]);
      if (ways.contains(next)) continue;
      ways[next] = ways[now];
      ways[next].push_back(place);
      open.push_back(next);
    }
  }
  return ways[wanted];
}

sheets::Examples products() {
  TwisterRandom random;
  return sheets::násobilka::ShowStart(random);
}

TEST(Puzzle, ASolvedBoardComesIntoTheListAndStaysThere) {
  const Home home;
  std::string emptyList;
  for (const bool isFirstRun : {true, false}) {
    PrivateDesktop desktop(kScreen);
    desktop.startProgram({home.variable(), "SDL_AUDIODRIVER=dummy"});
    ASSERT_NO_FATAL_FAILURE(earn(desktop, 2, products(), kPuzzle));
    const auto list = [&] {
      desktop.key("F2");
      EXPECT_TRUE(desktop.waitForActive(kList));
      pause(200);  // until it is painted
      const ScreenPoint corner = desktop.place(kList);
      const std::string seen = desktop.darkness(corner.x + 20, corner.y + 10, {240, 60});
      desktop.key("Return");
      EXPECT_TRUE(desktop.waitForActive(kPuzzle));
      return seen;
    };
    if (!isFirstRun) {
      EXPECT_TRUE(list() != emptyList);
      return;
    }
    emptyList = list();
    PuzzleOnScreen puzzle(desktop);
    puzzle.chooseSmallest();
    puzzle.learn();
    puzzle.shuffle();
    pause(1200);
    const std::vector<int> way = solve(puzzle.board());
    ASSERT_FALSE(way.empty()) << puzzle.board();
    for (const int place : way) puzzle.press(place);
    ASSERT_TRUE(desktop.waitForActive(kList));
    desktop.xdotool("type Janka");
    desktop.key("Return");
    ASSERT_TRUE(desktop.waitUntilGone(kList));
    std::string stored;  // the name comes after the time, once the box is gone
    EXPECT_TRUE(waitFor([&] {
      stored = home.read("Rátanka - hra Pucle.ini");
      return stored.find("Janka") != std::string::npos;
    })) << stored;
  }
}

sheets::Examples sums() {
  TwisterRandom random;
  return sheets::veľká::ShowStart(random);
}

TEST(Piano, AScaleIsPlayedWithHeldKeys) {
  constexpr auto kPiano = "Mini klavír - Rátanka";
  const Home home;
  PrivateDesktop desktop(kScreen);
  desktop.startProgram({"SDL_AUDIODRIVER=disk", "SDL_DISKAUDIOFILE=" + home.recording()});
  ASSERT_NO_FATAL_FAILURE(earn(desktop, 1, sums(), kPiano));
  const ScreenPoint corner = desktop.place(kPiano);
  constexpr Rgb kUp{0xff, 0xfd, 0xf5};
  constexpr Rgb kDown{0xff, 0xe3, 0x9a};
  constexpr std::array kNames{"z", "x", "c", "v", "b", "n", "m", "comma"};
  for (std::size_t note = 0; note < kNames.size(); ++note) {
    const int x = corner.x + 24 + 32 * static_cast<int>(note) + 16;
    const int y = corner.y + kMenuBar + 8 + 100;
    EXPECT_EQ(desktop.pixel(x, y), kUp) << kNames[note];
    desktop.xdotool(std::string("keydown ") + kNames[note]);
    EXPECT_TRUE(desktop.waitForPixel(x, y, kDown)) << kNames[note];
    pause(note == 0 ? 800 : 60);  // long enough to repeat
    EXPECT_EQ(desktop.pixel(x, y), kDown) << kNames[note];
    desktop.xdotool(std::string("keyup ") + kNames[note]);
    EXPECT_TRUE(desktop.waitForPixel(x, y, kUp)) << kNames[note];
  }
  desktop.key("alt+F4");
  EXPECT_TRUE(desktop.waitUntilGone(kPiano));
  std::ifstream recording(home.recording(), std::ios::binary);
  const std::string samples((std::istreambuf_iterator<char>(recording)), {});
  EXPECT_NE(samples.find_first_not_of('\0'), std::string::npos) << "nothing was heard";
}

}  // namespace
}  // namespace ratanka
