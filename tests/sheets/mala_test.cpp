#include "sheets/rules/mala.h"

#include <gtest/gtest.h>

#include "fakes.h"
#include "platform/twister_random.h"

namespace ratanka::sheets {
namespace {

// What a child who reads the row from left to right works out.
int readOut(const Example& example) {
  const int a = std::stoi(example.first);
  const int b = std::stoi(example.second);
  if (example.sign == " + ") return a + b;
  EXPECT_EQ(example.sign, " - ");
  return a - b;
}

TEST(Malá, EveryPairReadsAsItsResult) {
  for (int a = 0; a <= 9; ++a) {
    for (int b = 0; b <= 9; ++b) {
      FakeRandom random;
      random.draw(a, 10);
      random.draw(b, 10);
      const Example example = malá::ShowStart(random).front();
      EXPECT_EQ(example.first, std::to_string(a));
      EXPECT_EQ(example.second, std::to_string(b));
      EXPECT_EQ(example.sign, a > b ? " - " : " + ");
      EXPECT_EQ(readOut(example), example.Výsledok);
      EXPECT_GE(example.Výsledok, 0);
    }
  }
}

TEST(Malá, ASetTakesEighteenDrawsRowByRow) {
  FakeRandom random;
  for (int draw = 0; draw < 18; ++draw) random.draw(draw % 10, 10);
  const Examples examples = malá::ShowStart(random);
  EXPECT_EQ(random.drawn, 18);
  EXPECT_EQ(examples[1].first, "2");
  EXPECT_EQ(examples[8].second, "7");
}

TEST(Malá, TwoFreshStartsShowTheSame) {
  TwisterRandom one;
  TwisterRandom other;
  for (int set = 0; set < 20; ++set) {
    const Examples a = malá::ShowStart(one);
    const Examples b = malá::ShowStart(other);
    for (std::size_t row = 0; row < a.size(); ++row) {
      EXPECT_EQ(a[row].first + a[row].sign + a[row].second,
                b[row].first + b[row].sign + b[row].second);
    }
  }
}

TEST(TwisterRandom, FillsItsRangeEvenly) {
  TwisterRandom random;
  std::array<int, 10> counts{};
  for (int draw = 0; draw < 100'000; ++draw) {
    const double next = random.next();
    ASSERT_GE(next, 0);
    ASSERT_LT(next, 1);
    ++counts.at(static_cast<std::size_t>(next * 10));
  }
  // Six standard deviations of a fair tenth.
  for (const int count : counts) EXPECT_NEAR(count, 10'000, 570);
}

}  // namespace
}  // namespace ratanka::sheets
