#include "soccer/rules/match.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <utility>

#include "soccer/rules/words.h"

namespace ratanka::soccer {
namespace {

// To a point of the lattice. The ball has columns 0 to 46 and rows 0 to 31, the players columns 1
// to 45 and rows 1 to 31; the mouths of the goals are rows 12 to 20.
void put(Piece& piece, int column, int row) {
  piece.Left = 120 + 240 * column;
  piece.Top = 120 + 240 * row;
}

Held keys(unsigned bits) {
  return {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0};
}

// All that makes up a match.
std::string picture(const Match& match) {
  std::ostringstream result;
  for (const Piece* piece : {&match.Red, &match.Blue, &match.Ball})
    result << piece->Left << ',' << piece->Top << ' ' << piece->Width << 'x' << piece->Height
           << ' ';
  result << match.BallStepX << ',' << match.BallStepY << ' ' << match.RedGoals << ':'
         << match.BlueGoals << ' ';
  for (const Held* held : {&match.redHeld, &match.blueHeld})
    result << held->up << held->down << held->left << held->right << ' ';
  return result.str() + (match.isPaused ? "paused" : "runs");
}

// Unlike a fresh match in everything.
Match inFullSwing() {
  Match match{.BallStepX = -240,
              .BallStepY = 0,
              .RedGoals = 3,
              .BlueGoals = 12,
              .redHeld = keys(0b0101),
              .blueHeld = keys(0b1111),
              .isPaused = true};
  put(match.Red, 7, 8);
  put(match.Blue, 9, 10);
  put(match.Ball, 30, 5);
  return match;
}

TEST(Match, StartsAfreshAndCountsDownToItsFrozenEnd) {
  Match match = inFullSwing();
  Declarations shared{.TimeLeft = 17, .OpponentIndex = 4};
  match.StartMatch(shared);
  EXPECT_EQ(picture(match),
            "360,3960 495x495 10920,3960 495x495 5640,3960 480x480 0,240 0:0 0000 0000 runs");
  EXPECT_EQ(shared.OpponentIndex, 4);
  for (int left = 89; left >= 0; --left) {
    match.isPaused = true;
    EXPECT_FALSE(match.tmrCountdown(shared));
    match.isPaused = false;
    EXPECT_EQ(match.tmrCountdown(shared), left == 0);
    ASSERT_EQ(shared.TimeLeft, left);
    ASSERT_EQ(match.isPaused, left == 0);
  }
}

TEST(Players, MoveFromEveryPointByEveryKey) {
  // The step along an axis with no key, with the one back, the one forth, and both.
  constexpr int kAtFirst[] = {0, 0, 1, 1};
  constexpr int kBetween[] = {0, -1, 1, 0};
  constexpr int kAtLast[] = {0, -1, 0, 0};
  const auto moved = [&](int at, int last, unsigned two) {
    return at + (at == 1 ? kAtFirst : at == last ? kAtLast : kBetween)[two];
  };
  std::string wrong;
  for (int place = 0; place < 45 * 31; ++place) {
    const int column = 1 + place % 45;
    const int row = 1 + place / 45;
    for (unsigned eight = 0; eight < 256; ++eight) {
      const unsigned red = eight % 16;
      const unsigned blue = eight / 16;
      Match match{.redHeld = keys(red), .blueHeld = keys(blue)};
      put(match.Red, column, row);
      put(match.Blue, 46 - column, 32 - row);
      Match right = match;
      put(right.Red, moved(column, 45, red / 4), moved(row, 31, red % 4));
      put(right.Blue, moved(46 - column, 45, blue / 4), moved(32 - row, 31, blue % 4));
      match.tmrMovePlayers();
      if (match.Red != right.Red || match.Blue != right.Blue) wrong = picture(match);
    }
  }
  EXPECT_EQ(wrong, "");

  Match frozen = inFullSwing();
  frozen.tmrMovePlayers();
  EXPECT_EQ(picture(frozen), picture(inFullSwing()));
}

// Where the ball goes, for the places of a player from two steps up and left of it.
std::string taps(Piece Match::*player, const Match& match) {
  const std::map<std::pair<int, int>, std::string> kArrows{
      {{-240, -240}, "↖"}, {{0, -240}, "↑"},   {{240, -240}, "↗"}, {{-240, 0}, "←"}, {{7, 0}, "."},
      {{240, 0}, "→"},     {{-240, 240}, "↙"}, {{0, 240}, "↓"},    {{240, 240}, "↘"}};
  std::string drawn;
  for (int place = 0; place < 25; ++place) {
    Match tapped = match;
    put(tapped.*player, 28 + place % 5, 3 + place / 5);
    const Match before = tapped;
    tapped.tmrBallTap();
    drawn += kArrows.at({tapped.BallStepX, tapped.BallStepY}) + (place % 5 == 4 ? "\n" : "");
    tapped.BallStepX = before.BallStepX;
    tapped.BallStepY = before.BallStepY;
    EXPECT_EQ(picture(tapped), picture(before));
  }
  return drawn;
}

TEST(Taps, SendTheBallStraightAwayAndBlueDecides) {
  Match match = inFullSwing();
  match.BallStepX = 7;  // no tap gives this
  for (const auto player : {&Match::Red, &Match::Blue}) {
    match.isPaused = !match.isPaused;
    EXPECT_EQ(taps(player, match), ".....\n.↘↓↙.\n.→.←.\n.↗↑↖.\n.....\n");
  }
  put(match.Red, 29, 5);
  EXPECT_EQ(taps(&Match::Blue, match), "→→→→→\n→↘↓↙→\n→→→←→\n→↗↑↖→\n→→→→→\n");
}

TEST(Ball, BouncesAndScoresFromEveryPointWithEveryStep) {
  int goals = 0;
  for (int which = 0; which < 49 * 34 * 9 * 2 && !HasFailure(); ++which) {
    const int column = which % 49 - 1;  // one beyond each wall too, as after a pause
    const int row = which / 49 % 34 - 1;
    const int x = which / (49 * 34) % 3 - 1;
    const int y = which / (49 * 34 * 3) % 3 - 1;
    Match match = inFullSwing();
    match.isPaused = which >= 49 * 34 * 9;
    put(match.Ball, column, row);
    match.BallStepX = 240 * x;
    match.BallStepY = 240 * y;

    Match right = match;
    const auto moves = [&](int fromColumn, int fromRow, int stepX, int stepY) {
      const int steps = match.isPaused ? 0 : 1;
      put(right.Ball, fromColumn + steps * stepX, fromRow + steps * stepY);
      right.BallStepX = 240 * stepX;
      right.BallStepY = 240 * stepY;
    };
    const bool isAtEnd = column <= 0 || column >= 46;
    const bool isGoal = isAtEnd && row >= 12 && row <= 20;
    if (isGoal) {
      ++goals;
      ++(column <= 0 ? right.BlueGoals : right.RedGoals);
      put(right.Red, 1, 16);
      put(right.Blue, 45, 16);
      moves(23, 16, 0, 1);
    } else {
      moves(column, row, isAtEnd ? -x : x, row <= 0 || row >= 31 ? -y : y);
    }
    const std::string before = picture(match);
    EXPECT_EQ(match.tmrMoveBall(), isGoal) << before;
    EXPECT_EQ(picture(match), picture(right)) << "from " << before;
  }
  EXPECT_EQ(goals, 4 * 9 * 9 * 2);
}

TEST(Words, TellTheResultAndTheTime) {
  const auto results = [&](int red, int blue) {
    Match match;
    match.RedGoals = red;
    match.BlueGoals = blue;
    std::string all;
    for (const MessageBox& box : {resultOfTwo(match), resultAgainstComputer(match, "Belko")}) {
      EXPECT_EQ(box.icon, MessageBox::Icon::exclamation);
      EXPECT_EQ(box.buttons, MessageBox::Buttons::ok);
      all += box.title + ": " + box.text + "\n";
    }
    return all;
  };
  EXPECT_EQ(results(12, 3),
            "Duelbal: Červený hráč vyhral ! 12 - 3\n"
            "Mini futbal: Vyhral Belko 12 - 3 !\n");
  EXPECT_EQ(results(0, 2),
            "Duelbal: Modrý hráč vyhral ! 2 - 0\n"
            "Mini futbal: Gratulujem - zvíťazil si nad : Belko 2 - 0 !\n");
  EXPECT_EQ(results(4, 4), "Duelbal: Remíza! 4 - 4\nMini futbal: Remíza 4 - 4\n");
  EXPECT_EQ(clockOfTwo(90), "Časomiera: 90");
  EXPECT_EQ(clockAgainstComputer(7), "Časomiera : 7");
  std::string names;
  for (int index = -1; index <= 6; ++index) names += std::string(opponentName(index)) + ",";
  EXPECT_EQ(names, ",,Morko,Ludvar,Hostin,Dorvan,Belko,,");
}

}  // namespace
}  // namespace ratanka::soccer
