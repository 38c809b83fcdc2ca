#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "fakes.h"
#include "platform/plain/twister_random.h"
#include "puzzle/rules/game.h"
#include "puzzle/rules/name.h"
#include "puzzle/rules/records.h"

namespace ratanka::puzzle {
namespace {

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

TEST(PuzzleBoard, FillsTheWindowAtEverySize) {
  constexpr int kThirdOfSecondRow[][3] = {
      {175, 105, 70}, {135, 81, 54}, {115, 69, 46}, {100, 60, 40}, {85, 51, 34}};
  for (int Size = 3; Size <= 7; ++Size) {
    const TileArea area = tileArea(Size, Size + 2);
    const auto& [left, top, side] = kThirdOfSecondRow[Size - 3];
    EXPECT_TRUE(area.left == left && area.top == top && area.side == side) << Size;
    EXPECT_FALSE(Board(Size).isVisible(Size * Size));
  }
  EXPECT_EQ(ordered(3), "123456780");
  EXPECT_EQ(Board(3).caption(48), "49");
}

TEST(PuzzleShuffle, IsAWalkOfTheHoleWithoutTheDrawsThatLeadOffTheBoard) {
  constexpr int kSteps[] = {81, 256, 625, 1296, 2401};
  constexpr int kColumns[] = {-1, 1, 0, 0};
  constexpr int kRows[] = {0, 0, -1, 1};
  for (int Size = 3; Size <= 7; ++Size) {
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

class PuzzleGame : public testing::Test {
 protected:
  // A walk up and down in turn: it leaves a board of 3 * 3 one move from the order, and one of 4 *
  // 4 in order.
  void shuffle() {
    for (int draw = 0; draw < 256; ++draw) random.draw(2 + draw % 2, 4);
    game.shuffleOrReset(random);
    random.numbers.clear();
  }
  void reset() { game.shuffleOrReset(random); }

  // All that a form shows but the tiles.
  std::string picture() const {
    return std::string(game.shuffleCaption()) + (game.Solved() ? ", solved, " : ", open, ") +
           (game.isClockOn() ? "on, " : "off, ") + std::to_string(game.Seconds()) + ", " +
           game.caption();
  }
  std::string afterASecond(bool isMinimised = false) {
    game.setMinimised(isMinimised);
    game.tick();
    return picture();
  }

  static constexpr auto kAtRest = "Zamiešať, solved, off, 0, Pucle";

  FakeRandom random;
  Game game;
};

TEST_F(PuzzleGame, FreePlayHasNoClockAndNoTime) {
  EXPECT_EQ(tiles(game.board()), ordered(4));
  for (const int still : {0, 10, 15}) EXPECT_EQ(game.press(still).movedTo, std::nullopt);
  EXPECT_EQ(afterASecond(), kAtRest);
  EXPECT_EQ(game.press(14).movedTo, 15);
  EXPECT_EQ(afterASecond(), "Nová hra, open, off, 0, Pucle");
  EXPECT_EQ(game.board().caption(15) + game.board().caption(14), "15");
  EXPECT_EQ(game.press(15).time, std::nullopt);
  EXPECT_EQ(picture(), kAtRest);
  game.press(11);
  EXPECT_EQ(game.press(12).movedTo, std::nullopt);  // at the other end of the next row
  reset();
  EXPECT_EQ(tiles(game.board()), ordered(4));
  EXPECT_EQ(picture(), kAtRest);
}

TEST_F(PuzzleGame, AGameRunsToItsTimeAndTheNextOneFromZero) {
  game.chooseSize(3);
  shuffle();
  EXPECT_EQ(tiles(game.board()), "123450786");
  EXPECT_EQ(picture(), "Nová hra, open, on, 0, Pucle");
  EXPECT_EQ(afterASecond(), "Nová hra, open, on, 1, Čas: 1 s");
  EXPECT_EQ(afterASecond(true), "Nová hra, open, off, 1, Čas: 1 s");
  game.chooseSize(3);
  EXPECT_EQ(game.press(0).movedTo, std::nullopt);  // one move short of the order wins nothing
  EXPECT_EQ(afterASecond(), "Nová hra, open, on, 2, Čas: 2 s");
  EXPECT_EQ(game.press(8).time, 2);
  EXPECT_EQ(afterASecond(), "Zamiešať, solved, off, 0, Čas: 2 s");
  shuffle();
  EXPECT_EQ(picture(), "Nová hra, open, on, 0, Čas: 2 s");
}

TEST_F(PuzzleGame, IsGivenUpByTheButtonOrAnotherSize) {
  for (const int Size : {4, 7}) {
    shuffle();
    EXPECT_EQ(afterASecond(), "Nová hra, open, on, 1, Čas: 1 s");
    Size == 4 ? reset() : game.chooseSize(Size);
    EXPECT_EQ(afterASecond(), kAtRest);
    EXPECT_EQ(tiles(game.board()), ordered(Size));
  }
}

TEST_F(PuzzleGame, AShuffleThatEndsInOrderIsWonByAnyPress) {
  shuffle();
  EXPECT_EQ(tiles(game.board()), ordered(4));
  EXPECT_EQ(game.press(0).time, 0);
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
  for (const int time : {9998, 20}) EXPECT_TRUE(records.CheckBestTime(4, time));
  EXPECT_FALSE(records.CheckBestTime(4, 20));
  EXPECT_TRUE(records.CheckBestTime(7, 21));
  records.storeName(4, " Eva ");
  records.storeName(3, "");
  EXPECT_EQ(records.list(),
            "Hra\tČas\tHráč\r\n3\t-\t\r\n4\t20\tEva\r\n5\t-\t-\r\n6\t-\t-\r\n7\t21\t-\r\n");
  EXPECT_EQ(stored("4") + stored("4Hráč") + stored("7"), "20Eva21");
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
  EXPECT_EQ(playerName("   abcdefghijklmnopqrs tuvw "), "abcdefghijklmnopqrs ");
  for (const char* character : {"a", "ľ", "€", "\U0001F600", "c\u030C", "o\u0302\u0301",
                                "\U0001F44B\U0001F3FD", "\U0001F469\u200D\U0001F467", "\x80"}) {
    EXPECT_EQ(playerName(times(25, character)), times(20, character)) << character;
  }
  // Bytes of no character are kept, and each is one.
  for (const std::string bytes : {"\x80", "\xC4", "\xE2\x82", "\xF0\x9F\x98", "\xFF"}) {
    EXPECT_EQ(playerName(bytes), bytes);
    EXPECT_EQ(playerName(times(25, bytes)), times(25, bytes).substr(0, 20));
  }
  EXPECT_EQ(playerName(std::string_view("\U0001F600", 2)), "\xF0\x9F");
}

}  // namespace
}  // namespace ratanka::puzzle
