#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "fakes.h"
#include "piskorky/rules/game.h"

namespace ratanka::piskorky {
namespace {

using Cells = std::vector<int>;

FakeRandom naming(const Cells& cells) {
  FakeRandom chance;
  for (const int cell : cells) chance.draw(cell, kCells);
  return chance;
}

// Ticks until nothing is due. More than a handful is a game that never comes to rest.
std::optional<Outcome> settle(Game& game, FakeRandom& chance) {
  for (int round = 0; game.hasWork(); ++round) {
    if (round == 9) throw std::runtime_error("no rest");
    if (const auto outcome = game.tick(chance)) return outcome;
  }
  return std::nullopt;
}

std::string cells(const Game& game) {
  std::string result;
  for (int cell = 0; cell < kCells; ++cell) {
    result += game.s(cell) == Mark::none ? "." : text(game.s(cell));
  }
  return result;
}

// Behind the cells: whose turn it is, lblnum, the strokes, and the games won and lost.
std::string picture(const Game& game) {
  return cells(game) + ' ' + std::string(text(game.turn())) + std::to_string(game.lblnum()) + ' ' +
         game.strokes().to_string() + ' ' + std::to_string(game.won()) + ':' +
         std::to_string(game.lost());
}

// The lines from Line5(0) to Line5(7), as the computer looks at them too.
constexpr int kThrees[8][3] = {{0, 1, 2}, {3, 4, 5}, {6, 7, 8}, {0, 3, 6},
                               {1, 4, 7}, {2, 5, 8}, {0, 4, 8}, {2, 4, 6}};

char at(const std::string& board, int cell) { return board[static_cast<std::size_t>(cell)]; }

Lines full(const std::string& board, char mark) {
  Lines lines;
  for (std::size_t line = 0; line < 8; ++line) {
    const auto& [a, b, c] = kThrees[line];
    lines[line] = at(board, a) == mark && at(board, b) == mark && at(board, c) == mark;
  }
  return lines;
}

// The first gap beside two equal marks, in a line its last cell before the others.
const int* firstGap(const std::string& board) {
  for (const auto& line : kThrees) {
    for (const int gap : {2, 1, 0}) {
      const char one = at(board, line[(gap + 1) % 3]);
      const char other = at(board, line[(gap + 2) % 3]);
      if (at(board, line[gap]) == '.' && one != '.' && one == other) return &line[gap];
    }
  }
  return nullptr;
}

std::string with(std::string board, int cell, char mark) {
  board[static_cast<std::size_t>(cell)] = mark;
  return board;
}

// Plays every move of the child against every reply of the computer.
class EveryGame : public testing::Test {
 protected:
  void childMoves(const Game& game) {
    const std::string board = cells(game);
    if (HasFailure() || !seen.insert(board).second) return;
    for (int cell = 0; cell < kCells; ++cell) {
      Game next = game;
      next.play(cell);
      if (at(board, cell) != '.') {
        EXPECT_EQ(picture(next), picture(game));
        continue;
      }
      EXPECT_EQ(picture(next), with(board, cell, 'X') + " O" + std::to_string(game.lblnum() + 2) +
                                   " 00000000 0:0");
      expectClosed(next);
      computerReplies(next);
    }
  }

  void computerReplies(const Game& game) {
    const std::string board = cells(game);
    const bool isWon = full(board, 'X').any();
    if (isWon || board.find('.') == std::string::npos) {
      expectEnd(game, {}, board, isWon ? Outcome::won : Outcome::tied);
      return;
    }
    Cells filled;
    for (int cell = 0; cell < kCells; ++cell) {
      if (at(board, cell) != '.') filled.push_back(cell);
    }
    const int* const rule = filled.size() < 4 ? nullptr : firstGap(board);  // first two: chance
    if (rule != nullptr) rulesPlayed.insert(rule);
    for (int cell = 0; cell < kCells; ++cell) {
      if (at(board, cell) != '.' || (rule != nullptr && cell != *rule)) continue;
      Cells tries = filled;  // each filled cell is drawn in vain first
      tries.push_back(cell);
      if (rule != nullptr) tries.clear();
      const std::string replied = with(board, cell, 'O');
      if (full(replied, 'O').any()) {
        expectEnd(game, tries, replied, Outcome::lost);
        continue;
      }
      Game next = game;
      expectSettled(next, tries, std::nullopt);
      EXPECT_EQ(picture(next), replied + " X" + std::to_string(game.lblnum()) + " 00000000 0:0");
      childMoves(next);
    }
  }

  // Every try is an own draw, and the stream is reseeded before each.
  static void expectSettled(Game& game, const Cells& tries, std::optional<Outcome> outcome) {
    FakeRandom chance = naming(tries);
    EXPECT_EQ(settle(game, chance), outcome) << cells(game);
    EXPECT_EQ(chance.drawn, static_cast<int>(tries.size())) << cells(game);
    EXPECT_EQ(chance.reseeded, chance.drawn);
  }

  void expectEnd(Game game, const Cells& tries, const std::string& board, Outcome outcome) {
    const std::string number = std::to_string(game.lblnum());
    expectSettled(game, tries, outcome);
    const Lines x = full(board, 'X');
    const std::string strokes = ' ' + (x | full(board, 'O')).to_string();
    EXPECT_EQ(picture(game),
              board + (outcome == Outcome::lost ? " X" : " O") + number + strokes + " 0:0");
    expectAtRest(game);  // under its box
    const char* const counted = outcome == Outcome::won    ? " 1:0"
                                : outcome == Outcome::lost ? " 0:1"
                                                           : " 0:0";
    for (int twice = 0; twice < 2; ++twice) {
      game.finish();
      EXPECT_EQ(picture(game), board + ' ' + number + strokes + counted);
      expectAtRest(game);
    }
    if (x.count() == 2) ++doubleLines;
    if (board.find('.') == std::string::npos) ++(x.any() ? fullWins : ties);
  }

  static void expectClosed(const Game& game) {
    Game clicked = game;
    for (int cell = 0; cell < kCells; ++cell) clicked.play(cell);
    EXPECT_EQ(picture(clicked), picture(game));
  }

  static void expectAtRest(Game game) {
    expectClosed(game);
    EXPECT_FALSE(game.hasWork());
    const std::string before = picture(game);
    FakeRandom none;
    EXPECT_EQ(game.tick(none), std::nullopt);
    EXPECT_EQ(picture(game), before);
  }

  std::set<std::string> seen;
  std::set<const int*> rulesPlayed;
  int doubleLines = 0;
  int fullWins = 0;
  int ties = 0;
};

constexpr auto kFresh = "......... X1 00000000 ";

TEST_F(EveryGame, IsPlayedByTheRules) {
  const Game fresh;
  EXPECT_EQ(picture(fresh), std::string(kFresh) + "0:0");
  EXPECT_FALSE(fresh.hasWork());
  childMoves(fresh);
  EXPECT_EQ(rulesPlayed.size(), 24u);
  EXPECT_GT(doubleLines, 0);
  EXPECT_GT(fullWins, 0);
  EXPECT_GT(ties, 0);
}

// Plays the child's moves, and the computer's where chance names them.
std::optional<Outcome> play(Game& game, const Cells& moves, const Cells& replies) {
  FakeRandom chance = naming(replies);
  std::optional<Outcome> outcome;
  for (const int cell : moves) {
    game.play(cell);
    outcome = settle(game, chance);
  }
  return outcome;
}

TEST(Visit, CountsItsGamesOverNewOnesThatMayComeUnderTheBox) {
  Game game;
  for (const bool isQuick : {false, true, false}) {
    EXPECT_EQ(play(game, {0, 1, 2}, {6, 7}), Outcome::won);
    if (!isQuick) game.finish();
    game.newGame();
    game.finish();
    EXPECT_EQ(play(game, {6, 7, 3}, {0, 1}), Outcome::lost);
    game.newGame();
  }
  play(game, {4, 0}, {8, 2});
  game.play(1);  // a reply is due
  game.newGame();
  EXPECT_EQ(picture(game), std::string(kFresh) + "3:3");
  EXPECT_FALSE(game.hasWork());
  play(game, {4}, {0});
  EXPECT_EQ(cells(game), "O...X....");
}

TEST(Visit, AClickQuickerThanTheScanDoesNotUndoTheComputersLine) {
  Game game;
  play(game, {6, 7}, {0, 1});
  game.play(3);
  FakeRandom none;
  EXPECT_EQ(game.tick(none), std::nullopt);
  EXPECT_EQ(cells(game), "OOOX..XX.");
  game.play(8);
  EXPECT_EQ(game.tick(none), Outcome::lost);
  EXPECT_EQ(picture(game), "OOOX..XXX O9 00000101 0:0");
}

}  // namespace
}  // namespace ratanka::piskorky
