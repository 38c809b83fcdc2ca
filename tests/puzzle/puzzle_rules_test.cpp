#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <string>
#include <unordered_map>

#include "fakes.h"
#include "platform/twister_random.h"
#include "puzzle/rules/game.h"
#include "puzzle/rules/name.h"
#include "puzzle/rules/records.h"

namespace ratanka::puzzle {
namespace {

constexpr int kSizes[] = {3, 4, 5, 6, 7};
constexpr int kSteps[] = {81, 256, 625, 1296, 2401};

// What a child sees, row behind row, a sign for each tile: 1 to 9 and on from there; 0 is the hole.
std::string tiles(const Board& board) {
  std::string seen;
  for (int place = 0; place < board.places(); ++place) {
    const int number = board.isVisible(place) ? std::stoi(board.caption(place)) : 0;
    seen += static_cast<char>('0' + number);
  }
  return seen;
}

std::string ordered(int Size) { return tiles(Board(Size)); }

// A walk up and down in turn: it leaves a board of 3 * 3 one move from the order, and one of 4 * 4
// in order.
class UpAndDown : public Random {
 public:
  double next() override { return (isUp_ = !isUp_) ? 0.5 : 0.75; }
  void reseedFromClock() override {}

 private:
  bool isUp_ = false;
};

TEST(PuzzleBoard, FillsTheWindowAtEverySize) {
  constexpr int kThirdOfSecondRow[][3] = {
      {175, 105, 70}, {135, 81, 54}, {115, 69, 46}, {100, 60, 40}, {85, 51, 34}};
  for (const int Size : kSizes) {
    const TileArea area = tileArea(Size, Size + 2);
    const auto& [left, top, side] = kThirdOfSecondRow[Size - 3];
    EXPECT_TRUE(area.left == left && area.top == top && area.side == side) << Size;
    EXPECT_FALSE(Board(Size).isVisible(Size * Size));
  }
  EXPECT_EQ(ordered(3), "123456780");
  EXPECT_EQ(Board(3).caption(48), "49");
}

TEST(PuzzleShuffle, IsAWalkOfTheHoleWithoutTheDrawsThatLeadOffTheBoard) {
  constexpr int kColumns[] = {-1, 1, 0, 0};
  constexpr int kRows[] = {0, 0, -1, 1};
  for (const int Size : kSizes) {
    TwisterRandom random;
    TwisterRandom same;  // all start in the same state
    Board shuffled(Size);
    shuffled.ShuffleBoard(random);
    Board walked(Size);
    for (int steps = 0; steps < kSteps[Size - 3];) {
      const int direction = same.below(4);
      const int column = walked.Blank() % Size + kColumns[direction];
      const int row = walked.Blank() / Size + kRows[direction];
      if (std::min(column, row) < 0 || std::max(column, row) == Size) continue;
      ASSERT_TRUE(walked.isNextToBlank(row * Size + column));
      walked.MoveTile(row * Size + column);
      ++steps;
    }
    EXPECT_EQ(tiles(shuffled), tiles(walked));
    EXPECT_EQ(random.next(), same.next());
  }
}

// A board can be solved if its pairs in the wrong order are as odd or even as the hole's way.
bool canBeSolved(const Board& board) {
  std::string now = tiles(board);
  now[static_cast<std::size_t>(board.Blank())] = static_cast<char>('0' + board.places());
  int parity = board.Blank() % board.Size() + board.Blank() / board.Size();
  for (auto one = now.begin(); one != now.end(); ++one) {
    parity +=
        static_cast<int>(std::count_if(one, now.end(), [&](char next) { return next < *one; }));
  }
  return parity % 2 == 0;  // from corner to corner it is even
}

TEST(PuzzleShuffle, CanAlwaysBeSolved) {
  TwisterRandom random;
  for (int shuffles = 0; shuffles < 1000; ++shuffles) {
    Board board(kSizes[shuffles % 5]);
    board.ShuffleBoard(random);
    ASSERT_TRUE(canBeSolved(board)) << board.Size();
  }
}

// For every 3 * 3 board that can be solved, the place to press on a shortest way.
std::unordered_map<std::string, int> shortestWays() {
  std::unordered_map<std::string, int> presses{{ordered(3), -1}};
  std::deque<Board> boards{Board(3)};
  for (; !boards.empty(); boards.pop_front()) {
    const Board& board = boards.front();
    for (int place = 0; place < board.places(); ++place) {
      if (!board.isNextToBlank(place)) continue;
      Board next = board;
      next.MoveTile(place);
      if (presses.emplace(tiles(next), board.Blank()).second) boards.push_back(next);
    }
  }
  return presses;
}

class PuzzleGame : public testing::Test {
 protected:
  // All that a form shows but the tiles.
  std::string picture() const {
    return std::string(game.shuffleCaption()) + (game.Solved() ? ", solved, " : ", open, ") +
           (game.isClockOn() ? "on, " : "off, ") + std::to_string(game.Seconds()) + ", " +
           game.caption();
  }
  static constexpr auto kAtRest = "Zamiešať, solved, off, 0, Pucle";

  UpAndDown random;
  Game game;
};

TEST_F(PuzzleGame, IsWonByAShortestWayFromEveryShuffle) {
  const auto presses = shortestWays();
  ASSERT_EQ(presses.size(), 181440u);
  TwisterRandom chance;
  game.chooseSize(3);
  for (int games = 0; games < 30; ++games) {
    game.shuffleOrReset(chance);
    Game::Press press;
    int moves = 0;
    while (!press.time) {
      ASSERT_LT(moves++, 31);
      game.tick();
      const int hole = game.board().Blank();
      press = game.press(presses.at(tiles(game.board())));
      ASSERT_EQ(press.movedTo, hole);
    }
    EXPECT_EQ(press.time, moves);
    EXPECT_EQ(tiles(game.board()), ordered(3));
  }
}

TEST_F(PuzzleGame, FreePlayHasNoClockAndNoTime) {
  EXPECT_EQ(tiles(game.board()), ordered(4));
  for (const int still : {0, 10, 15}) EXPECT_EQ(game.press(still).movedTo, std::nullopt);
  EXPECT_EQ(picture(), kAtRest);

  EXPECT_EQ(game.press(14).movedTo, 15);
  game.tick();
  EXPECT_EQ(picture(), "Nová hra, open, off, 0, Pucle");
  EXPECT_EQ(game.board().caption(15) + game.board().caption(14), "15");
  EXPECT_EQ(game.press(15).time, std::nullopt);
  EXPECT_EQ(picture(), kAtRest);
  EXPECT_EQ(tiles(game.board()), ordered(4));

  game.press(11);
  EXPECT_EQ(game.press(12).movedTo, std::nullopt);  // at the other end of the next row
  game.shuffleOrReset(random);
  EXPECT_EQ(tiles(game.board()), ordered(4));
  EXPECT_EQ(picture(), kAtRest);
}

TEST_F(PuzzleGame, AGameRunsToItsTimeAndTheNextOneFromZero) {
  game.chooseSize(3);
  game.shuffleOrReset(random);
  EXPECT_EQ(tiles(game.board()), "123450786");
  EXPECT_EQ(picture(), "Nová hra, open, on, 0, Pucle");
  game.tick();
  game.tick();
  EXPECT_EQ(game.press(0).movedTo, std::nullopt);  // one move short of the order wins nothing
  EXPECT_EQ(picture(), "Nová hra, open, on, 2, Čas: 2 s");
  EXPECT_EQ(game.press(8).time, 2);
  game.tick();
  EXPECT_EQ(picture(), "Zamiešať, solved, off, 0, Čas: 2 s");
  game.shuffleOrReset(random);
  EXPECT_EQ(picture(), "Nová hra, open, on, 0, Čas: 2 s");
  game.tick();
  EXPECT_EQ(picture(), "Nová hra, open, on, 1, Čas: 1 s");
}

TEST_F(PuzzleGame, IsGivenUpByTheButtonOrAnotherSizeButNotByTheSame) {
  const auto play = [&] {
    game.shuffleOrReset(random);
    game.tick();
    game.chooseSize(4);
    EXPECT_EQ(picture(), "Nová hra, open, on, 1, Čas: 1 s");
  };
  play();
  game.shuffleOrReset(random);
  EXPECT_EQ(picture(), kAtRest);
  play();
  game.chooseSize(7);
  EXPECT_EQ(picture(), kAtRest);
  EXPECT_EQ(tiles(game.board()), ordered(7));
}

TEST_F(PuzzleGame, AShuffleThatEndsInOrderIsWonByAnyPress) {
  game.shuffleOrReset(random);
  EXPECT_EQ(tiles(game.board()), ordered(4));
  EXPECT_EQ(game.press(0).time, 0);
}

TEST_F(PuzzleGame, TheClockWaitsWhileTheWindowIsMinimised) {
  const auto pass = [&](bool isMinimised) {
    game.setMinimised(isMinimised);
    game.tick();
    return picture();
  };
  EXPECT_EQ(pass(true), kAtRest);
  EXPECT_EQ(pass(false), kAtRest);
  game.shuffleOrReset(random);
  EXPECT_EQ(pass(false), "Nová hra, open, on, 1, Čas: 1 s");
  EXPECT_EQ(pass(true), "Nová hra, open, off, 1, Čas: 1 s");
  EXPECT_EQ(pass(true), "Nová hra, open, off, 1, Čas: 1 s");
  EXPECT_EQ(pass(false), "Nová hra, open, on, 2, Čas: 2 s");
  game.shuffleOrReset(random);
  EXPECT_EQ(pass(false), kAtRest);
}

class PuzzleRecords : public testing::Test {
 protected:
  std::string& stored(const std::string& key) {
    return settings.values["Rátanka - hra Pucle/Pucle/" + key];
  }
  FakeSettings settings;
  Records records{settings};
};

TEST_F(PuzzleRecords, ATimeIsOneIfItIsLessThanTheStoredOneAndNotZero) {
  for (const int none : {0, 9999}) EXPECT_FALSE(records.CheckBestTime(4, none));
  EXPECT_TRUE(settings.values.empty());
  EXPECT_TRUE(records.CheckBestTime(4, 9998));
  EXPECT_TRUE(records.CheckBestTime(4, 20));
  EXPECT_TRUE(records.CheckBestTime(5, 21));
  records.storeName(4, " Eva ");
  for (const int worse : {20, 21}) EXPECT_FALSE(records.CheckBestTime(4, worse));
  EXPECT_EQ(stored("4") + stored("4Hráč"), "20Eva");
  EXPECT_TRUE(records.CheckBestTime(4, 19));
  records.storeName(4, "");
  EXPECT_EQ(stored("4") + stored("4Hráč"), "19");
  EXPECT_EQ(stored("5"), "21");
}

TEST_F(PuzzleRecords, TheListHasALineForEverySize) {
  stored("3") = "9";
  stored("3Hráč") = "Žofia M.";
  stored("5") = "61";
  stored("5Hráč") = "";
  stored("7") = "1000";
  EXPECT_EQ(records.list(),
            "Hra\tČas\tHráč\r\n3\t9\tŽofia M.\r\n4\t-\t-\r\n5\t61\t\r\n6\t-\t-\r\n7\t1000\t-\r\n");
}

TEST_F(PuzzleRecords, NonsenseInTheStoreIsNoRecord) {
  for (const char* nonsense : {"", "abc", "-5", "0", "12x", "1.5", "1,5", "0x10", "10000",
                               "99999999999999999999", "\xFF\xC4"}) {
    stored("6") = nonsense;
    EXPECT_NE(records.list().find("\r\n6\t-\t"), std::string::npos) << nonsense;
    EXPECT_TRUE(records.CheckBestTime(6, 700)) << nonsense;
  }
  stored("6Hráč") = std::string(500, 'a');
  EXPECT_NE(records.list().find("\t" + std::string(20, 'a') + "\r\n"), std::string::npos);
}

std::string times(int count, const std::string& text) {
  return count == 0 ? "" : text + times(count - 1, text);
}

TEST(PuzzleName, IsTrimmedAndThenCutAtTwentyCharacters) {
  EXPECT_EQ(playerName("  Ján  Malý "), "Ján  Malý");
  EXPECT_EQ(playerName("    "), "");
  EXPECT_EQ(playerName("ľščťžýáíéúäňôĺŕďóĽŠČŤŽÝÁÍ"), "ľščťžýáíéúäňôĺŕďóĽŠČ");
  EXPECT_EQ(playerName("   abcdefghijklmnopqrs tuvw "), "abcdefghijklmnopqrs ");
  for (const char* character : {"a", "€", "\U0001F600", "c\u030C", "o\u0302\u0301",
                                "\U0001F44B\U0001F3FD", "\U0001F469\u200D\U0001F467"}) {
    EXPECT_EQ(playerName(times(25, character)), times(20, character)) << character;
  }
}

TEST(PuzzleName, BytesOfNoCharacterAreKeptAndCounted) {
  for (const std::string bytes : {"\x80", "\xC4", "\xE2\x82", "\xF0\x9F\x98", "\xFF"}) {
    EXPECT_EQ(playerName(bytes), bytes);
    EXPECT_EQ(playerName(times(25, bytes + "-")), times(10, bytes + "-"));
  }
  EXPECT_EQ(playerName(times(25, "\x80")), times(20, "\x80"));
  EXPECT_EQ(playerName(std::string_view("\U0001F600", 2)), "\xF0\x9F");
}

}  // namespace
}  // namespace ratanka::puzzle
