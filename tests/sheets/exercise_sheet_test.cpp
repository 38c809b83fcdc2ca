#include "sheets/sheet_driver.h"

namespace ratanka::sheets {
namespace {

constexpr auto kEmpty = "Chyba - nebolo zadané číslo";
constexpr auto kNoneRight = "Rátanka pre najmenších";

class MaláTest : public SheetTest {
 protected:
  MaláTest() : SheetTest(names::Malá) { openSheet(); }
};

TEST_F(MaláTest, OpensActiveWithTheKeyboardInItsFirstBox) {
  EXPECT_TRUE(window(names::Malá)->isActiveWindow());
  EXPECT_EQ(QApplication::focusWidget(), box(1));
  EXPECT_EQ(caption(37), "0");
  EXPECT_EQ(caption(38), "0");
  EXPECT_EQ(caption(39), "");
  EXPECT_FALSE(button("Command1")->isVisible());
  for (int image = 1; image <= 27; ++image) EXPECT_FALSE(imageShown(image)) << image;
  for (int image = 28; image <= 31; ++image) EXPECT_TRUE(imageShown(image)) << image;
}

TEST_F(MaláTest, HasEveryControlOfASheet) {
  const QWidget* const sheet = window(names::Malá);
  for (int number = 1; number <= 39; ++number) {
    EXPECT_NE(sheet->findChild<QLabel*>("Label" + QString::number(number)), nullptr) << number;
  }
  for (int number = 1; number <= 18; ++number) {
    EXPECT_NE(sheet->findChild<QWidget*>("Line" + QString::number(number)), nullptr) << number;
  }
  const std::pair<const char*, QPoint> row4[] = {{"Label13", {72, 144}},  {"Label14", {120, 144}},
                                                 {"Label15", {176, 144}}, {"Line7", {232, 151}},
                                                 {"Line8", {232, 159}},   {"Text4", {304, 144}},
                                                 {"Image10", {352, 140}}, {"Image11", {344, 140}},
                                                 {"Label16", {400, 144}}, {"Image12", {448, 140}}};
  for (const auto& [name, place] : row4) {
    EXPECT_EQ(control<QWidget>(sheet_, name)->pos(), place) << name;
  }
  EXPECT_EQ(label(39)->geometry(), QRect(128, 456, 41, 33));
  EXPECT_EQ(button("Command1")->geometry(), QRect(328, 440, 41, 41));
  EXPECT_EQ(button("Command2")->toolTip(), " Nové príklady ");
  EXPECT_EQ(button("Command3")->accessibleName(), "Návrat do MENU");
  EXPECT_EQ(label(37)->toolTip(), " Vypočítaných príkladov ");
  EXPECT_EQ(label(39)->toolTip(), " Priebežné hodnotenie  ");
  EXPECT_EQ(box(1)->maxLength(), 7);
}

TEST_F(MaláTest, ARightAnswerGetsItsTickAndTheNextBoxTheKeyboard) {
  answerRight(1);
  EXPECT_TRUE(imageShown(1));
  EXPECT_FALSE(imageShown(2));
  EXPECT_EQ(caption(4), "");
  EXPECT_EQ(caption(37), "1");
  EXPECT_FALSE(box(1)->isEnabled());
  EXPECT_FALSE(box(1)->hasFrame());
  EXPECT_EQ(QApplication::focusWidget(), box(2));
}

TEST_F(MaláTest, AWrongAnswerGetsACrossAndTheResult) {
  answer("x");
  EXPECT_FALSE(imageShown(1));
  EXPECT_TRUE(imageShown(2));
  EXPECT_TRUE(imageShown(3));
  EXPECT_EQ(caption(4), std::to_string(result(1)));
  EXPECT_EQ(caption(38), "1");
  EXPECT_EQ(caption(37), "0");
}

TEST_F(MaláTest, AnEmptyBoxIsToldAndCountsAsWrong) {
  dialogs.expect(kEmpty, [this] {
    EXPECT_FALSE(box(1)->isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), box(2));
    EXPECT_EQ(caption(38), "0");
  });
  answer("");
  EXPECT_EQ(dialogs.shown[0].text,
            "Okienko nesmie byť prázdne, alebo obsahovať TEXT!\r\n Vždy zadajte číslo - prosím");
  EXPECT_EQ(QApplication::focusWidget(), box(2));
  EXPECT_TRUE(imageShown(2));
  EXPECT_EQ(caption(4), std::to_string(result(1)));
  EXPECT_EQ(caption(38), "1");
}

TEST_F(MaláTest, AllNineRightBringTheMarkTheRewardAndAfterThePauseANewSet) {
  for (int row = 1; row <= 9; ++row) {
    EXPECT_EQ(QApplication::focusWidget(), box(row));
    random.numbers.assign(18, 0.35);
    answerRight(row);
  }
  EXPECT_EQ(caption(37), "9");
  EXPECT_EQ(caption(39), "1");
  EXPECT_EQ(label(39)->palette().color(QPalette::Window), QColor(0, 255, 0));
  EXPECT_TRUE(button("Command1")->isVisible());
  EXPECT_EQ(premenné.PercentoMalá, 100);

  advance(2999);
  EXPECT_FALSE(box(1)->isEnabled());
  advance(1);
  EXPECT_EQ(readRow(1), "3 + 3=?");
  EXPECT_EQ(QApplication::focusWidget(), box(1));
  for (int row = 1; row <= 9; ++row) {
    EXPECT_TRUE(box(row)->isEnabled());
    EXPECT_TRUE(box(row)->hasFrame());
    EXPECT_EQ(box(row)->text(), "");
  }
  EXPECT_EQ(caption(37), "9");
  EXPECT_FALSE(pause()->isEnabled());
  advance(10000);
  EXPECT_EQ(random.drawn, 2 * 18);
}

TEST_F(MaláTest, MarksWearTheirColours) {
  const struct {
    int right, wrong;
    const char* mark;
    QColor back;
    bool rewarded;
  } cases[] = {{1, 8, "5", {255, 0, 0}, false},
               {1, 4, "4", {255, 0, 0}, false},
               {2, 3, "3", {0, 255, 255}, false},
               {3, 2, "2", {0, 255, 0}, false},
               {4, 1, "1", {0, 255, 0}, true}};
  for (const auto& c : cases) {
    forms.show(names::Bludisko);  // keeps the program alive
    forms.drop(names::Malá);
    openSheet();
    const int answers = c.right + c.wrong;
    for (int row = 1; row < answers; ++row) answerRow(row, row <= c.right);
    answerRow(9, answers <= c.right);
    EXPECT_EQ(caption(39), c.mark);
    EXPECT_EQ(label(39)->palette().color(QPalette::Window), c.back) << c.mark;
    EXPECT_EQ(button("Command1")->isVisible(), c.rewarded) << c.mark;
    EXPECT_EQ(premenné.PercentoMalá, 100.0 * (1.0 * c.right / answers));
  }
}

TEST_F(MaláTest, RowsAnsweredOutOfOrderLeaveTheKeyboardNowhere) {
  answerRow(5, true);
  click(box(1));
  for (int row = 1; row <= 4; ++row) answerRight(row);
  EXPECT_FALSE(box(4)->isEnabled());
  EXPECT_EQ(QApplication::focusWidget(), window(names::Malá));
  strike(Qt::Key_Space);  // presses nothing
  settle();
  EXPECT_EQ(caption(37), "5");
  EXPECT_EQ(random.drawn, 18);
}

TEST_F(MaláTest, TheLastBoxEndsTheSetWithRowsUncounted) {
  answerLastRight();
  EXPECT_EQ(caption(39), "1");
  EXPECT_TRUE(pause()->isEnabled());
  answerRow(3, false);  // still counts in the pause
  EXPECT_EQ(caption(38), "1");
  EXPECT_EQ(caption(39), "1");
  advance(3000);
  EXPECT_TRUE(box(3)->isEnabled());
  EXPECT_EQ(caption(37), "1");
}

TEST_F(MaláTest, EachKeyReleasedInTheLastBoxAsksForTheFirstRightAnswer) {
  click(box(9));
  dialogs.expect(kNoneRight);
  type("7");
  EXPECT_EQ(box(9)->text(), "7");
  dialogs.expect(kNoneRight);
  strike(Qt::Key_Backspace);
  EXPECT_FALSE(pause()->isEnabled());
  // A digit, the last one, and then the Enter that judges it right: no box any more.
  dialogs.expect(kNoneRight);
  answer(std::to_string(result(9)));
  EXPECT_EQ(caption(39), "1");
  EXPECT_TRUE(pause()->isEnabled());
}

TEST_F(MaláTest, AVisitWithoutARightAnswerKeepsTheEarlierPercentage) {
  premenné.PercentoMalá = 60;
  click(box(9));
  dialogs.expect(kEmpty);
  dialogs.expect(kNoneRight);
  answer("");
  EXPECT_EQ(dialogs.shown.back().text,
            "Miláčik, doposiaľ si nevypočítal jediný príklad správne. \r\n"
            "Je to náhoda, však?\r\nSústreď sa - ideme znova...");
  EXPECT_EQ(premenné.PercentoMalá, 60);
  EXPECT_EQ(caption(39), "");
  EXPECT_TRUE(pause()->isEnabled());
}

TEST_F(MaláTest, NewExamplesInThePauseBringOneSetOnly) {
  answerLastRight();
  click(button("Command2"));
  settle();
  EXPECT_FALSE(pause()->isEnabled());
  EXPECT_EQ(random.drawn, 36);
  advance(10000);
  EXPECT_EQ(random.drawn, 36);
  EXPECT_EQ(QApplication::focusWidget(), box(1));
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

TEST_F(MaláTest, BothEnterKeysAnswerAndAHeldOneAnswersOnce) {
  type(std::to_string(result(1)));
  strike(Qt::Key_Enter);
  EXPECT_EQ(caption(37), "1");

  type(std::to_string(result(2)));
  press(Qt::Key_Return);
  QWindow* const sheet = QGuiApplication::focusWindow();
  for (int repeat = 0; repeat < 5; ++repeat) {
    for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
      QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, "\r", true);
      QCoreApplication::sendEvent(sheet, &event);
    }
  }
  EXPECT_EQ(caption(37), "1");
  release(Qt::Key_Return);
  EXPECT_EQ(caption(37), "2");
  EXPECT_TRUE(box(3)->isEnabled());
}

TEST_F(MaláTest, OtherKeysJudgeNothing) {
  type("5");
  for (const int key : {Qt::Key_Escape, Qt::Key_Down, Qt::Key_F1, Qt::Key_Shift}) strike(key);
  EXPECT_TRUE(box(1)->isEnabled());
  EXPECT_EQ(caption(37), "0");
  EXPECT_EQ(caption(38), "0");
}

TEST_F(MaláTest, TheWayBackLosesTheVisitButNotThePercentage) {
  answerLastRight();
  click(button("Command3"));
  settle();
  EXPECT_EQ(window(names::Malá), nullptr);
  ASSERT_NE(window(names::Úvod), nullptr);
  advance(5000);
  EXPECT_EQ(random.drawn, 18);  // the pause went with the sheet
  EXPECT_EQ(ticks.running(), 0U);
  EXPECT_EQ(premenné.PercentoMalá, 100);

  openSheet();
  EXPECT_EQ(caption(37), "0");
  EXPECT_EQ(caption(39), "");
  answerRow(1, true);
  EXPECT_EQ(caption(37), "1");
}

TEST_F(MaláTest, LeavingTwiceQuicklyLeavesOnce) {
  QPushButton* const back = button("Command3");
  QTest::mouseDClick(back, Qt::LeftButton);
  back->click();
  settle();
  EXPECT_NE(window(names::Úvod), nullptr);
  EXPECT_FALSE(forms.isLoaded(names::Malá));
  EXPECT_FALSE(forms.isEnding());
}

TEST_F(MaláTest, TheEndOfTheProgramUnderABoxIsHarmless) {
  click(box(9));
  dialogs.expect(kEmpty, [this] {
    forms.endProgram();
    settle();
  });
  dialogs.expect(kNoneRight);
  strike(Qt::Key_Return);
  settle();
  EXPECT_TRUE(forms.isEnding());
}

TEST_F(MaláTest, ASheetThatGoesUnderItsBoxIsHarmless) {
  dialogs.expect(kEmpty, [this] {
    forms.show(names::Úvod);
    forms.drop(names::Malá);
    settle();
  });
  strike(Qt::Key_Return);
  settle();
  EXPECT_EQ(window(names::Malá), nullptr);
  EXPECT_NE(window(names::Úvod), nullptr);
}

TEST_F(MaláTest, TheRewardOpensItsGameAndTheNextSetTakesTheKeyboardBack) {
  answerLastRight();
  click(button("Command1"));
  settle();
  ASSERT_NE(window(names::Bludisko), nullptr);
  EXPECT_TRUE(window(names::Bludisko)->isActiveWindow());
  EXPECT_NE(window(names::Malá), nullptr);
  advance(3000);
  EXPECT_TRUE(window(names::Malá)->isActiveWindow());
  EXPECT_EQ(QApplication::focusWidget(), box(1));
}

TEST_F(MaláTest, TheBookTurnsAndBeginsAgain) {
  const auto shown = [] { return control<QWidget>(names::Malá, "Picture3")->grab().toImage(); };
  const QImage white = shown();
  std::vector<QImage> frames;
  for (int frame = 0; frame < 12; ++frame) {
    advance(150);
    frames.push_back(shown());
  }
  EXPECT_NE(frames[0], white);
  for (std::size_t frame = 1; frame < 11; ++frame) EXPECT_NE(frames[frame], frames[0]) << frame;
  EXPECT_EQ(frames[11], frames[0]);
}

TEST_F(MaláTest, AHundredVisitsLeaveNothingBehind) {
  const auto visit = [this] {
    answerRight(1);
    click(button("Command3"));
    settle();
    click(control<QPushButton>(names::Úvod, "Command1"));
    settle();
  };
  visit();
  const qsizetype widgets = QApplication::allWidgets().size();
  const std::size_t running = ticks.running();
  for (int count = 0; count < 100; ++count) visit();
  EXPECT_EQ(QApplication::allWidgets().size(), widgets);
  EXPECT_EQ(ticks.running(), running);
}

}  // namespace
}  // namespace ratanka::sheets
