#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QMenu>
#include <QScrollBar>
#include <utility>

#include "all_forms.h"
#include "piano/rules/keys.h"

namespace ratanka::piano {
namespace {

constexpr FormName kMenu = names::Úvod;
constexpr FormName kPiano = names::Klavír;

class KlavírTest : public AllFormsTest {
 protected:
  KlavírTest() { forms.show(kMenu); }

  void open() {
    forms.show(kPiano);
    activate(*window(kPiano));
    midi.calls.clear();
  }
  // Since the last look.
  std::string calls() { return std::exchange(midi.calls, {}); }

  static QAbstractButton* key(int index) {
    return control<QAbstractButton>(kPiano, QString("key(%1)").arg(index));
  }
  static std::string keysDown() {
    std::string seen;
    for (int index = 0; index < kKeys; ++index) seen += key(index)->isChecked() ? '#' : '.';
    return seen;
  }
  static QAction* item(const char* name) { return control<QAction>(kPiano, name); }
};

TEST_F(KlavírTest, PlaysTheComputersKeysAndTheMouse) {
  open();
  press(Qt::Key_Z);
  press(Qt::Key_Comma);
  EXPECT_EQ(keysDown(), "#...........#....");
  EXPECT_EQ(calls(), "7F3C90 7F4890 ");
  release(Qt::Key_Z);
  EXPECT_EQ(keysDown(), "............#....");
  release(Qt::Key_Comma);
  EXPECT_EQ(calls(), "003C80 004880 ");

  QTest::mousePress(key(1), Qt::RightButton);
  EXPECT_EQ(keysDown(), ".#...............");
  QTest::mouseRelease(key(1), Qt::RightButton);
  EXPECT_EQ(keysDown(), ".................");
  EXPECT_EQ(calls(), "7F3D90 003D80 ");
  strike(Qt::Key_Q);
  EXPECT_EQ(calls(), "");
}

TEST_F(KlavírTest, AHeldKeySoundsOnceAndDoesNotHangThroughABox) {
  open();
  const auto send = [](FormName to, QEvent::Type type, bool repeats, quint64 time) {
    QKeyEvent event(type, Qt::Key_Z, Qt::NoModifier, "z", repeats);
    event.setTimestamp(time);
    QCoreApplication::sendEvent(window(to)->windowHandle(), &event);
  };
  send(kPiano, QEvent::KeyPress, false, 1);
  for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) send(kPiano, type, true, 1);
  EXPECT_EQ(calls(), "7F3C90 ");
  activate(*window(kMenu));  // stands for the box
  send(kMenu, QEvent::KeyPress, true, 640);
  activate(*window(kPiano));
  send(kPiano, QEvent::KeyPress, true, 680);
  send(kPiano, QEvent::KeyRelease, false, 720);
  EXPECT_EQ(keysDown(), ".................");
}

TEST_F(KlavírTest, AKeyComesUpAsWhatItWentDownAs) {
  open();
  // On a Slovak keyboard AltGr, pressed meanwhile, turns X into "#".
  constexpr quint32 kPlace = 53;
  QKeyEvent down(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, kPlace, 0x78, 0, "x");
  QKeyEvent up(QEvent::KeyRelease, Qt::Key_NumberSign, Qt::GroupSwitchModifier, kPlace, 0x23, 0);
  for (QKeyEvent* const event : {&down, &up}) {
    QCoreApplication::sendEvent(window(kPiano)->windowHandle(), event);
  }
  EXPECT_EQ(keysDown(), ".................");
  EXPECT_EQ(calls(), "7F3E90 003E80 ");
}

TEST_F(KlavírTest, NoKeyHangsWhenSomethingTakesTheKeyboard) {
  open();
  press(Qt::Key_Z);
  activate(*window(kMenu));
  EXPECT_EQ(keysDown(), ".................");
  EXPECT_EQ(calls(), "7F3C90 003C80 ");
  activate(*window(kPiano));
  press(Qt::Key_Z);
  control<QMenu>(kPiano, "ChannelOption")->popup({});
  EXPECT_EQ(calls(), "7F3C90 003C80 ");
  control<QMenu>(kPiano, "ChannelOption")->close();
}

TEST_F(KlavírTest, MenusChooseDeviceAndChannelAndEachOpeningStartsAfresh) {
  midi.numDevices = 12;
  open();
  const auto checked = [](const QString& menu, int items) {
    std::string all;
    for (int index = 0; index < items; ++index) {
      const auto* const each = control<QAction>(kPiano, QString("%1(%2)").arg(menu).arg(index));
      if (each->isChecked()) all += std::to_string(index) + ' ';
    }
    return all;
  };
  EXPECT_EQ(item("device(0)")->text(), "MIDI Mapper");
  EXPECT_EQ(item("device(10)")->text(), "Zvuk 9");
  EXPECT_TRUE(item("device(10)")->isVisible());
  EXPECT_EQ(checked("device", 11) + checked("chan", 16), "0 0 ");
  for (int twice = 0; twice < 2; ++twice) {
    item("device(3)")->trigger();
    EXPECT_EQ(calls(), "close open 2 ");
    EXPECT_EQ(checked("device", 11), "3 ");
  }
  item("chan(15)")->trigger();
  EXPECT_EQ(checked("chan", 16), "15 ");
  press(Qt::Key_Z);
  EXPECT_EQ(calls(), "7F3C9F ");

  midi.numDevices = 1;
  forms.unload(kPiano);
  EXPECT_EQ(calls(), "close ");
  open();
  EXPECT_EQ(checked("device", 11) + checked("chan", 16), "0 0 ");
  EXPECT_TRUE(item("device(1)")->isVisible());
  EXPECT_FALSE(item("device(2)")->isVisible());
}

TEST_F(KlavírTest, TheBaseNoteIsAskedFor) {
  open();
  dialogs.expectInput("Výška tónu", "111");
  item("base")->trigger();
  EXPECT_EQ(dialogs.asked.back().prompt, "Vložte prosím novú hodnotu výšky tónu (0 - 111)");
  EXPECT_EQ(dialogs.asked.back().preset, "60");
  dialogs.expectInput("Výška tónu", "112");
  item("base")->trigger();
  EXPECT_EQ(dialogs.asked.back().preset, "111");
  dialogs.expectInput("Výška tónu", std::nullopt, [this] { forms.drop(kPiano); });
  press(Qt::Key_Slash);
  EXPECT_EQ(calls(), "7F7F90 ");
  item("base")->trigger();
  EXPECT_FALSE(forms.isLoaded(kPiano));
}

TEST_F(KlavírTest, TheVolumeIsLoudestAtTheLeft) {
  open();
  auto* const vol = control<QScrollBar>(kPiano, "vol");
  const auto clickAt = [vol](int quarter, Qt::MouseButton button) {
    QTest::mouseClick(vol, button, {}, {vol->width() * quarter / 4, vol->height() / 2});
    return vol->value();
  };
  EXPECT_EQ(vol->value(), 127);
  EXPECT_EQ(clickAt(3, Qt::LeftButton), 111);
  strike(Qt::Key_Right);
  EXPECT_EQ(vol->value(), 110);
  strike(Qt::Key_Left);
  EXPECT_EQ(clickAt(3, Qt::RightButton), 111);
  EXPECT_EQ(vol->contextMenuPolicy(), Qt::NoContextMenu);
  vol->setValue(5);
  EXPECT_EQ(clickAt(1, Qt::LeftButton), 21);
  vol->setValue(-1);
  press(Qt::Key_Z);
  EXPECT_EQ(calls(), "003C90 ");
}

TEST_F(KlavírTest, WithoutSoundItSaysSoAndTheKeysMove) {
  midi.result = 11;
  dialogs.expect("Rátanka");
  open();
  EXPECT_EQ(dialogs.shown.front().text, "Nastala chyba v zvuku. Tóny klavíra nebude počuť");
  EXPECT_EQ(dialogs.shown.front().icon, MessageBox::Icon::none);
  press(Qt::Key_Z);
  EXPECT_EQ(keysDown(), "#................");
  dialogs.expect("Rátanka");
  item("device(1)")->trigger();
  EXPECT_TRUE(item("device(1)")->isChecked());
}

}  // namespace
}  // namespace ratanka::piano
