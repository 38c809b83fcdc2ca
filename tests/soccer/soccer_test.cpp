#include <gtest/gtest.h>

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include "form_driver.h"
#include "platform/timer.h"
#include "shell/names.h"
#include "soccer/player1.h"
#include "soccer/player2.h"
#include "soccer/select_player.h"
#include "soccer/start_up.h"

namespace ratanka::soccer {
namespace {

constexpr FormName kSheet{"sheet"};

class SoccerTest : public FormTest {
 protected:
  SoccerTest() {
    forms.setMaker(names::frmStartUp, [this] { return std::make_shared<frmStartUp>(forms); });
    forms.setMaker(names::frmSelectPlayer,
                   [this] { return std::make_shared<frmSelectPlayer>(forms, declarations); });
    forms.setMaker(names::frmPlayer1, [this] {
      return std::make_shared<frmPlayer1>(forms, dialogs, random, declarations);
    });
    forms.setMaker(names::frmPlayer2,
                   [this] { return std::make_shared<frmPlayer2>(forms, dialogs, declarations); });
    makePlain(kSheet);
    forms.show(kSheet);
    forms.show(names::frmStartUp);
  }

  ~SoccerTest() override {
    for (const FormName name : {names::frmStartUp, names::frmSelectPlayer, names::frmPlayer1,
                                names::frmPlayer2, kSheet}) {
      forms.drop(name);
    }
    settle();
  }

  void startTwo() {
    click(control<QPushButton>(names::frmStartUp, "cmd2Player"));
    settle();
    activate(*window(names::frmPlayer2));
  }

  // Opens the choice; `choose` happens while it stands there.
  void startOne(const std::function<void()>& choose) {
    QTimer::singleShot(0, qApp, choose);
    click(control<QPushButton>(names::frmStartUp, "cmd1Player"));
    settle();
  }
  void startOne(int opponent, Qt::MouseButton button = Qt::LeftButton) {
    startOne([=, this] { QTest::mouseClick(picture(opponent), button, {}, {40, 40}); });
    activate(*window(names::frmPlayer1));
  }
  static QWidget* picture(int opponent) {
    return control<QWidget>(names::frmSelectPlayer, QString("picOpponent(%1)").arg(opponent));
  }

  static std::string textOf(FormName form, const char* label) {
    return control<QLabel>(form, label)->text().toStdString();
  }
  static QPoint placeOf(FormName form, const char* piece) {
    return control<QWidget>(form, piece)->pos();
  }
  static void choose(FormName form, const char* item) {
    control<QAction>(form, item)->trigger();
    settle();
  }

  // The two players leave the ball alone for the time that is left.
  void waitForTheEnd(int seconds) {
    for (int second = 0; second < seconds; ++second) advance(1000);
  }

  FakeRandom random;
  Declarations declarations;
};

constexpr QPoint kRedAtStart{24, 264};
constexpr QPoint kBlueAtStart{728, 264};

TEST_F(SoccerTest, EightKeysMoveTwoPlayersAtOnce) {
  startTwo();
  for (const int key : {Qt::Key_W, Qt::Key_D, Qt::Key_Up, Qt::Key_Left}) press(key);
  advance(30);
  EXPECT_EQ(placeOf(names::frmPlayer2, "Red"), kRedAtStart + QPoint(48, -48));
  EXPECT_EQ(placeOf(names::frmPlayer2, "Blue"), kBlueAtStart + QPoint(-48, -48));
  for (const int key : {Qt::Key_S, Qt::Key_A, Qt::Key_Down, Qt::Key_Right}) press(key);
  advance(100);  // opposite keys cancel out
  EXPECT_EQ(placeOf(names::frmPlayer2, "Red"), kRedAtStart + QPoint(48, -48));
  EXPECT_EQ(placeOf(names::frmPlayer2, "Blue"), kBlueAtStart + QPoint(-48, -48));
  for (const int key : {Qt::Key_W, Qt::Key_D, Qt::Key_Up, Qt::Key_Left}) release(key);
  advance(30);
  EXPECT_EQ(placeOf(names::frmPlayer2, "Red"), kRedAtStart);
  EXPECT_EQ(placeOf(names::frmPlayer2, "Blue"), kBlueAtStart);
}

TEST_F(SoccerTest, NoKeyStaysHeldWhenTheKeyboardLeaves) {
  startTwo();
  press(Qt::Key_D);
  QWidget box;
  box.show();
  activate(box);
  activate(*window(names::frmPlayer2));
  advance(100);
  EXPECT_EQ(placeOf(names::frmPlayer2, "Red"), kRedAtStart);
}

// A key of the keyboard at its place, as the window system tells of it.
void sendKey(QEvent::Type type, int key, quint32 place, bool isRepeat, quint64 time) {
  QKeyEvent event(type, key, Qt::NoModifier, place, 0, 0, {}, isRepeat);
  event.setTimestamp(time);
  QCoreApplication::sendEvent(QGuiApplication::focusWindow(), &event);
}

TEST_F(SoccerTest, NoPressIsLostHoweverQuickTheChildIs) {
  startTwo();
  for (int strike = 1; strike <= 2; ++strike) {  // all in one moment of the window system's clock
    sendKey(QEvent::KeyPress, Qt::Key_D, 40, false, 7);
    advance(10);
    sendKey(QEvent::KeyRelease, Qt::Key_D, 40, false, 7);
  }
  EXPECT_EQ(placeOf(names::frmPlayer2, "Red"), kRedAtStart + QPoint(32, 0));
}

TEST_F(SoccerTest, AKeyIsLetGoThoughAltGrGivesItAnotherSign) {
  startTwo();
  sendKey(QEvent::KeyPress, Qt::Key_W, 25, false, 1);
  sendKey(QEvent::KeyRelease, Qt::Key_Bar, 25, false, 2);
  advance(100);
  EXPECT_EQ(placeOf(names::frmPlayer2, "Red"), kRedAtStart);
}

TEST_F(SoccerTest, AnEscThatIsHeldForTheMatchDoesNotEndTheProgramOnTheTitle) {
  startTwo();
  sendKey(QEvent::KeyPress, Qt::Key_Escape, 9, false, 1);
  activate(*window(names::frmStartUp));
  control<QPushButton>(names::frmStartUp, "cmd2Player")->setFocus();
  sendKey(QEvent::KeyPress, Qt::Key_Escape, 9, true, 2);
  sendKey(QEvent::KeyRelease, Qt::Key_Escape, 9, false, 3);
  sendKey(QEvent::KeyPress, Qt::Key_Escape, 9, false, 3);  // a broken repeat
  EXPECT_FALSE(forms.isEnding());
  sendKey(QEvent::KeyRelease, Qt::Key_Escape, 9, false, 4);
  sendKey(QEvent::KeyPress, Qt::Key_Escape, 9, false, 5);
  EXPECT_TRUE(forms.isEnding());
}

TEST_F(SoccerTest, AKeyPressedInAPauseWorksAfterIt) {
  startTwo();
  choose(names::frmPlayer2, "mnuPause");
  EXPECT_EQ(control<QAction>(names::frmPlayer2, "mnuPause")->text(), "&Pokračovať");
  press(Qt::Key_D);
  advance(2000);
  EXPECT_EQ(placeOf(names::frmPlayer2, "Red"), kRedAtStart);
  EXPECT_EQ(textOf(names::frmPlayer2, "lblTime"), "Časomiera: 90");
  strike(Qt::Key_F2);
  EXPECT_EQ(control<QAction>(names::frmPlayer2, "mnuPause")->text(), "&Pauza");
  advance(10);
  EXPECT_EQ(placeOf(names::frmPlayer2, "Red"), kRedAtStart + QPoint(16, 0));
}

TEST_F(SoccerTest, ANewMatchInAPauseRunsAndTheMenuGoesOnSayingSo) {
  startTwo();
  strike(Qt::Key_F2);
  strike(Qt::Key_F1);
  const QPoint before = placeOf(names::frmPlayer2, "Ball");
  advance(40);
  EXPECT_NE(placeOf(names::frmPlayer2, "Ball"), before);
  EXPECT_EQ(control<QAction>(names::frmPlayer2, "mnuPause")->text(), "&Pokračovať");
  strike(Qt::Key_F2);
  EXPECT_EQ(control<QAction>(names::frmPlayer2, "mnuPause")->text(), "&Pauza");
  const QPoint running = placeOf(names::frmPlayer2, "Ball");
  advance(40);
  EXPECT_NE(placeOf(names::frmPlayer2, "Ball"), running);
}

TEST_F(SoccerTest, AMatchLastsNinetySecondsTheFirstOfWhichIsLong) {
  startTwo();
  EXPECT_EQ(ticks.runningFine(), 2);  // the ball's and the seconds
  advance(1990);
  EXPECT_EQ(textOf(names::frmPlayer2, "lblTime"), "Časomiera: 90");
  advance(10);
  EXPECT_EQ(textOf(names::frmPlayer2, "lblTime"), "Časomiera: 89");
  waitForTheEnd(88);
  EXPECT_EQ(textOf(names::frmPlayer2, "lblTime"), "Časomiera: 1");
  dialogs.expect("Duelbal", [this] {
    EXPECT_EQ(textOf(names::frmPlayer2, "lblTime"), "Časomiera: 0");
    const QPoint before = placeOf(names::frmPlayer2, "Ball");
    advance(200);
    EXPECT_EQ(placeOf(names::frmPlayer2, "Ball"), before);
  });
  waitForTheEnd(1);
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(dialogs.shown.front().text, "Remíza! 0 - 0");
  EXPECT_EQ(dialogs.shown.front().icon, MessageBox::Icon::exclamation);

  // Hidden and frozen behind the title, until it comes back to a match of its own.
  EXPECT_EQ(window(names::frmPlayer2), nullptr);
  EXPECT_TRUE(forms.isLoaded(names::frmPlayer2));
  waitForTheEnd(100);
  EXPECT_EQ(declarations.TimeLeft, 90);
  startTwo();
  advance(2000);
  EXPECT_EQ(textOf(names::frmPlayer2, "lblTime"), "Časomiera: 89");
}

TEST_F(SoccerTest, ComingBackFromAnotherFormStartsAnewButNotFromABox) {
  startTwo();
  advance(5000);
  QWidget box;
  box.show();
  activate(box);
  activate(*window(names::frmPlayer2));
  EXPECT_EQ(declarations.TimeLeft, 86);
  activate(*window(names::frmStartUp));
  activate(*window(names::frmPlayer2));
  EXPECT_EQ(declarations.TimeLeft, 90);
}

TEST_F(SoccerTest, AGoalIsCountedAndEveryPieceGoesHome) {
  startTwo();
  press(Qt::Key_Up);  // Blue leaves the way free
  advance(1000);
  release(Qt::Key_Up);
  press(Qt::Key_D);  // Red comes to the ball as it passes his row, and sends it level to the right
  advance(215);
  release(Qt::Key_D);
  EXPECT_EQ(placeOf(names::frmPlayer2, "Red"), QPoint(360, 264));
  advance(1000);
  EXPECT_EQ(textOf(names::frmPlayer2, "RedGoals"), "1");
  EXPECT_EQ(textOf(names::frmPlayer2, "BlueGoals"), "0");
  EXPECT_EQ(placeOf(names::frmPlayer2, "Red"), kRedAtStart);
  choose(names::frmPlayer2, "mnuNewGame");
  EXPECT_EQ(textOf(names::frmPlayer2, "RedGoals"), "0");
}

TEST_F(SoccerTest, EscGoesBackToTheTitleAndMakesItWhereItIsGone) {
  startTwo();
  click(control<QWidget>(names::frmStartUp, "imgEnd"));
  settle();
  EXPECT_FALSE(forms.isLoaded(names::frmStartUp));
  activate(*window(names::frmPlayer2));
  strike(Qt::Key_Escape);
  settle();
  EXPECT_NE(window(names::frmStartUp), nullptr);
  EXPECT_EQ(window(names::frmPlayer2), nullptr);
}

TEST_F(SoccerTest, EscOnTheButtonOfTwoPlayersEndsEverything) {
  activate(*window(names::frmStartUp));
  strike(Qt::Key_Escape);  // the other button comes first
  EXPECT_FALSE(forms.isEnding());
  control<QPushButton>(names::frmStartUp, "cmd2Player")->setFocus();
  strike(Qt::Key_Escape);
  EXPECT_TRUE(forms.isEnding());
}

TEST_F(SoccerTest, TheChosenOpponentPlaysAndIsNamed) {
  startOne(3, Qt::RightButton);
  EXPECT_EQ(window(names::frmStartUp), nullptr);
  EXPECT_FALSE(forms.isLoaded(names::frmSelectPlayer));
  EXPECT_EQ(declarations.OpponentIndex, 3);
  EXPECT_EQ(textOf(names::frmPlayer1, "lblOpponent"), "Súper : Hostin");
  dialogs.expect("Mini futbal");
  waitForTheEnd(91);
  EXPECT_EQ(dialogs.shown.front().icon, MessageBox::Icon::exclamation);
  EXPECT_NE(window(names::frmStartUp), nullptr);

  // The hidden window takes the next opponent.
  startOne(5);
  EXPECT_EQ(textOf(names::frmPlayer1, "lblOpponent"), "Súper : Belko");
  choose(names::frmPlayer1, "mnuNewGame");
  EXPECT_EQ(declarations.OpponentIndex, 5);
}

TEST_F(SoccerTest, TheChoiceLiftsThePictureUnderThePointerAndEscGoesBack) {
  startOne([this] {
    QTest::mouseMove(picture(2), {30, 30});
    settle();
    EXPECT_EQ(picture(2)->height(), 101);
    QTest::mouseMove(picture(4), {30, 30});
    settle();
    EXPECT_EQ(picture(2)->height(), 101);
    EXPECT_EQ(picture(4)->height(), 101);
    EXPECT_EQ(picture(1)->height(), 96);
    activate(*window(names::frmSelectPlayer));
    strike(Qt::Key_Escape);
  });
  EXPECT_FALSE(forms.isLoaded(names::frmSelectPlayer));
  EXPECT_NE(window(names::frmStartUp), nullptr);
  EXPECT_EQ(declarations.OpponentIndex, 0);
}

TEST_F(SoccerTest, TheComputerMovesRedAndTheChildBlue) {
  startOne(5);
  random.numbers = {0.9};  // a plan that chases the ball from the start
  random.reseeded = 0;
  choose(names::frmPlayer1, "mnuNewGame");
  press(Qt::Key_Left);
  advance(30);
  release(Qt::Key_Left);
  EXPECT_EQ(placeOf(names::frmPlayer1, "Blue"), kBlueAtStart - QPoint(48, 0));
  EXPECT_GT(placeOf(names::frmPlayer1, "Red").x(), kRedAtStart.x());
  EXPECT_EQ(random.reseeded, 31);  // this level reseeds at every decision
}

TEST_F(SoccerTest, CtrlShowsTheDirectionWhileItIsHeld) {
  startOne(4);
  const auto* const direction = control<QLabel>(names::frmPlayer1, "lblDirection");
  EXPECT_FALSE(direction->isVisible());
  press(Qt::Key_Control);
  EXPECT_TRUE(direction->isVisible());
  EXPECT_EQ(direction->text(), "4");
  advance(300);
  const auto piece = [](const char* name, int size) {
    const QPoint at = placeOf(names::frmPlayer1, name);
    return Piece{twips(at.x()), twips(at.y()), size, size};
  };
  const int seen = GetDirection(piece("Red", 495), piece("Ball", 480));
  EXPECT_NE(seen, 4);
  EXPECT_EQ(direction->text().toInt(), seen);
  release(Qt::Key_Control);
  EXPECT_FALSE(direction->isVisible());
}

TEST_F(SoccerTest, AMatchMayEndInAnyMoment) {
  startTwo();
  dialogs.expect("Duelbal", [this] { forms.drop(names::frmPlayer2); });
  waitForTheEnd(91);
  EXPECT_FALSE(forms.isLoaded(names::frmPlayer2));
  EXPECT_NE(window(names::frmStartUp), nullptr);

  startTwo();
  advance(500);
  window(names::frmPlayer2)->close();
  advance(500);
  EXPECT_FALSE(forms.isLoaded(names::frmPlayer2));

  // A match of two that ends beneath the choice of an opponent.
  startTwo();
  activate(*window(names::frmStartUp));
  startOne([this] {
    EXPECT_FALSE(window(names::frmSelectPlayer)->windowFlags() & Qt::WindowMinimizeButtonHint);
    dialogs.expect("Duelbal");
    waitForTheEnd(91);
    activate(*window(names::frmSelectPlayer));
    strike(Qt::Key_Escape);
  });

  startOne(2);
  dialogs.expect("Mini futbal", [this] { forms.endProgram(); });
  waitForTheEnd(91);
  EXPECT_TRUE(forms.isEnding());
}

}  // namespace
}  // namespace ratanka::soccer
