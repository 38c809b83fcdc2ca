#include <gtest/gtest.h>

#include "fakes.h"
#include "platform/plain/twister_random.h"
#include "sheets/reckon.h"
#include "sheets/rules/chains.h"
#include "sheets/rules/products.h"
#include "sheets/rules/sums.h"

namespace ratanka::sheets {
namespace {

using Generator = Examples (*)(Random&);

// Each as {number, how many there are}.
using Draws = std::vector<std::pair<int, int>>;

// The first row of a set whose first draws are told.
std::string drawn(Generator showStart, const Draws& draws) {
  FakeRandom random;
  for (const auto& [number, numbers] : draws) random.draw(number, numbers);
  return reading(showStart(random).front());
}

TEST(Generators, WhatAChildReadsGivesTheResultInAFixedNumberOfDraws) {
  const struct {
    Generator ShowStart;
    int draws, highest;
  } kinds[] = {{malá::ShowStart, 18, 18},       {veľká::ShowStart, 18, 198},
               {násobilka::ShowStart, 18, 81},  {hádanka::ShowStart, 18, 9},
               {veľkéčísla::ShowStart, 45, 42}, {zátvorky::ShowStart, 45, 87}};
  for (const auto& [ShowStart, draws, highest] : kinds) {
    TwisterRandom random;
    for (int set = 0; set < 3000; ++set) {
      for (const Example& example : ShowStart(random)) {
        const std::string equation = reading(example);
        ASSERT_EQ(solve(equation), example.Výsledok) << equation;
        ASSERT_LE(example.Výsledok, highest) << equation;
      }
    }
    FakeRandom counted;
    counted.numbers.assign(static_cast<std::size_t>(draws - draws / kRows), 0.9);
    const Examples examples = ShowStart(counted);
    EXPECT_EQ(counted.drawn, draws);
    FakeRandom smallest;
    EXPECT_EQ(reading(examples[8]), reading(ShowStart(smallest)[8]));  // the last row's came last
    EXPECT_NE(reading(examples[7]), reading(ShowStart(smallest)[7]));
  }
}

TEST(Generators, EveryPairOfSmallNumbers) {
  for (int a = 0; a <= 9; ++a) {
    for (int b = 0; b <= 9; ++b) {
      const std::string sign = a > b ? " - " : " + ";
      EXPECT_EQ(drawn(malá::ShowStart, {{a, 10}, {b, 10}}),
                std::to_string(a) + sign + std::to_string(b) + " = ?");
    }
  }
}

TEST(Generators, CaptionsAtTheCorners) {
  const auto chain = [](int a, int b, int c, int d, int e) {
    return drawn(veľkéčísla::ShowStart, {{a, 25}, {b, 20}, {c, 15}, {d, 10}, {e, 5}});
  };
  const auto brackets = [](int a, int b, int c, int d, int e) {
    return drawn(zátvorky::ShowStart, {{a, 50}, {b, 40}, {c, 30}, {d, 20}, {e, 10}});
  };
  EXPECT_EQ(drawn(veľká::ShowStart, {{9, 100}, {50, 100}}), "9 + 50 = ?");
  EXPECT_EQ(drawn(veľká::ShowStart, {{99, 100}, {9, 100}}), "99 - 9 = ?");
  EXPECT_EQ(drawn(hádanka::ShowStart, {{3, 10}, {3, 10}}), "3 + ? = 6");
  EXPECT_EQ(drawn(násobilka::ShowStart, {{0, 10}, {9, 10}}), "0 x 9 = ?");
  EXPECT_EQ(chain(20, 7, 5, 9, 3), "20 -  7 -  5 + 9+3 = ?");
  EXPECT_EQ(chain(19, 19, 0, 0, 4), "19 + 19 -  0 -  0+4 = ?");
  EXPECT_EQ(chain(24, 19, 14, 9, 4), "24 -  19 + 14 -  9+4 = ?");
  EXPECT_EQ(brackets(1, 25, 11, 2, 9), "(1 + 25) -  (11 -  2)+9 = ?");
  EXPECT_EQ(brackets(0, 0, 0, 0, 0), "(0 + 0) + (0 + 0)+0 = ?");
  EXPECT_EQ(brackets(49, 39, 29, 19, 0), "(49 -  39) + (29 -  19)+0 = ?");
}

TEST(Generators, HádankaHidesTheFirstOperandInThreeRows) {
  FakeRandom random;
  for (int row = 1; row <= kRows; ++row) {
    random.draw(7, 10);
    random.draw(2, 10);
  }
  int row = 0;
  for (const Example& example : hádanka::ShowStart(random)) {
    ++row;
    const bool first = row == 2 || row == 4 || row == 5;
    EXPECT_EQ(reading(example), first ? "? - 2 = 5" : "7 - ? = 5") << row;
  }
}

std::string divisions(const Examples& examples) {
  std::string all;
  for (const Example& example : examples) {
    EXPECT_EQ(solve(reading(example)), example.Výsledok);
    all += example.first + example.sign + example.second + ", ";
  }
  return all;
}

constexpr auto kSet0 = "1 : 1, 2 : 1, 2 : 2, 3 : 1, 3 : 3, 4 : 1, 4 : 2, 4 : 4, 5 : 1, ";
constexpr auto kSet1 = "5 : 5, 6 : 1, 6 : 2, 6 : 3, 6 : 6, 7 : 1, 7 : 7, 8 : 1, 8 : 2, ";
constexpr auto kSet2 = "8 : 4, 8 : 8, 9 : 1, 9 : 3, 9 : 9, 10 : 1, 10 : 2, 10 : 5, 10 : 10, ";

TEST(Generators, DelenieGoesThroughItsSetsInACycleOfFour) {
  EXPECT_EQ(divisions(delenie::ShowStart()), kSet0);
  EXPECT_EQ(divisions(delenie::ShowStart1()), kSet1);
  EXPECT_EQ(divisions(delenie::ShowStart2()), kSet2);
  std::int16_t DelenieKolo = 0;
  for (int cycle = 0; cycle < 3; ++cycle) {
    for (const char* set : {kSet0, kSet1, kSet2}) {
      const auto next = delenie::nextSet(DelenieKolo);
      ASSERT_TRUE(next);
      EXPECT_EQ(divisions(*next), set);
    }
    EXPECT_EQ(DelenieKolo, 3);
    EXPECT_FALSE(delenie::nextSet(DelenieKolo));
    EXPECT_EQ(DelenieKolo, 0);
  }
}

TEST(Generators, SpokenEverySignIsAWord) {
  EXPECT_EQ(spoken({.first = "2", .sign = " - ", .second = "5", .box = Example::Box::firstOperand}),
            "koľko mínus 2 rovná sa 5");
  EXPECT_EQ(spoken({.first = "7", .sign = " x ", .second = "2"}), "7 krát 2 rovná sa koľko");
  EXPECT_EQ(spoken({.first = "10", .sign = " : ", .second = "10"}), "10 delené 10 rovná sa koľko");
  EXPECT_EQ(spoken({.first = "(1 + 25) -  (11 -  2)+9"}),
            "zátvorka 1 plus 25 koniec zátvorky mínus zátvorka 11 mínus 2 koniec zátvorky plus 9 "
            "rovná sa koľko");
}

TEST(TwisterRandom, FillsItsRangeEvenly) {
  TwisterRandom random;
  std::array<int, 10> counts{};
  for (int draw = 0; draw < 100'000; ++draw) {
    const double next = random.next();
    ASSERT_TRUE(0 <= next && next < 1);
    ++counts.at(static_cast<std::size_t>(next * 10));
  }
  // Six standard deviations of a fair tenth.
  for (const int count : counts) EXPECT_NEAR(count, 10'000, 570);
}

}  // namespace
}  // namespace ratanka::sheets
