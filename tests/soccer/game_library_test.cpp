#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

#include "soccer/rules/match.h"

namespace ratanka::soccer {
namespace {

Piece at(Piece piece, int left, int top) {
  piece.Left = left;
  piece.Top = top;
  return piece;
}

// All fractions are halves, which doubles hold exactly and nearbyint rounds to the even number.
double centreX(const Piece& piece) { return piece.Left + piece.Width / 2.0; }
double centreY(const Piece& piece) { return piece.Top + piece.Height / 2.0; }

int exactDirection(const Piece& from, const Piece& to) {
  const double x = centreX(to) - centreX(from);
  const double y = centreY(to) - centreY(from);
  if (y == 0) return x == 0 ? 0 : x > 0 ? 5 : 13;
  if (y < 0 && x == 0) return 1;
  if (y > 0 && to.Left == from.Left) return 9;

  const double dx = std::nearbyint(std::abs(x));
  const double dy = std::nearbyint(std::abs(y));
  const int flatness = dx < dy ? 0 : dx == dy ? 1 : 2;
  constexpr int kPoints[2][2][3] = {{{16, 15, 14}, {2, 3, 4}}, {{10, 11, 12}, {8, 7, 6}}};
  return y < 0 ? kPoints[0][x > 0][flatness] : kPoints[1][to.Left > from.Left][flatness];
}

float exactDistance(const Piece& one, const Piece& other) {
  const double dx = std::nearbyint(centreX(one)) - std::nearbyint(centreX(other));
  const double dy = std::nearbyint(centreY(one)) - std::nearbyint(centreY(other));
  return static_cast<float>(std::sqrt(dx * dx + dy * dy));
}

// Empty if both functions are right about these two.
std::string mistake(const Piece& from, const Piece& to) {
  const int direction = GetDirection(from, to);
  const float distance = GetDistance(from, to);
  if (direction == exactDirection(from, to) && distance == exactDistance(from, to)) return "";
  return std::to_string(direction) + " and " + std::to_string(distance) + " off from " +
         std::to_string(from.Left) + "," + std::to_string(from.Top) + " to " +
         std::to_string(to.Left) + "," + std::to_string(to.Top);
}

TEST(GameLibrary, IsRightAboutRedAndBallOnAllOfThePitch) {
  std::set<int> points;
  std::string wrong;
  for (int place = 0; place < 45 * 31; ++place) {
    const Piece red = at(kRedStart, 360 + place % 45 * 240, 360 + place / 45 * 240);
    for (int left = 120; left <= 11160; left += 240) {
      for (int top = 120; top <= 7560; top += 240) {
        const Piece ball = at(kBallStart, left, top);
        points.insert(GetDirection(red, ball));
        if (wrong.empty()) wrong = mistake(red, ball);
      }
    }
  }
  EXPECT_EQ(wrong, "");
  EXPECT_EQ(points, (std::set{2, 4, 6, 7, 8, 9, 10, 12, 14, 15, 16}));
}

TEST(GameLibrary, RoundsHalvesOfSmallThingsToTheEvenNumber) {
  std::string wrong;
  for (int sizes = 0; sizes < 4 * 4 * 4 * 4; ++sizes) {
    const Piece from{1, -1, sizes % 4, sizes / 4 % 4};
    for (int place = 0; place < 15 * 15; ++place) {
      const Piece to{place % 15 - 7, place / 15 - 7, sizes / 16 % 4, sizes / 64};
      if (wrong.empty()) wrong = mistake(from, to);
    }
  }
  EXPECT_EQ(wrong, "");
}

}  // namespace
}  // namespace ratanka::soccer
