#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "piskorky/rules/game.h"

namespace ratanka::piskorky {
namespace {

// Chance that names the told cells, one a draw. Running out of them is a failure.
class Chance : public Random {
 public:
  explicit Chance(std::vector<int> cells = {}) : cells_(std::move(cells)) {}
  double next() override {
    EXPECT_EQ(reseeded, ++drawn);
    return (cells_.at(static_cast<std::size_t>(drawn - 1)) + 0.5) / 9;
  }
  void reseedFromClock() override { ++reseeded; }
  bool isUsedUp() const { return drawn == static_cast<int>(cells_.size()); }

  int drawn = 0;
  int reseeded = 0;

 private:
  std::vector<int> cells_;
};

// Ticks until nothing is due. More than a handful is a game that never comes to rest.
std::optional<Outcome> settle(Game& game, Chance& chance) {
  for (int round = 0; game.hasWork(); ++round) {
    if (round == 9) throw std::runtime_error("no rest");
    if (const auto outcome = game.tick(chance)) return outcome;
  }
  return std::nullopt;
}

std::string cells(const Game& game) {
  std::string result;
  for (int cell = 0; cell < 9; ++cell) {
    result += game.s(cell) == Mark::none ? "." : text(game.s(cell));
  }
  return result;
}

// All that can be seen of a game.
std::string picture(const Game& game) {
  const auto flags = [](std::initializer_list<bool> all) {
    std::string result;
    for (const bool one : all) result += one ? '1' : '0';
    return result;
  };
  const Game::Timers& timers = game.timers();
  return cells(game) + " turn " + std::string(text(game.turn())) + " lblnum " +
         std::to_string(game.lblnum()) + " flags " +
         flags({game.xWon(), game.oWon(), game.boardTied()}) + " strokes " +
         game.strokes().to_string() + " won " + std::to_string(game.won()) + " lost " +
         std::to_string(game.lost()) + " timers " +
         flags({timers.Timer1, timers.Timer2, timers.Timer3, timers.Timer4});
}

// The lines as they look on the board, row behind row, from Line5(0) to Line5(7).
const std::array<std::string, 8> kPictures{"###......", "...###...", "......###", "#..#..#..",
                                           ".#..#..#.", "..#..#..#", "#...#...#", "..#.#.#.."};

Lines full(const std::string& board, char mark) {
  Lines lines;
  for (std::size_t line = 0; line < 8; ++line) {
    bool isFull = true;
    for (std::size_t cell = 0; cell < 9; ++cell) {
      if (kPictures[line][cell] == '#' && board[cell] != mark) isFull = false;
    }
    lines[line] = isFull;
  }
  return lines;
}

// Two given cells and their target, in the order in which the computer looks.
constexpr int kRules[24][3] = {{0, 1, 2}, {0, 2, 1}, {1, 2, 0}, {3, 4, 5}, {3, 5, 4}, {4, 5, 3},
                               {6, 7, 8}, {6, 8, 7}, {7, 8, 6}, {0, 3, 6}, {0, 6, 3}, {3, 6, 0},
                               {1, 4, 7}, {1, 7, 4}, {4, 7, 1}, {2, 5, 8}, {2, 8, 5}, {5, 8, 2},
                               {0, 4, 8}, {0, 8, 4}, {4, 8, 0}, {2, 4, 6}, {2, 6, 4}, {4, 6, 2}};

// Plays every move of the child against every reply of the computer.
class EveryGame : public testing::Test {
 protected:
  void childMoves(const Game& game) {
    const std::string board = cells(game);
    if (HasFailure() || !seen.insert(board).second) return;
    for (int cell = 0; cell < 9; ++cell) {
      Game next = game;
      next.play(cell);
      if (board[static_cast<std::size_t>(cell)] != '.') {
        EXPECT_EQ(picture(next), picture(game));
        continue;
      }
      EXPECT_EQ(cells(next), with(board, cell, 'X'));
      EXPECT_EQ(next.turn(), Mark::O);
      EXPECT_EQ(next.lblnum(), game.lblnum() + 2);
      expectClosed(next);
      computerReplies(next);
    }
  }

  void computerReplies(const Game& game) {
    const std::string board = cells(game);
    const bool isWon = full(board, 'X').any();
    if (isWon || board.find('.') == std::string::npos) {
      Game ended = game;
      Chance none;
      EXPECT_EQ(settle(ended, none), isWon ? Outcome::won : Outcome::tied);
      EXPECT_EQ(cells(ended), board);
      expectEnd(game, ended);
      return;
    }
    const int* rule = std::ranges::count(board, 'O') < 2 ? nullptr : firstRule(board);
    if (rule) rulesPlayed.insert(rule);
    std::vector<int> filled;
    for (int cell = 0; cell < 9; ++cell) {
      if (board[static_cast<std::size_t>(cell)] != '.') filled.push_back(cell);
    }
    for (int cell = 0; cell < 9; ++cell) {
      const std::string replied = with(board, cell, 'O');
      if (board[static_cast<std::size_t>(cell)] != '.' || (rule && cell != rule[2])) continue;
      std::vector<int> tries = filled;  // each filled cell is drawn in vain first
      tries.push_back(cell);
      Chance chance(rule ? std::vector<int>{} : tries);
      Game next = game;
      const bool isLost = full(replied, 'O').any();
      const auto outcome = settle(next, chance);
      EXPECT_EQ(cells(next), replied) << "after " << board;
      EXPECT_TRUE(chance.isUsedUp()) << board;
      EXPECT_EQ(outcome, isLost ? std::optional(Outcome::lost) : std::nullopt) << replied;
      if (isLost) {
        expectEnd(game, next);
      } else {
        EXPECT_EQ(picture(next), replied + " turn X lblnum " + std::to_string(game.lblnum()) +
                                     " flags 000 strokes 00000000 won 0 lost 0 timers 1001");
        childMoves(next);
      }
    }
  }

  // `ended` waits with its box; `before` is the game at the move that ended it.
  void expectEnd(const Game& before, Game ended) {
    const std::string board = cells(ended);
    const Lines x = full(board, 'X');
    const Lines o = full(board, 'O');
    const auto expectPicture = [&](const char* turn, int won, int lost) {
      const std::string flags = x.any() ? "100" : o.any() ? "010" : "001";
      EXPECT_EQ(picture(ended),
                board + " turn " + turn + " lblnum " + std::to_string(before.lblnum()) + " flags " +
                    flags + " strokes " + (x | o).to_string() + " won " + std::to_string(won) +
                    " lost " + std::to_string(lost) + " timers 0000");
    };
    const char* turn = o.any() ? "X" : "O";
    expectPicture(turn, 0, 0);
    expectAtRest(ended);
    for (int twice = 0; twice < 2; ++twice) {
      ended.finish();
      expectPicture("", x.any() ? 1 : 0, o.any() ? 1 : 0);
      expectAtRest(ended);
    }
    if (x.count() == 2) ++doubleLines;
    if (board.find('.') == std::string::npos) ++(x.any() ? fullWins : ties);
  }

  static void expectClosed(const Game& game) {
    Game clicked = game;
    for (int cell = 0; cell < 9; ++cell) clicked.play(cell);
    EXPECT_EQ(picture(clicked), picture(game));
  }

  static void expectAtRest(const Game& game) {
    expectClosed(game);
    EXPECT_FALSE(game.hasWork());
    Game ticked = game;
    Chance none;
    EXPECT_EQ(ticked.tick(none), std::nullopt);
    EXPECT_EQ(picture(ticked), picture(game));
  }

  static std::string with(std::string board, int cell, char mark) {
    board[static_cast<std::size_t>(cell)] = mark;
    return board;
  }

  static const int* firstRule(const std::string& board) {
    for (const auto& rule : kRules) {
      const auto at = [&](int i) { return board[static_cast<std::size_t>(rule[i])]; };
      if (at(2) == '.' && at(0) != '.' && at(0) == at(1)) return rule;
    }
    return nullptr;
  }

  std::set<std::string> seen;
  std::set<const int*> rulesPlayed;
  int doubleLines = 0;
  int fullWins = 0;
  int ties = 0;
};

TEST_F(EveryGame, IsPlayedByTheRules) {
  const Game fresh;
  EXPECT_EQ(picture(fresh),
            "......... turn X lblnum 1 flags 000 strokes 00000000 won 0 lost 0 timers 1001");
  EXPECT_FALSE(fresh.hasWork());
  childMoves(fresh);
  EXPECT_EQ(rulesPlayed.size(), 24u);
  EXPECT_GT(doubleLines, 0);
  EXPECT_GT(fullWins, 0);
  EXPECT_GT(ties, 0);
}

// Plays the child's moves, and the computer's where chance names them.
std::optional<Outcome> play(Game& game, const std::vector<int>& moves, std::vector<int> replies) {
  Chance chance(std::move(replies));
  std::optional<Outcome> outcome;
  for (const int cell : moves) {
    game.play(cell);
    outcome = settle(game, chance);
  }
  return outcome;
}

TEST(Visit, CountsItsGamesOverNewOnes) {
  Game game;
  const auto visit = [&](const std::vector<int>& moves, std::vector<int> replies) {
    game.newGame();
    const auto outcome = play(game, moves, std::move(replies));
    game.finish();
    return outcome;
  };
  for (int wins = 1; wins <= 2; ++wins) {
    EXPECT_EQ(visit({0, 1, 2}, {6, 7}), Outcome::won);
    EXPECT_EQ(game.won(), wins);
  }
  EXPECT_EQ(visit({6, 7, 3}, {0, 1}), Outcome::lost);
  EXPECT_EQ(visit({6, 7, 3}, {0, 1}), Outcome::lost);
  EXPECT_EQ(visit({6, 7, 3}, {0, 1}), Outcome::lost);
  EXPECT_EQ(visit({4, 0}, {8, 2}), std::nullopt);  // left in the middle

  game.play(1);  // a reply is due
  game.newGame();
  EXPECT_EQ(picture(game),
            "......... turn X lblnum 1 flags 000 strokes 00000000 won 2 lost 3 timers 1001");
  EXPECT_FALSE(game.hasWork());
}

TEST(Visit, ANewGameUnderTheOpenBoxCountsTheOldOneAndIsPlayable) {
  Game game;
  ASSERT_EQ(play(game, {0, 1, 2}, {6, 7}), Outcome::won);
  game.newGame();
  game.finish();
  EXPECT_EQ(picture(game),
            "......... turn X lblnum 1 flags 000 strokes 00000000 won 1 lost 0 timers 1001");
  play(game, {4}, {0});
  EXPECT_EQ(cells(game), "O...X....");
}

TEST(Visit, AClickQuickerThanTheScanDoesNotUndoTheComputersLine) {
  Game game;
  play(game, {6, 7}, {0, 1});
  game.play(3);
  Chance none;
  EXPECT_EQ(game.tick(none), std::nullopt);
  EXPECT_EQ(cells(game), "OOOX..XX.");
  game.play(8);
  EXPECT_EQ(game.tick(none), Outcome::lost);
  EXPECT_EQ(picture(game),
            "OOOX..XXX turn O lblnum 9 flags 010 strokes 00000101 won 0 lost 0 timers 0000");
}

TEST(Visit, EndsWithAWordInTwoLines) {
  const auto shown = [](Outcome outcome) {
    const MessageBox box = outcomeBox(outcome);
    EXPECT_EQ(box.title, "Piškôrky");
    EXPECT_EQ(box.buttons, MessageBox::Buttons::ok);
    return (box.icon == MessageBox::Icon::exclamation ? "! " : "i ") + box.text;
  };
  EXPECT_EQ(shown(Outcome::lost), "i Prehral si.\r\n Nevadí, skús to znova!");
  EXPECT_EQ(shown(Outcome::won), "i Výborne!\r\n Vyhral si.");
  EXPECT_EQ(shown(Outcome::tied),
            "! Si úplne slabý hráč!\r\nUž to radšej vzdaj a venuj sa rátanke.");
}

}  // namespace
}  // namespace ratanka::piskorky
