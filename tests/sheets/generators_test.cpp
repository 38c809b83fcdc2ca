#include <gtest/gtest.h>

#include <functional>

#include "fakes.h"
#include "platform/twister_random.h"
#include "sheets/reckon.h"
#include "sheets/rules/chains.h"
#include "sheets/rules/products.h"
#include "sheets/rules/sums.h"

namespace ratanka::sheets {
namespace {

using Generator = Examples (*)(Random&);

// The first row of a set whose first draws are told, each as {number, how many there are}.
Example drawn(Generator showStart, std::initializer_list<std::pair<int, int>> draws) {
  FakeRandom random;
  for (const auto& [number, numbers] : draws) random.draw(number, numbers);
  return showStart(random).front();
}

struct Kind {
  const char* name;
  Generator ShowStart;
  int draws;
  int highest;
};

const Kind kKinds[] = {{"Malá", malá::ShowStart, 18, 18},
                       {"Veľká", veľká::ShowStart, 18, 198},
                       {"Násobilka", násobilka::ShowStart, 18, 81},
                       {"Hádanka", hádanka::ShowStart, 18, 9},
                       {"Veľkéčísla", veľkéčísla::ShowStart, 45, 42},
                       {"Zátvorky", zátvorky::ShowStart, 45, 87}};

TEST(Generators, WhatAChildReadsGivesTheResult) {
  for (const Kind& kind : kKinds) {
    TwisterRandom random;
    for (int set = 0; set < 3000; ++set) {
      for (const Example& example : kind.ShowStart(random)) {
        const std::string equation = reading(example);
        ASSERT_EQ(solve(equation), example.Výsledok) << kind.name << ": " << equation;
        ASSERT_LE(example.Výsledok, kind.highest) << kind.name << ": " << equation;
      }
    }
  }
}

TEST(Generators, DrawAsOftenAsTheyNeedAndInTheOrderOfTheRows) {
  for (const Kind& kind : kKinds) {
    FakeRandom random;
    const int aRow = kind.draws / kRows;
    for (int row = 0; row < kRows; ++row) {
      // Row by row from the smallest numbers to the largest.
      for (int draw = 0; draw < aRow; ++draw) random.numbers.push_back(row / double{kRows});
    }
    const Examples examples = kind.ShowStart(random);
    EXPECT_EQ(random.drawn, kind.draws) << kind.name;
    FakeRandom smallest;
    EXPECT_EQ(reading(examples[0]), reading(kind.ShowStart(smallest)[0])) << kind.name;
    EXPECT_NE(reading(examples[8]), reading(examples[0])) << kind.name;
  }
}

TEST(Generators, TwoFreshStartsShowTheSame) {
  TwisterRandom one;
  TwisterRandom other;
  for (const Kind& kind : kKinds) {
    const Examples first = kind.ShowStart(one);
    const Examples again = kind.ShowStart(other);
    for (std::size_t row = 0; row < first.size(); ++row) {
      EXPECT_EQ(reading(first.at(row)), reading(again.at(row)));
    }
  }
}

TEST(Malá, EveryPairOfNumbers) {
  for (int a = 0; a <= 9; ++a) {
    for (int b = 0; b <= 9; ++b) {
      const Example example = drawn(malá::ShowStart, {{a, 10}, {b, 10}});
      const std::string sign = a > b ? " - " : " + ";
      EXPECT_EQ(reading(example), std::to_string(a) + sign + std::to_string(b) + " = ?");
    }
  }
}

TEST(Veľká, ComparesNumbersAndNotTexts) {
  EXPECT_EQ(reading(drawn(veľká::ShowStart, {{9, 100}, {50, 100}})), "9 + 50 = ?");
  EXPECT_EQ(reading(drawn(veľká::ShowStart, {{50, 100}, {9, 100}})), "50 - 9 = ?");
  EXPECT_EQ(drawn(veľká::ShowStart, {{99, 100}, {99, 100}}).Výsledok, 198);
}

TEST(Hádanka, HidesTheFirstOperandInThreeRows) {
  FakeRandom random;
  for (int row = 1; row <= kRows; ++row) {
    random.draw(7, 10);
    random.draw(2, 10);
  }
  const Examples examples = hádanka::ShowStart(random);
  for (int row = 1; row <= kRows; ++row) {
    const bool first = row == 2 || row == 4 || row == 5;
    const Example& example = examples.at(static_cast<std::size_t>(row - 1));
    EXPECT_EQ(reading(example), first ? "? - 2 = 5" : "7 - ? = 5") << row;
    EXPECT_EQ(example.Výsledok, first ? 7 : 2) << row;
  }
  EXPECT_EQ(reading(drawn(hádanka::ShowStart, {{3, 10}, {3, 10}})), "3 + ? = 6");
  EXPECT_EQ(reading(drawn(hádanka::ShowStart, {{0, 10}, {0, 10}})), "0 + ? = 0");
}

TEST(Násobilka, ZeroComesOnEitherSide) {
  EXPECT_EQ(reading(drawn(násobilka::ShowStart, {{0, 10}, {7, 10}})), "0 x 7 = ?");
  EXPECT_EQ(drawn(násobilka::ShowStart, {{7, 10}, {0, 10}}).Výsledok, 0);
  EXPECT_EQ(drawn(násobilka::ShowStart, {{9, 10}, {9, 10}}).Výsledok, 81);
}

TEST(Veľkéčísla, CaptionsAtTheCorners) {
  const auto chain = [](int a, int b, int c, int d, int e) {
    const Example example =
        drawn(veľkéčísla::ShowStart, {{a, 25}, {b, 20}, {c, 15}, {d, 10}, {e, 5}});
    return example.first + "=" + std::to_string(example.Výsledok);
  };
  EXPECT_EQ(chain(20, 7, 5, 9, 3), "20 -  7 -  5 + 9+3=20");
  EXPECT_EQ(chain(0, 0, 0, 0, 0), "0 + 0 + 0 + 0+0=0");
  EXPECT_EQ(chain(19, 19, 0, 0, 4), "19 + 19 -  0 -  0+4=42");
  EXPECT_EQ(chain(24, 19, 14, 9, 4), "24 -  19 + 14 -  9+4=14");
}

TEST(Zátvorky, CaptionsAtTheCorners) {
  const auto brackets = [](int a, int b, int c, int d, int e) {
    const Example example =
        drawn(zátvorky::ShowStart, {{a, 50}, {b, 40}, {c, 30}, {d, 20}, {e, 10}});
    return example.first + "=" + std::to_string(example.Výsledok);
  };
  EXPECT_EQ(brackets(1, 25, 11, 2, 9), "(1 + 25) -  (11 -  2)+9=26");
  EXPECT_EQ(brackets(0, 0, 0, 0, 0), "(0 + 0) + (0 + 0)+0=0");
  EXPECT_EQ(brackets(49, 0, 1, 19, 0), "(49 -  0) -  (1 + 19)+0=29");
  EXPECT_EQ(brackets(5, 5, 20, 10, 3), "(5 + 5) + (20 -  10)+3=23");
  EXPECT_EQ(brackets(39, 39, 0, 0, 9), "(39 + 39) -  (0 + 0)+9=87");
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

TEST(Delenie, GoesThroughItsSetsInACycleOfFour) {
  EXPECT_EQ(divisions(delenie::ShowStart()), kSet0);
  EXPECT_EQ(divisions(delenie::ShowStart1()), kSet1);
  EXPECT_EQ(divisions(delenie::ShowStart2()), kSet2);
  std::int16_t DelenieKolo = 0;
  for (int cycle = 0; cycle < 3; ++cycle) {
    for (const char* set : {kSet0, kSet1, kSet2}) {
      EXPECT_EQ(divisions(*delenie::nextSet(DelenieKolo)), set);
    }
    EXPECT_EQ(DelenieKolo, 3);
    EXPECT_FALSE(delenie::nextSet(DelenieKolo));
    EXPECT_EQ(DelenieKolo, 0);
  }
}

TEST(Spoken, SaysEverySignInWords) {
  EXPECT_EQ(spoken(drawn(malá::ShowStart, {{7, 10}, {2, 10}})), "7 mínus 2 rovná sa koľko");
  EXPECT_EQ(spoken(drawn(hádanka::ShowStart, {{1, 10}, {4, 10}})), "1 plus koľko rovná sa 5");
  EXPECT_EQ(spoken(drawn(násobilka::ShowStart, {{7, 10}, {2, 10}})), "7 krát 2 rovná sa koľko");
  EXPECT_EQ(spoken(delenie::ShowStart2()[8]), "10 delené 10 rovná sa koľko");
  EXPECT_EQ(spoken(drawn(zátvorky::ShowStart, {{1, 50}, {25, 40}, {11, 30}, {2, 20}, {9, 10}})),
            "zátvorka 1 plus 25 koniec zátvorky mínus zátvorka 11 mínus 2 koniec zátvorky plus 9 "
            "rovná sa koľko");
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
