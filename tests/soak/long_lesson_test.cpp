#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>
#include <QTimer>

#include "platform/controls/controls.h"
#include "soak/reading.h"
#include "soak/tireless_child.h"

namespace ratanka::soak {
namespace {

using namespace std::chrono_literals;

constexpr int kHours = 8;
constexpr std::ptrdiff_t kBytesAnHour = 1500;  // not one for every second of the clock

class LongLesson : public testing::Test {
 protected:
  void workFor(std::chrono::seconds duration) {
    for (; duration > 0s; duration -= 20s) child.letPass(std::min(duration, 20s));
  }

  // A sheet's nine examples, most of them well answered, and the wait for the next nine.
  void reckon() {
    QWidget& sheet = *child.window(names::Malá);
    lookAtTheSheet();
    for (int row = 1; row <= 9; ++row) {
      auto* const box = sheet.findChild<TextBox*>("Text" + QString::number(row));
      child.hands.type(QString::number(resultOf(sheet, *box) + (row == 4 ? 1 : 0)));
      child.hands.strike(Qt::Key_Return);
      child.letPass(7s);
    }
  }

  // Nine examples, each game once, and the rest of an hour at the sheet.
  void workFor1h() {
    const auto end = child.program.ticks.now() + 1h;
    reckon();
    walkTheMaze();
    playPiškôrky();
    playThePiano();
    pushTiles();
    dropBlocks();
    playAMatch(names::frmPlayer1, "cmd1Player");
    playAMatch(names::frmPlayer2, "cmd2Player");
    workFor(std::chrono::ceil<std::chrono::seconds>(end - child.program.ticks.now()));
  }

  void lookAtTheSheet() {
    child.window(names::Malá)->activateWindow();
    child.settle();
    child.use(names::Malá, "Text1");
  }

  void walkTheMaze() {
    child.use(names::Malá, "Command1");
    for (int goal = 0; goal < 3; ++goal) {
      child.letPass(5s);
      child.press(Qt::Key_Right);
      child.press(Qt::Key_Right);
    }
    child.closeFrame(names::Bludisko);
  }

  void playPiškôrky() {
    child.open(names::Piškôrky);
    for (int cell = 0; cell < 18; ++cell) {
      child.use(names::Piškôrky, QString("s(%1)").arg(cell * 4 % 9));
      child.letPass(300ms);
    }
    child.use(names::Piškôrky, "Command1");
    child.use(names::Piškôrky, "Command2");
  }

  void playThePiano() {
    child.open(names::Klavír);
    for (const Qt::Key key : {Qt::Key_Z, Qt::Key_X, Qt::Key_C, Qt::Key_V}) {
      child.press(key);
      child.use(names::Klavír, "key(7)");
      child.letPass(500ms);
    }
    for (const char* const item : {"base", "chan(3)", "device(1)", "device(2)"}) {
      child.use(names::Klavír, item);
    }
    child.closeFrame(names::Klavír);
  }

  void pushTiles() {
    child.open(names::frmPuzzle);
    child.use(names::frmPuzzle, "cmdShuffle");
    for (int tile = 0; tile < 45; ++tile) {
      child.use(names::frmPuzzle, QString("cmdButton(%1)").arg(tile % 15));
      child.letPass(1s);
    }
    child.use(names::frmPuzzle, "mnuHighScore");
    child.use(names::frmPuzzle, "mnuExit");
  }

  // The game holds the event loop: time passes inside it.
  void dropBlocks() {
    child.open(names::frmKockovka);
    child.use(names::frmKockovka, "mnuOptions");
    QTimer pulse;
    int beat = 0;
    QObject::connect(&pulse, &QTimer::timeout, &child, [&] {
      child.program.ticks.advance(250ms);
      if (beat % 3 == 0) child.hands.strike(beat % 2 == 0 ? Qt::Key_Left : Qt::Key_Up);
      if (++beat == 100) child.use(names::frmKockovka, "mnuEndGame");
    });
    pulse.start();
    child.use(names::frmKockovka, "mnuNewGame");
    pulse.stop();
    EXPECT_GE(beat, 100);
    child.use(names::frmKockovka, "mnuExit");
  }

  void playAMatch(FormName match, const char* button) {
    child.open(names::frmStartUp);
    child.use(names::frmStartUp, button);
    child.press(Qt::Key_Right);
    child.letPass(3s);
    for (int second = 0; second < 100; ++second) {
      child.program.ticks.sleep(1s);
      if (second % 5 == 0) child.settle();
    }
    EXPECT_EQ(child.window(match), nullptr);
    child.use(names::frmStartUp, "imgEnd");
  }

  static QString easyMaze(const QTemporaryDir& folder) {
    QFile maze(folder.filePath("easy.txt"));
    EXPECT_TRUE(maze.open(QIODevice::WriteOnly));
    maze.write("4,6\n######\n#s.f##\n##...#\n######\n");
    return maze.fileName();
  }

  const QTemporaryDir folder;
  TirelessChild child{easyMaze(folder)};
};

TEST_F(LongLesson, EightHoursLeaveNothingBehind) {
  child.open(names::frmSplash);
  const Rest menu = child.rest();
  EXPECT_EQ(menu.timers, 0U);
  child.use(names::Úvod, "Command1");
  const Rest sheet = child.rest();

  workFor1h();  // which has fonts and the like to load
  const Things things = child.things();
  std::vector<std::ptrdiff_t> growths;
  for (int hour = 2; hour <= kHours; ++hour) {
    const std::ptrdiff_t before = child.memory();
    workFor1h();
    if (HasFatalFailure()) return;
    growths.push_back(child.memory() - before);
    EXPECT_EQ(child.things(), things) << hour;
  }
  EXPECT_LE(median(growths), kBytesAnHour) << testing::PrintToString(growths);
  EXPECT_EQ(child.window(names::Malá)->findChild<QLabel*>("Label37")->text(),
            QString::number(8 * kHours));

  // A match that was left is only hidden: its timers tick on, a few times a second.
  for (const FormName match : {names::frmPlayer1, names::frmPlayer2}) {
    child.program.forms.drop(match);
  }
  lookAtTheSheet();
  EXPECT_EQ(child.rest(), sheet);
  child.use(names::Malá, "Command3");
  EXPECT_EQ(child.rest(), menu);
}

}  // namespace
}  // namespace ratanka::soak
