#include "sheets/rules/worksheet.h"

#include <gtest/gtest.h>

namespace ratanka::sheets {
namespace {

// Results 1 to 9 in rows 1 to 9.
Examples numbered(int first = 1) {
  Examples examples;
  for (int row = 0; row < kRows; ++row)
    examples.at(static_cast<std::size_t>(row)).Výsledok = first + row;
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

  // One set of nine rows of which the first `right` are right.
  void answerSet(int right) {
    for (int row = 1; row <= kRows; ++row) answer(row, row <= right);
    sheet.ShowVysvedčenie();
  }

  Worksheet sheet{Worksheet::Percentage::exact};
};

TEST_F(WorksheetTest, OnlyTheDecimalTextItselfIsRight) {
  Examples examples = numbered();
  examples[0].Výsledok = 12;
  const auto isRight = [&](const char* text) {
    Worksheet one{Worksheet::Percentage::exact};
    one.beginVisit(examples);
    one.close(1);
    one.judge(1, text);
    return one.row(1).outcome == Worksheet::Outcome::right;
  };
  EXPECT_TRUE(isRight("12"));
  for (const char* text :
       {"", "012", "+12", "12.0", " 12", "12 ", "-12", "1 2", "dvanásť", "122"}) {
    EXPECT_FALSE(isRight(text)) << '"' << text << '"';
  }
  examples[0].Výsledok = 0;
  EXPECT_TRUE(isRight("0"));
  EXPECT_FALSE(isRight(""));
  examples[0].Výsledok = -3;
  EXPECT_TRUE(isRight("-3"));
}

TEST_F(WorksheetTest, TheKeyboardGoesToTheNextRowOrTheFirstOrNowhere) {
  EXPECT_EQ(answer(1, true), 2);
  EXPECT_EQ(answer(5, true), 6);
  EXPECT_EQ(answer(4, true), std::nullopt);  // row 5 and row 1 are closed
  EXPECT_EQ(answer(9, true), std::nullopt);

  sheet.ShowOpakuj(numbered());
  EXPECT_EQ(answer(9, true), std::nullopt);  // row 1 is open, but the last row goes nowhere
  EXPECT_EQ(answer(8, true), 1);
}

TEST_F(WorksheetTest, CountersRunOnOverTheSetsOfAVisit) {
  answerSet(8);
  EXPECT_EQ(sheet.Správne().shown, 8);
  EXPECT_EQ(sheet.Nesprávne().shown, 1);
  EXPECT_EQ(sheet.mark(), 1);
  EXPECT_TRUE(sheet.isRewarded());

  sheet.ShowOpakuj(numbered(20));
  EXPECT_TRUE(sheet.row(1).isOpen);
  EXPECT_EQ(sheet.row(1).outcome, Worksheet::Outcome::unjudged);
  EXPECT_EQ(sheet.row(9).example.Výsledok, 28);
  EXPECT_EQ(sheet.mark(), 1);

  answerSet(0);  // 8 of 18: 44.4
  EXPECT_EQ(sheet.Správne().shown, 8);
  EXPECT_EQ(sheet.Nesprávne().shown, 10);
  EXPECT_EQ(sheet.mark(), 3);
  EXPECT_FALSE(sheet.isRewarded());
}

TEST_F(WorksheetTest, WithoutARightAnswerThereIsNoPercentage) {
  answer(1, false);
  EXPECT_EQ(sheet.ShowVysvedčenie(), std::nullopt);
  EXPECT_EQ(sheet.mark(), std::nullopt);
  answer(2, true);
  EXPECT_EQ(sheet.ShowVysvedčenie(), 50);
}

TEST_F(WorksheetTest, WithoutNewExamplesTheOldOnesAreAskedAgain) {
  answer(3, false);
  sheet.ShowOpakuj(std::nullopt);
  EXPECT_TRUE(sheet.row(3).isOpen);
  EXPECT_EQ(sheet.row(3).example.Výsledok, 3);
}

TEST_F(WorksheetTest, ANewVisitShowsNothingButCountsOn) {
  answerSet(5);
  sheet.beginVisit(numbered());
  EXPECT_EQ(sheet.Správne().shown, 0);
  EXPECT_EQ(sheet.Nesprávne().shown, 0);
  EXPECT_EQ(sheet.mark(), std::nullopt);
  EXPECT_FALSE(sheet.isRewarded());

  answer(1, true);
  EXPECT_EQ(sheet.Správne().shown, 6);
  EXPECT_EQ(sheet.Nesprávne().shown, 0);
  answer(2, false);
  EXPECT_EQ(sheet.Nesprávne().shown, 5);
}

TEST(WholeWorksheet, RoundsBeforeItMarks) {
  for (const auto percentage : {Worksheet::Percentage::whole, Worksheet::Percentage::exact}) {
    Worksheet sheet{percentage};
    sheet.beginVisit(numbered());
    for (int answer = 0; answer < 49; ++answer) sheet.judge(1, answer < 39 ? "1" : "0");
    const bool isWhole = percentage == Worksheet::Percentage::whole;
    const double stored = *sheet.ShowVysvedčenie();  // 79.59
    EXPECT_EQ(stored == 80, isWhole);
    EXPECT_EQ(sheet.mark(), isWhole ? 1 : 2);
    EXPECT_EQ(sheet.isRewarded(), isWhole);
  }
}

}  // namespace
}  // namespace ratanka::sheets
