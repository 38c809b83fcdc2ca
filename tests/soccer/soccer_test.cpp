#include <gtest/gtest.h>

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include "all_forms.h"
#include "platform/forms/timer.h"
#include "soccer/player2.h"
#include "soccer/rules/game_library.h"

namespace ratanka::soccer {
namespace {

constexpr FormName kTitle = names::frmStartUp;
constexpr FormName kChoice = names::frmSelectPlayer;
constexpr FormName kOne = names::frmPlayer1;
constexpr FormName kTwo = names::frmPlayer2;

constexpr QPoint kRedAtStart{24, 264};
constexpr QPoint kBlueAtStart{728, 264};

class SoccerTest : public AllFormsTest {
 protected:
  SoccerTest() {
    forms.show(names::Úvod);
    forms.show(kTitle);
  }

  void startTwo() {
    click(control<QPushButton>(kTitle, "cmd2Player"));
    settle();
    activate(*window(kTwo));
  }

  // Opens the choice; `choose` happens while it stands there.
  void startOne(const std::function<void()>& choose) {
    QTimer::singleShot(0, qApp, choose);
    click(control<QPushButton>(kTitle, "cmd1Player"));
    settle();
  }
  void startOne(int opponent, Qt::MouseButton button = Qt::LeftButton) {
    startOne([=] { QTest::mouseClick(picture(opponent), button, {}, {40, 40}); });
    activate(*window(kOne));
  }
  static QWidget* picture(int opponent) {
    return control<QWidget>(kChoice, QString("picOpponent(%1)").arg(opponent));
  }

  static std::string textOf(FormName form, const char* label) {
    return control<QLabel>(form, label)->text().toStdString();
  }
  static std::string clock() { return textOf(kTwo, "lblTime"); }
  static std::string pauseItem() {
    return control<QAction>(kTwo, "mnuPause")->text().toStdString();
  }
  static QPoint placeOf(const char* piece, FormName form = kTwo) {
    return control<QWidget>(form, piece)->pos();
  }
  bool ballRuns() {
    const QPoint before = placeOf("Ball");
    advance(40);
    return placeOf("Ball") != before;
  }
  static void choose(FormName form, const char* item) {
    control<QAction>(form, item)->trigger();
    settle();
  }

  // The players leave the ball alone.
  void wait(int seconds) {
    for (int second = 0; second < seconds; ++second) advance(1000);
  }
};

TEST_F(SoccerTest, EightKeysMoveTwoPlayersAtOnce) {
  startTwo();
  const auto expectMoved = [&](int steps) {
    EXPECT_EQ(placeOf("Red"), kRedAtStart + QPoint(steps * 16, -steps * 16));
    EXPECT_EQ(placeOf("Blue"), kBlueAtStart + QPoint(-steps * 16, -steps * 16));
  };
  for (const int key : {Qt::Key_W, Qt::Key_D, Qt::Key_Up, Qt::Key_Left}) press(key);
  advance(30);
  expectMoved(3);
  for (const int key : {Qt::Key_S, Qt::Key_A, Qt::Key_Down, Qt::Key_Right}) press(key);
  advance(100);  // opposite keys cancel out
  expectMoved(3);
  for (const int key : {Qt::Key_W, Qt::Key_D, Qt::Key_Up, Qt::Key_Left}) release(key);
  advance(30);
  expectMoved(0);
}

TEST_F(SoccerTest, NoKeyStaysHeldWhenTheKeyboardLeaves) {
  startTwo();
  press(Qt::Key_D);
  QWidget box;
  box.show();
  activate(box);
  activate(*window(kTwo));
  advance(100);
  EXPECT_EQ(placeOf("Red"), kRedAtStart);
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
  EXPECT_EQ(placeOf("Red"), kRedAtStart + QPoint(32, 0));
}

TEST_F(SoccerTest, AKeyIsLetGoThoughAltGrGivesItAnotherSign) {
  startTwo();
  sendKey(QEvent::KeyPress, Qt::Key_W, 25, false, 1);
  sendKey(QEvent::KeyRelease, Qt::Key_Bar, 25, false, 2);
  advance(100);
  EXPECT_EQ(placeOf("Red"), kRedAtStart);
}

TEST_F(SoccerTest, AnEscThatIsHeldForTheMatchDoesNotEndTheProgramOnTheTitle) {
  startTwo();
  sendKey(QEvent::KeyPress, Qt::Key_Escape, 9, false, 1);
  activate(*window(kTitle));
  control<QPushButton>(kTitle, "cmd2Player")->setFocus();
  sendKey(QEvent::KeyPress, Qt::Key_Escape, 9, true, 2);
  EXPECT_FALSE(forms.isEnding());
  sendKey(QEvent::KeyRelease, Qt::Key_Escape, 9, false, 4);
  sendKey(QEvent::KeyPress, Qt::Key_Escape, 9, false, 5);
  EXPECT_TRUE(forms.isEnding());
}

TEST_F(SoccerTest, ASecondEscAfterAMatchDoesNotEndTheProgram) {
  startTwo();
  control<QPushButton>(kTitle, "cmd2Player")->setFocus();
  activate(*window(kTwo));
  strike(Qt::Key_Escape);
  settle();
  activate(*window(kTitle));
  strike(Qt::Key_Escape);
  EXPECT_FALSE(forms.isEnding());
}

TEST_F(SoccerTest, APauseFreezesAllAndANewMatchInItRunsThoughTheMenuGoesOnSayingPause) {
  startTwo();
  choose(kTwo, "mnuPause");
  EXPECT_EQ(pauseItem(), "&Pokračovať");
  press(Qt::Key_D);
  advance(2000);
  EXPECT_EQ(placeOf("Red"), kRedAtStart);
  EXPECT_EQ(clock(), "Časomiera: 90");
  strike(Qt::Key_F2);
  EXPECT_EQ(pauseItem(), "&Pauza");
  advance(10);
  EXPECT_EQ(placeOf("Red"), kRedAtStart + QPoint(16, 0));  // of the key that went down meanwhile
  strike(Qt::Key_F2);
  strike(Qt::Key_F1);
  EXPECT_TRUE(ballRuns());
  EXPECT_EQ(pauseItem(), "&Pokračovať");
  strike(Qt::Key_F2);
  EXPECT_TRUE(ballRuns());
  EXPECT_EQ(pauseItem(), "&Pauza");
}

TEST_F(SoccerTest, AMatchLastsNinetySecondsTheFirstOfWhichIsLong) {
  startTwo();
  EXPECT_EQ(ticks.runningFine(), 2);  // the ball's and the seconds
  advance(1990);
  EXPECT_EQ(clock(), "Časomiera: 90");
  advance(10);
  EXPECT_EQ(clock(), "Časomiera: 89");
  wait(88);
  dialogs.expect("Duelbal", [this] {
    EXPECT_EQ(clock(), "Časomiera: 0");
    EXPECT_FALSE(ballRuns());
  });
  wait(1);
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(dialogs.shown.front().text, "Remíza! 0 - 0");

  // Hidden and frozen behind the title, until it comes back to a match of its own.
  EXPECT_EQ(window(kTwo), nullptr);
  EXPECT_TRUE(forms.isLoaded(kTwo));
  wait(100);
  EXPECT_EQ(declarations.TimeLeft, 90);
  startTwo();
  advance(2000);
  EXPECT_EQ(clock(), "Časomiera: 89");
}

TEST_F(SoccerTest, ComingBackFromAnotherFormStartsAnewButNotFromABox) {
  startTwo();
  advance(5000);
  QWidget box;
  box.show();
  activate(box);
  activate(*window(kTwo));
  EXPECT_EQ(declarations.TimeLeft, 86);
  activate(*window(kTitle));
  activate(*window(kTwo));
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
  EXPECT_EQ(placeOf("Red"), QPoint(360, 264));
  advance(1000);
  EXPECT_EQ(textOf(kTwo, "RedGoals") + textOf(kTwo, "BlueGoals"), "10");
  EXPECT_EQ(placeOf("Red"), kRedAtStart);
  choose(kTwo, "mnuNewGame");
  EXPECT_EQ(textOf(kTwo, "RedGoals"), "0");
}

// A match whose pieces lie where a test puts them.
class Pitch : public frmPlayer2 {
 public:
  using frmPlayer2::frmPlayer2;
  using frmPlayer2::match;
};

TEST_F(SoccerTest, NoPlayerRunsThroughTheBallHoweverTheTicksCome) {
  std::shared_ptr<Pitch> pitch;
  forms.setMaker(kTwo,
                 [&] { return pitch = std::make_shared<Pitch>(forms, dialogs, declarations); });
  startTwo();
  Match& match = pitch->match();
  const auto passes = [&](const Piece& player, int x, int y) {
    for (int time = 0; time < 1000; ++time) {
      if (match.BallStepX == kStep * x && match.BallStepY == kStep * y) return false;
      if ((match.Ball.Left - player.Left) * x + (match.Ball.Top - player.Top) * y <= 0) break;
      ticks.advance(std::chrono::milliseconds(1));
    }
    return true;
  };
  for (const bool isTapLate : {false, true}) {
    control<Timer>(kTwo, "tmrBallTap")->setEnabled(!isTapLate);
    int passed = 0;
    // Player and ball run straight at each other: on all eight ways, from 2 to 26 points apart,
    // from each of a player's four ticks to one of the ball.
    for (int which = 0; which < 8 * 25 * 4; ++which) {
      constexpr int kWays[] = {0, 1, 2, 3, 5, 6, 7, 8};
      const int x = kWays[which % 8] % 3 - 1;
      const int y = kWays[which % 8] / 3 - 1;
      const int apart = 2 + which / 8 % 25;
      const auto tick = which / 200 * 10;
      ticks.advance(std::chrono::milliseconds(45 + tick - ticks.now().count() % 40));
      match.StartMatch(declarations);
      const bool isRed = apart % 2 == 0;
      Piece& player = isRed ? match.Red : match.Blue;
      (isRed ? match.redHeld : match.blueHeld) = {y == -1, y == 1, x == -1, x == 1};
      player.Left = 5640 - 13 * kStep * x;
      player.Top = 3960 - 13 * kStep * y;
      match.Ball.Left = player.Left + apart * kStep * x;
      match.Ball.Top = player.Top + apart * kStep * y;
      match.BallStepX = -kStep * x;
      match.BallStepY = -kStep * y;
      if (passes(player, x, y)) ++passed;
    }
    EXPECT_EQ(passed, 0) << "of 800" << (isTapLate ? ", with no tick of tmrBallTap between" : "");
  }
}

TEST_F(SoccerTest, EscGoesBackToTheTitleWhereItEndsEverythingOnOneButtonOnly) {
  startTwo();
  click(control<QWidget>(kTitle, "imgEnd"));
  settle();
  EXPECT_FALSE(forms.isLoaded(kTitle));
  activate(*window(kTwo));
  strike(Qt::Key_Escape);
  settle();
  EXPECT_EQ(window(kTwo), nullptr);
  activate(*window(kTitle));  // made anew
  strike(Qt::Key_Escape);     // the other button comes first
  EXPECT_FALSE(forms.isEnding());
  control<QPushButton>(kTitle, "cmd2Player")->setFocus();
  strike(Qt::Key_Escape);
  EXPECT_TRUE(forms.isEnding());
}

TEST_F(SoccerTest, TheChosenOpponentPlaysAndIsNamed) {
  startOne(3, Qt::RightButton);
  EXPECT_EQ(window(kTitle), nullptr);
  EXPECT_FALSE(forms.isLoaded(kChoice));
  EXPECT_EQ(textOf(kOne, "lblOpponent"), "Súper : Hostin");
  dialogs.expect("Mini futbal");
  wait(91);
  EXPECT_NE(window(kTitle), nullptr);

  startOne(5);  // the hidden window takes the next one
  EXPECT_EQ(textOf(kOne, "lblOpponent"), "Súper : Belko");
  random.numbers = {0.9};  // a plan that chases the ball from the start
  random.reseeded = 0;
  choose(kOne, "mnuNewGame");
  press(Qt::Key_Left);
  advance(30);
  release(Qt::Key_Left);
  EXPECT_EQ(placeOf("Blue", kOne), kBlueAtStart - QPoint(48, 0));
  EXPECT_GT(placeOf("Red", kOne).x(), kRedAtStart.x());
  EXPECT_EQ(random.reseeded, 31);  // this level reseeds at every decision
}

TEST_F(SoccerTest, TheChoiceLiftsThePictureUnderThePointerAndEscAndItsFrameGoBack) {
  startOne([] {
    QTest::mouseMove(picture(2), {30, 30});
    settle();
    const Paints leftPicture(*picture(2));
    QTest::mouseMove(picture(4), {30, 30});
    settle();
    EXPECT_GT(leftPicture.count, 0) << "its border stays";
    for (const int opponent : {1, 2, 3, 4, 5}) {
      EXPECT_EQ(picture(opponent)->height(), opponent % 2 == 0 ? 101 : 96);
    }
    activate(*window(kChoice));
    strike(Qt::Key_Escape);
  });
  EXPECT_FALSE(forms.isLoaded(kChoice));
  EXPECT_NE(window(kTitle), nullptr);
  startOne([] { window(kChoice)->close(); });
  EXPECT_FALSE(forms.isLoaded(kChoice));
  EXPECT_NE(window(kTitle), nullptr);
  EXPECT_EQ(declarations.OpponentIndex, 1);  // as it was
}

TEST_F(SoccerTest, CtrlShowsTheDirectionWhileItIsHeld) {
  startOne(4);
  const auto* const direction = control<QLabel>(kOne, "lblDirection");
  EXPECT_FALSE(direction->isVisible());
  press(Qt::Key_Control);
  EXPECT_TRUE(direction->isVisible());
  EXPECT_EQ(direction->text(), "4");
  advance(300);
  const auto piece = [](const char* name, int size) {
    const QPoint at = placeOf(name, kOne);
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
  dialogs.expect("Duelbal", [this] { forms.drop(kTwo); });
  wait(91);
  EXPECT_FALSE(forms.isLoaded(kTwo));
  EXPECT_NE(window(kTitle), nullptr);

  startTwo();
  advance(500);
  window(kTwo)->close();
  advance(500);
  EXPECT_FALSE(forms.isLoaded(kTwo));

  // A match of two that ends beneath the choice of an opponent.
  startTwo();
  activate(*window(kTitle));
  startOne([this] {
    EXPECT_FALSE(window(kChoice)->windowFlags() & Qt::WindowMinimizeButtonHint);
    dialogs.expect("Duelbal");
    wait(91);
    activate(*window(kChoice));
    strike(Qt::Key_Escape);
  });

  startOne(2);
  dialogs.expect("Mini futbal", [this] { forms.endProgram(); });
  wait(91);
  EXPECT_TRUE(forms.isEnding());
}

}  // namespace
}  // namespace ratanka::soccer
