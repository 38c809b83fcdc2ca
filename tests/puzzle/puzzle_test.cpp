#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QWheelEvent>

#include "all_forms.h"
#include "platform/controls/controls.h"
#include "puzzle/rules/board.h"

namespace ratanka::puzzle {
namespace {

constexpr FormName kPuzzle = names::frmPuzzle;

class PuzzleTest : public AllFormsTest {
 protected:
  PuzzleTest() {
    forms.show(names::Úvod);
    forms.show(kPuzzle);
    activate(*window(kPuzzle));
    control<QComboBox>(kPuzzle, "cmbSize")->setCurrentText("3");
  }

  static Button* tile(int place) {
    return control<Button>(kPuzzle, QString("cmdButton(%1)").arg(place));
  }
  static void pressTile(int place, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(tile(place), button);
    settle();
  }
  static Button* shuffle() { return control<Button>(kPuzzle, "cmdShuffle"); }
  static std::string caption() { return window(kPuzzle)->windowTitle().toStdString(); }

  // A walk of the hole up and down in turn, which ends one move from the order.
  void shuffleByOneMove() {
    for (int draw = 0; draw < 81; ++draw) random.draw(draw % 2 == 0 ? 2 : 3, 4);
    click(shuffle());
  }
  static constexpr int kLastTile = 8;
};

TEST_F(PuzzleTest, TilesSlideToTheHoleByAnyPressAndAtOnce) {
  EXPECT_FALSE(tile(8)->isVisible());
  EXPECT_EQ(tile(5)->geometry(), QRect(175, 105, 70, 70));
  pressTile(5, Qt::RightButton);
  EXPECT_FALSE(tile(5)->isVisible());
  EXPECT_EQ(tile(8)->text(), "6");
  EXPECT_TRUE(tile(8)->hasFocus());
  pressTile(0);  // isn't next to the hole
  EXPECT_EQ(tile(0)->text(), "1");
  EXPECT_EQ(shuffle()->text(), "Nová hra");
  tile(8)->setFocus();
  strike(Qt::Key_Space);
  EXPECT_EQ(tile(5)->text(), "6");
  EXPECT_EQ(shuffle()->text(), "Zamiešať");
  EXPECT_TRUE(shuffle()->hasFocus());
  // For a listener.
  QAccessible::queryAccessibleInterface(tile(5))->actionInterface()->doAction(
      QAccessibleActionInterface::pressAction());
  EXPECT_EQ(tile(8)->text(), "6");
  EXPECT_EQ(sound.played, std::vector<std::string>(3, "Pucle1.wav"));
  advance(5000);
  EXPECT_EQ(caption(), "Pucle");  // nobody played against the clock
}

TEST_F(PuzzleTest, AGameAgainstTheClockEndsInTheList) {
  shuffleByOneMove();
  EXPECT_EQ(shuffle()->text(), "Nová hra");
  advance(7000);
  EXPECT_EQ(caption(), "Čas: 7 s");
  dialogs.expectInput("Výsledková listina", "  Ľubica  ", [this] { advance(3000); });
  pressTile(kLastTile);
  EXPECT_EQ(dialogs.asked.front().prompt, "Zapíš svoje Meno!");
  EXPECT_EQ(caption(), "Čas: 7 s");
  EXPECT_EQ(settings.values["Rátanka - hra Pucle/Pucle/3"], "7");
  EXPECT_EQ(settings.values["Rátanka - hra Pucle/Pucle/3Hráč"], "Ľubica");
  EXPECT_EQ(sound.played, (std::vector<std::string>{"Pucle3.wav", "Pucle1.wav", "Pucle2.wav"}));

  dialogs.expect("Výsledková listina");
  strike(Qt::Key_F2);
  EXPECT_NE(dialogs.shown.front().text.find("3\t7\tĽubica\r\n"), std::string::npos);
}

TEST_F(PuzzleTest, TheMenuTurnsTheSoundOffAndLeaves) {
  strike(Qt::Key_F3);
  EXPECT_FALSE(control<QAction>(kPuzzle, "mnuSound")->isChecked());
  shuffleByOneMove();
  EXPECT_TRUE(sound.played.empty());
  strike(Qt::Key_F4);
  settle();
  EXPECT_FALSE(forms.isLoaded(kPuzzle));
}

TEST_F(PuzzleTest, AnotherSizeGivesUpTheGame) {
  shuffleByOneMove();
  advance(2000);
  for (const int size : {7, 5}) {
    control<QComboBox>(kPuzzle, "cmbSize")->setCurrentText(QString::number(size));
    int visible = 0;
    for (int place = 0; place < kButtons; ++place) visible += tile(place)->isVisible() ? 1 : 0;
    EXPECT_EQ(visible, size * size - 1);
    advance(2000);
    EXPECT_EQ(caption(), "Pucle");
    EXPECT_EQ(shuffle()->text(), "Zamiešať");
  }
}

TEST_F(PuzzleTest, TheClockWaitsWhileMinimisedAndGoesOnUnderTheList) {
  shuffleByOneMove();
  advance(1000);
  tile(0)->setFocus();
  window(kPuzzle)->showMinimized();
  advance(5000);
  window(kPuzzle)->showNormal();
  EXPECT_TRUE(shuffle()->hasFocus());
  EXPECT_EQ(caption(), "Čas: 1 s");
  dialogs.expect("Výsledková listina", [this] { advance(5000); });
  strike(Qt::Key_F2);
  EXPECT_EQ(caption(), "Čas: 6 s");
}

TEST_F(PuzzleTest, NoWheelThatPassesEndsAGame) {
  auto* const sizes = control<QComboBox>(kPuzzle, "cmbSize");
  const QPointF at(5, 5);
  QWheelEvent wheel(at, sizes->mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(sizes, &wheel);
  EXPECT_EQ(sizes->currentText(), "3");
}

TEST_F(PuzzleTest, IsFreshWhenItIsOpenedAgain) {
  shuffleByOneMove();
  advance(3000);
  window(kPuzzle)->close();
  forms.show(kPuzzle);
  EXPECT_EQ(caption(), "Pucle");
  EXPECT_EQ(shuffle()->text(), "Zamiešať");
  EXPECT_EQ(tile(14)->text(), "15");
  EXPECT_TRUE(tile(14)->isVisible());
  EXPECT_EQ(random.reseeded, 2);
}

TEST_F(PuzzleTest, MayBeLeftUnderItsBoxes) {
  shuffleByOneMove();
  advance(1000);
  dialogs.expectInput("Výsledková listina", std::nullopt, [this] { forms.drop(kPuzzle); });
  pressTile(kLastTile);
  EXPECT_FALSE(forms.isLoaded(kPuzzle));
  EXPECT_EQ(settings.values["Rátanka - hra Pucle/Pucle/3Hráč"], "");
}

}  // namespace
}  // namespace ratanka::puzzle
