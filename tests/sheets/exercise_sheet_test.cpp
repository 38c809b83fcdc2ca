#include "sheets/sheet_driver.h"

namespace ratanka::sheets {
namespace {

constexpr auto kEmpty = "Chyba - nebolo zadané číslo";
constexpr auto kNoneRight = "Rátanka pre najmenších";

class MaláTest : public SheetTest {
 protected:
  MaláTest() { openSheet(names::Malá); }
};

TEST_F(MaláTest, OpensWithEveryControlOfASheet) {
  EXPECT_TRUE(window(names::Malá)->isActiveWindow());
  EXPECT_EQ(QApplication::focusWidget(), box(1));
  EXPECT_EQ(strip(), "0 0 ");
  EXPECT_FALSE(button("Command1")->isVisible());
  for (int image = 1; image <= 31; ++image) EXPECT_EQ(imageShown(image), image > 27) << image;
  for (int number = 1; number <= 39; ++number) label(number);
  for (int number = 1; number <= 18; ++number) {
    control<QWidget>(sheet_, "Line" + QString::number(number));
  }
  const std::pair<const char*, QPoint> row4[] = {{"Label13", {72, 144}},  {"Label14", {120, 144}},
                                                 {"Label15", {176, 144}}, {"Line7", {232, 151}},
                                                 {"Line8", {232, 159}},   {"Text4", {304, 144}},
                                                 {"Image10", {352, 140}}, {"Image11", {344, 140}},
                                                 {"Label16", {400, 144}}, {"Image12", {448, 140}}};
  for (const auto& [name, place] : row4) {
    EXPECT_EQ(control<QWidget>(sheet_, name)->pos(), place) << name;
  }
  EXPECT_EQ(button("Command2")->toolTip(), " Nové príklady ");
  EXPECT_EQ(button("Command3")->accessibleName(), "Návrat do MENU");
  EXPECT_EQ(box(1)->maxLength(), 7);
}

TEST_F(MaláTest, ARightAnswerGetsItsTickAndAWrongOneACrossAndTheResult) {
  answerRight(1);
  answer("x");
  for (const int row : {1, 2}) {
    EXPECT_EQ(imageShown(3 * row - 2), row == 1);
    EXPECT_EQ(imageShown(3 * row - 1), row == 2);
    EXPECT_EQ(imageShown(3 * row), row == 2);
    EXPECT_EQ(caption(4 * row), row == 1 ? "" : std::to_string(result(row)));
    EXPECT_FALSE(box(row)->isEnabled());
    EXPECT_FALSE(box(row)->hasFrame());
  }
  EXPECT_EQ(strip(), "1 1 ");
  EXPECT_EQ(QApplication::focusWidget(), box(3));
}

TEST_F(MaláTest, AnEmptyBoxIsToldAndCountsAsWrong) {
  dialogs.expect(kEmpty, [this] {
    EXPECT_FALSE(box(1)->isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), box(2));
    EXPECT_EQ(strip(), "0 0 ");
  });
  answer("");
  EXPECT_EQ(dialogs.shown[0].text,
            "Okienko nesmie byť prázdne, alebo obsahovať TEXT!\r\n Vždy zadajte číslo - prosím");
  EXPECT_EQ(strip(), "0 1 ");
}

TEST_F(MaláTest, MarksWearTheirColours) {
  const struct {
    int right, wrong;
    const char* mark;
    QColor back;
  } cases[] = {{1, 8, "5", {255, 0, 0}},
               {1, 4, "4", {255, 0, 0}},
               {2, 3, "3", {0, 255, 255}},
               {3, 2, "2", {0, 255, 0}},
               {4, 1, "1", {0, 255, 0}}};
  forms.show(names::Bludisko);  // keeps the program alive
  for (const auto& c : cases) {
    forms.drop(names::Malá);
    openSheet(names::Malá);
    const int answers = c.right + c.wrong;
    for (int row = 1; row < answers; ++row) answerRow(row, row <= c.right);
    answerRow(9, answers <= c.right);
    EXPECT_EQ(caption(39), c.mark);
    EXPECT_EQ(label(39)->palette().color(QPalette::Window), c.back) << c.mark;
    EXPECT_EQ(button("Command1")->isVisible(), c.right == 4) << c.mark;
    EXPECT_EQ(premenné.PercentoMalá, 100.0 * (1.0 * c.right / answers));
  }
}

TEST_F(MaláTest, RowsAnsweredOutOfOrderLeaveTheKeyboardNowhere) {
  answerRow(5, true);
  click(box(1));
  for (int row = 1; row <= 4; ++row) answerRight(row);
  EXPECT_EQ(QApplication::focusWidget(), window(names::Malá));
  strike(Qt::Key_Space);  // presses nothing
  settle();
  EXPECT_EQ(strip(), "5 0 ");
  EXPECT_EQ(random.drawn, 18);
}

TEST_F(MaláTest, TheLastBoxEndsTheSetWhateverIsLeftAndFreshExamplesEndThePause) {
  answerLastRight();
  EXPECT_EQ(strip(), "1 0 1");
  answerRow(3, false);  // still counts in the pause
  random.numbers.assign(18, 0.35);
  advance(2999);
  EXPECT_FALSE(box(3)->isEnabled());
  advance(1);
  EXPECT_EQ(readRow(3), "3 + 3=?");
  EXPECT_TRUE(box(3)->isEnabled() && box(3)->hasFrame());
  EXPECT_EQ(box(3)->text() + box(9)->text(), "");
  EXPECT_EQ(QApplication::focusWidget(), box(1));
  EXPECT_EQ(strip(), "1 1 1");
  answerLastRight();
  clickButton("Command2");
  EXPECT_EQ(random.drawn, 54);
  advance(10000);
  EXPECT_EQ(random.drawn, 54);
  EXPECT_EQ(QApplication::focusWidget(), box(1));
}

TEST_F(MaláTest, EachKeyReleasedInTheLastBoxAsksForTheFirstRightAnswer) {
  premenné.PercentoMalá = 60;
  click(box(9));
  dialogs.expect(kNoneRight);
  type("7");
  EXPECT_EQ(dialogs.shown.back().text,
            "Miláčik, doposiaľ si nevypočítal jediný príklad správne. \r\n"
            "Je to náhoda, však?\r\nSústreď sa - ideme znova...");
  EXPECT_EQ(box(9)->text(), "7");
  dialogs.expect(kNoneRight);
  strike(Qt::Key_Backspace);
  EXPECT_FALSE(pause()->isEnabled());
  dialogs.expect(kEmpty);
  dialogs.expect(kNoneRight);
  answer("");
  EXPECT_TRUE(pause()->isEnabled());
  EXPECT_EQ(premenné.PercentoMalá, 60);
  EXPECT_EQ(strip(), "0 1 ");
}

TEST_F(MaláTest, ASetThatEndsUnderAnOpenBoxWaitsForTheAnswerToBeJudged) {
  answerLastRight();
  click(box(2));
  dialogs.expect(kEmpty, [this] {
    advance(5000);
    EXPECT_FALSE(box(2)->isEnabled());  // the pause is over, the set still stands
    EXPECT_EQ(random.drawn, 18);
  });
  strike(Qt::Key_Return);
  EXPECT_EQ(caption(38), "1");
  settle();
  EXPECT_EQ(random.drawn, 36);
  EXPECT_TRUE(box(2)->isEnabled());
  EXPECT_FALSE(imageShown(5));
  EXPECT_EQ(caption(38), "1");
}

TEST_F(MaláTest, BothEnterKeysAnswerAHeldOneOnceAndOtherKeysNothing) {
  type(std::to_string(result(1)));
  for (const int key : {Qt::Key_Escape, Qt::Key_Down, Qt::Key_F1, Qt::Key_Shift}) strike(key);
  EXPECT_EQ(strip(), "0 0 ");
  strike(Qt::Key_Enter);
  EXPECT_EQ(strip(), "1 0 ");

  type(std::to_string(result(2)));
  press(Qt::Key_Return);
  QWindow* const sheet = QGuiApplication::focusWindow();
  for (int repeat = 0; repeat < 5; ++repeat) {
    for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
      QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, "\r", true);
      QCoreApplication::sendEvent(sheet, &event);
    }
  }
  EXPECT_EQ(strip(), "1 0 ");
  release(Qt::Key_Return);
  EXPECT_EQ(strip(), "2 0 ");
  EXPECT_TRUE(box(3)->isEnabled());
}

TEST_F(MaláTest, TheWayBackLosesTheVisitButNotThePercentage) {
  answerLastRight();
  QPushButton* const back = button("Command3");
  QTest::mouseDClick(back, Qt::LeftButton);
  back->click();  // once more is once
  settle();
  EXPECT_FALSE(forms.isLoaded(names::Malá));
  EXPECT_FALSE(forms.isEnding());
  ASSERT_NE(window(names::Úvod), nullptr);
  advance(5000);
  EXPECT_EQ(random.drawn, 18);  // the pause went with the sheet
  EXPECT_EQ(ticks.running(), 0U);
  EXPECT_EQ(premenné.PercentoMalá, 100);

  openSheet(names::Malá);
  EXPECT_EQ(strip(), "0 0 ");
  answerRow(1, true);
  EXPECT_EQ(strip(), "1 0 ");
  forms.drop(names::Úvod);
  window(names::Malá)->close();  // by the desktop: the same way
  settle();
  EXPECT_FALSE(forms.isLoaded(names::Malá));
  EXPECT_NE(window(names::Úvod), nullptr);
}

TEST_F(MaláTest, GoingUnderItsBoxIsHarmless) {
  dialogs.expect(kEmpty, [this] {
    forms.show(names::Úvod);
    forms.drop(names::Malá);
    settle();
  });
  answer("");
  EXPECT_EQ(window(names::Malá), nullptr);
  EXPECT_NE(window(names::Úvod), nullptr);

  openSheet(names::Malá);
  click(box(9));
  dialogs.expect(kEmpty, [this] {
    forms.endProgram();
    settle();
  });
  dialogs.expect(kNoneRight);
  answer("");
  EXPECT_TRUE(forms.isEnding());
}

TEST_F(MaláTest, TheNextSetTakesTheKeyboardBackFromTheReward) {
  answerLastRight();
  clickButton("Command1");
  ASSERT_NE(window(names::Bludisko), nullptr);
  EXPECT_TRUE(window(names::Bludisko)->isActiveWindow());
  advance(3000);
  EXPECT_TRUE(window(names::Malá)->isActiveWindow());
  EXPECT_EQ(QApplication::focusWidget(), box(1));
}

TEST_F(MaláTest, TheBookTurnsAndBeginsAgain) {
  std::vector<QImage> frames;
  for (int frame = 0; frame <= 12; ++frame) {
    frames.push_back(control<QWidget>(names::Malá, "Picture3")->grab().toImage());
    advance(150);
  }
  for (const std::size_t other : {0u, 2u, 11u}) EXPECT_NE(frames[other], frames[1]) << other;
  EXPECT_EQ(frames[12], frames[1]);
}

}  // namespace
}  // namespace ratanka::sheets
