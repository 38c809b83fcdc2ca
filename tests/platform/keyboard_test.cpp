#include "platform/keyboard/keyboard.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWindow>

#include "platform/keyboard/keys.h"

// Where the window system doesn't mark repeats.
namespace ratanka {
namespace {

class KeyboardTest : public testing::Test {
 protected:
  // A window that notes what comes: down, repeat, up.
  struct Ear : QWindow {
    QString heard;

   protected:
    void keyPressEvent(QKeyEvent* event) override { heard += event->isAutoRepeat() ? 'r' : 'd'; }
    void keyReleaseEvent(QKeyEvent*) override { heard += 'u'; }
  };

  void send(QWindow& window, QEvent::Type type, quint64 time, int key = Qt::Key_Return) {
    QKeyEvent event(type, key, Qt::NoModifier, static_cast<quint32>(key & 0xff), 0, 0, "x");
    event.setTimestamp(time);
    QCoreApplication::sendEvent(&window, &event);
  }
  void press(QWindow& window, quint64 time, int key = Qt::Key_Return) {
    send(window, QEvent::KeyPress, time, key);
  }
  void release(QWindow& window, quint64 time) { send(window, QEvent::KeyRelease, time); }

  Ear sheet;
  Ear box;
  Keyboard keyboard{Keyboard::Repeats::unmarked};
};

TEST_F(KeyboardTest, AHeldKeyGoesDownOnceAndRepeats) {
  press(sheet, 1000);
  for (const int time : {1660, 1700, 1740}) press(sheet, static_cast<quint64>(time));
  release(sheet, 1750);
  press(sheet, 1751);
  EXPECT_EQ(sheet.heard, "drrrud");
}

TEST_F(KeyboardTest, AKeyIsHeardOnlyInTheWindowInWhichItWentDown) {
  press(box, 1000);
  press(sheet, 1040);  // the box is gone
  release(sheet, 1050);
  press(sheet, 1060);
  press(box, 1100);
  press(sheet, 1140);  // back again, and still held
  release(sheet, 1150);
  EXPECT_EQ(sheet.heard, "d");
  EXPECT_EQ(box.heard, "d");
}

TEST_F(KeyboardTest, AKeyThatIsLetGoOfRepeatsNoMoreAndComesUp) {
  press(sheet, 1000);
  keyboard.letGo(&sheet);
  press(sheet, 1040);
  release(sheet, 1050);
  EXPECT_EQ(sheet.heard, "du");
}

TEST_F(KeyboardTest, ALostReleaseIsForgottenAfterAWhileOrWithTheNextKey) {
  press(box, 1000);
  press(sheet, 2500);
  EXPECT_EQ(sheet.heard, "d");
  press(box, 4000);
  press(sheet, 4100, Qt::Key_1);
  press(sheet, 4200);
  EXPECT_EQ(sheet.heard, "ddd");
}

TEST_F(KeyboardTest, NoMenuHearsARepeat) {
  const auto asksMenus = [&](quint64 time) {
    QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Return, Qt::NoModifier, 4, 0, 0, "x");
    event.setTimestamp(time);
    event.ignore();
    QCoreApplication::sendEvent(&sheet, &event);
    return !event.isAccepted();
  };
  EXPECT_TRUE(asksMenus(1000));
  press(sheet, 1000);
  EXPECT_FALSE(asksMenus(1660));
  release(sheet, 1700);
  EXPECT_TRUE(asksMenus(1710));  // an item is chosen: the press itself doesn't come
  EXPECT_FALSE(asksMenus(2370));
  EXPECT_EQ(sheet.heard, "du");
}

}  // namespace
}  // namespace ratanka
