#include <gtest/gtest.h>

#include "platform/ports/units.h"
#include "shell/rules/advice.h"
#include "shell/rules/mark.h"

namespace ratanka {
namespace {

TEST(Advice, ComesOnEveryWidthButTheAdvisedOne) {
  EXPECT_EQ(screenAdvice(1024, 768), std::nullopt);
  EXPECT_EQ(screenAdvice(1024, 600), std::nullopt);
  EXPECT_EQ(screenAdvice(800, 600),
            "Váš monitor je teraz nastavený v grafickom zobrazení na hodnotu  800 *  600\r\n"
            "Pre tento program odporúčam nastavenie na 1024 * 768");
  EXPECT_EQ(screenAdvice(1280, 1024),
            "Váš monitor je teraz nastavený v grafickom zobrazení na hodnotu  1280 *  1024\r\n"
            "Pre tento program odporúčam nastavenie na 1024 * 768");
}

// The mark for exact fractions: the borders belong to the better mark.
int exactMark(int right, int wrong) {
  for (const int fifths : {4, 3, 2, 1}) {
    if (5 * right >= fifths * (right + wrong)) return 5 - fifths;
  }
  return 5;
}

TEST(Mark, IsExactForEveryPairOfCounters) {
  for (int right = 1; right <= 200; ++right) {
    for (int wrong = 0; wrong <= 200; ++wrong) {
      const double p = percentage(right, wrong);
      const int expected = exactMark(right, wrong);
      ASSERT_EQ(mark(p), expected) << right << " right, " << wrong << " wrong";
      ASSERT_EQ(earnsReward(p), expected == 1) << right << " right, " << wrong << " wrong";
      const bool isBelowOnePercent = 100 * right < right + wrong;
      ASSERT_EQ(markOnCard(p), isBelowOnePercent ? 0 : expected);
    }
  }
}

TEST(Mark, NothingWrittenIsNoMarkOnTheCard) { EXPECT_EQ(markOnCard(0), 0); }

TEST(Mark, WholePercentageRoundsHalvesToEven) {
  EXPECT_EQ(wholePercentage(percentage(1, 7)), 12);    // 12.5
  EXPECT_EQ(wholePercentage(percentage(3, 5)), 38);    // 37.5
  EXPECT_EQ(wholePercentage(percentage(39, 10)), 80);  // 79.59
}

TEST(Units, TwipsAreFifteenToAPixel) {
  EXPECT_EQ(pixels(8040), 536);
  EXPECT_EQ(pixels(7), 0);
  EXPECT_EQ(pixels(8), 1);
  EXPECT_EQ(pixels(-8), -1);
  EXPECT_EQ(centred(20475, 8040), 6217);
  EXPECT_EQ(centred(7200, 7515), -157);
}

}  // namespace
}  // namespace ratanka
