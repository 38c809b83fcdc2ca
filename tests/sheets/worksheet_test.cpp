#include "sheets/rules/worksheet.h"

#include <gtest/gtest.h>

namespace ratanka::sheets {
namespace {

// Results 1 to 9 in rows 1 to 9.
Examples numbered(int first = 1) {
  Examples examples;
  for (Example& example : examples) example.Výsledok = first++;
  return examples;
}

class WorksheetTest : public testing::Test {
 protected:
  WorksheetTest() { sheet.beginVisit(numbered()); }

  std::optional<int> answer(int row, bool right) {
    const std::optional<int> next = sheet.close(row);
    const int result = sheet.row(row).example.Výsledok;
    sheet.judge(row, std::to_string(right ? result : result + 1));
    return next;
  }

  // The counters, the mark (0 for none) and whether there is a reward.
  std::string strip() const {
    return std::to_string(sheet.Správne().shown) + ' ' + std::to_string(sheet.Nesprávne().shown) +
           ' ' + std::to_string(sheet.mark().value_or(0)) + (sheet.isRewarded() ? '!' : '.');
  }
  // After a set of nine rows of which the first `right` are right.
  std::string afterSet(int right) {
    for (int row = 1; row <= kRows; ++row) answer(row, row <= right);
    sheet.ShowVysvedčenie();
    return strip();
  }

  Worksheet sheet{Worksheet::Percentage::exact};
};

TEST_F(WorksheetTest, OnlyTheDecimalTextItselfIsRight) {
  const auto isRight = [&](int Výsledok, const char* text) {
    sheet.beginVisit(numbered(Výsledok));
    sheet.judge(1, text);
    return sheet.row(1).outcome == Worksheet::Outcome::right;
  };
  EXPECT_TRUE(isRight(12, "12"));
  EXPECT_TRUE(isRight(0, "0"));
  EXPECT_FALSE(isRight(0, ""));
  for (const char* text :
       {"", "012", "+12", "12.0", " 12", "12 ", "-12", "1 2", "dvanásť", "122"}) {
    EXPECT_FALSE(isRight(12, text)) << '"' << text << '"';
  }
}

TEST_F(WorksheetTest, TheKeyboardGoesToTheNextRowOrTheFirstOrNowhere) {
  EXPECT_EQ(answer(1, true), 2);
  EXPECT_EQ(answer(5, true), 6);
  EXPECT_EQ(answer(4, true), std::nullopt);  // row 5 and row 1 are closed
  sheet.ShowOpakuj(numbered());
  EXPECT_EQ(answer(9, true), std::nullopt);  // row 1 is open, but the last row goes nowhere
  EXPECT_EQ(answer(8, true), 1);
}

TEST_F(WorksheetTest, CountersRunOnOverTheSetsOfAVisitAndBehindZerosOverVisits) {
  EXPECT_EQ(afterSet(0), "0 9 0.");
  EXPECT_EQ(sheet.ShowVysvedčenie(), std::nullopt);  // while nothing was right
  sheet = Worksheet{Worksheet::Percentage::exact};
  sheet.beginVisit(numbered());
  EXPECT_EQ(afterSet(8), "8 1 1!");
  sheet.ShowOpakuj(numbered(20));
  EXPECT_TRUE(sheet.row(1).isOpen);
  EXPECT_EQ(sheet.row(1).outcome, Worksheet::Outcome::unjudged);
  EXPECT_EQ(sheet.row(9).example.Výsledok, 28);
  EXPECT_EQ(strip(), "8 1 1!");
  EXPECT_EQ(afterSet(0), "8 10 3.");  // 44.4
  sheet.ShowOpakuj(std::nullopt);     // the old ones are asked again
  EXPECT_EQ(sheet.row(9).example.Výsledok, 28);
  EXPECT_EQ(sheet.row(1).outcome, Worksheet::Outcome::unjudged);
  EXPECT_EQ(afterSet(9), "17 10 2.");

  sheet.beginVisit(numbered());
  EXPECT_EQ(strip(), "0 0 0.");
  answer(1, true);
  EXPECT_EQ(strip(), "18 0 0.");
  answer(2, false);
  EXPECT_EQ(strip(), "18 11 0.");
}

TEST(WholeWorksheet, RoundsBeforeItMarks) {
  for (const auto percentage : {Worksheet::Percentage::whole, Worksheet::Percentage::exact}) {
    Worksheet sheet{percentage};
    sheet.beginVisit(numbered());
    for (int answer = 0; answer < 49; ++answer) sheet.judge(1, answer < 39 ? "1" : "0");
    const bool isWhole = percentage == Worksheet::Percentage::whole;
    EXPECT_NEAR(*sheet.ShowVysvedčenie(), isWhole ? 80 : 79.59, 0.01);
    EXPECT_EQ(sheet.mark(), isWhole ? 1 : 2);
    EXPECT_EQ(sheet.isRewarded(), isWhole);
  }
}

}  // namespace
}  // namespace ratanka::sheets
