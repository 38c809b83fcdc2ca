#include "platform/controls/controls.h"

#include <QPainter>

#include "form_driver.h"
#include "platform/controls/pictures.h"
#include "platform/controls/shapes.h"
#include "platform/keyboard/keys.h"

namespace ratanka {
namespace {

TEST(KeyCodes, AreTheSystems) {
  const auto code = [](Qt::Key key, quint32 scanCode = 0,
                       Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return keyCode(QKeyEvent(QEvent::KeyPress, key, modifiers, scanCode, 0, 0));
  };
  EXPECT_EQ(code(Qt::Key_Return), 13);
  EXPECT_EQ(code(Qt::Key_Enter), 13);
  EXPECT_EQ(code(Qt::Key_Z), 90);
  EXPECT_EQ(code(Qt::Key_7), 55);
  EXPECT_EQ(code(Qt::Key_F4), 115);
  EXPECT_EQ(code(Qt::Key_Left), 37);
  EXPECT_EQ(code(Qt::Key_Clear), 12);
  EXPECT_EQ(code(Qt::Key_Comma), 188);
  EXPECT_EQ(code(Qt::Key_Ocircumflex, 47), 186) << "the place of ; on a Slovak keyboard";
  EXPECT_EQ(code(Qt::Key_Minus, 61), 191) << "the place of / on a Slovak keyboard";
  EXPECT_EQ(code(Qt::Key_VolumeUp), key::kNone);
  EXPECT_EQ(code(Qt::Key_Slash, 106, Qt::KeypadModifier), key::kNone);
  EXPECT_EQ(code(Qt::Key_Left, 83, Qt::KeypadModifier), key::kLeft);
}

TEST(DigitRow, TypesDigitsOnSlovakAndCzechKeyboardsAlone) {
  const auto digit = [](quint32 scanCode, const char* text,
                        Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return digitOfRow(QKeyEvent(QEvent::KeyPress, 0, modifiers, scanCode, 0, 0, text));
  };
  quint32 place = 10;
  for (const char* sign : {"+", "ľ", "š", "č", "ť", "ž", "ý", "á", "í", "é"}) {
    EXPECT_EQ(digit(place, sign), "1234567890"[place - 10]) << sign;
    ++place;
  }
  EXPECT_EQ(digit(11, "ě"), '2');
  EXPECT_EQ(digit(14, "ř"), '5');
  EXPECT_EQ(digit(12, "Š"), '3') << "Caps Lock";
  EXPECT_EQ(digit(11, "2", Qt::ShiftModifier), std::nullopt);
  EXPECT_EQ(digit(12, "š", Qt::ControlModifier), std::nullopt);
  EXPECT_EQ(digit(86, "+", Qt::KeypadModifier), std::nullopt);
  EXPECT_EQ(digit(11, "é"), std::nullopt) << "a French keyboard";
  EXPECT_EQ(digit(10, "1"), std::nullopt);
  EXPECT_EQ(digit(38, "á"), std::nullopt);

  TextBox box;
  QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, 15, 0, 0, "ž");
  QCoreApplication::sendEvent(&box, &press);
  EXPECT_EQ(box.text(), "6");
}

TEST(Keypad, TypesDigitsHoweverItIsSwitched) {
  constexpr quint32 kPlaces[] = {90, 87, 88, 89, 83, 84, 85, 79, 80, 81};
  constexpr int kKeys[] = {Qt::Key_Insert, Qt::Key_End,   Qt::Key_Down,  Qt::Key_PageDown,
                           Qt::Key_Left,   Qt::Key_Clear, Qt::Key_Right, Qt::Key_Home,
                           Qt::Key_Up,     Qt::Key_PageUp};
  TextBox box;
  const auto press = [&](quint32 place, int key, Qt::KeyboardModifiers modifiers) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, place, 0, 0);
    QCoreApplication::sendEvent(&box, &event);
  };
  for (std::size_t digit = 0; digit < 10; ++digit) {
    press(kPlaces[digit], kKeys[digit], Qt::KeypadModifier);
  }
  press(82, Qt::Key_Minus, Qt::KeypadModifier | Qt::ShiftModifier);
  press(113, Qt::Key_Left, Qt::NoModifier);  // an arrow of its own
  EXPECT_EQ(box.text(), "0123456789");
  EXPECT_EQ(box.cursorPosition(), 9);
}

TEST(Controls, StandWhereTheirTwipsSay) {
  QWidget form;
  EXPECT_EQ(addLabel(form, {.name = "l", .place = {1080, 360, 705, 255}})->geometry(),
            QRect(72, 24, 47, 17));
  EXPECT_EQ(addLine(form, {.name = "a", .x1 = 3480, .y1 = 480, .x2 = 3720, .y2 = 480, .width = 2})
                ->geometry(),
            QRect(232, 31, 16, 2));
  EXPECT_EQ(addLine(form, {.name = "b", .x1 = 840, .y1 = 120, .x2 = 840, .y2 = 2400, .width = 4})
                ->geometry(),
            QRect(54, 8, 4, 152));
}

TEST(Controls, PictureButtonsAreSpokenByTheirTooltips) {
  QWidget form;
  QPushButton* const button =
      addButton(form, {.name = "c", .place = {}, .tooltip = " Nové príklady ", .icon = "tick"});
  EXPECT_EQ(button->toolTip(), " Nové príklady ");
  EXPECT_EQ(button->accessibleName(), "Nové príklady");
  EXPECT_FALSE(button->icon().isNull());
}

// How many device pixels of a picture are drawn.
int drawn(const QImage& image) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
  }
  return count;
}

TEST(Pictures, AreDrawnForThePixelRatio) {
  const QPixmap plain = picture("tick", {32, 32}, 1);
  const QPixmap sharp = picture("tick", {32, 32}, 2);
  EXPECT_EQ(plain.size(), QSize(32, 32));
  EXPECT_EQ(sharp.size(), QSize(64, 64));
  EXPECT_EQ(sharp.deviceIndependentSize(), QSizeF(32, 32));
  EXPECT_GT(drawn(sharp.toImage()), 3 * drawn(plain.toImage()));
  EXPECT_TRUE(picture("nothing", {32, 32}, 1).isNull());

  const QPixmap icon = pictureIcon("icon-home").pixmap(QSize(32, 32), 2.0);
  EXPECT_EQ(icon.size(), QSize(64, 64));
  EXPECT_EQ(icon.devicePixelRatio(), 2.0);
}

TEST(Pictures, LieUnderNoControlTheyDoNotBelongTo) {
  // A tick reaches as far as the mark's field beside it, a cross as far as the counters.
  const QImage tick = picture("tick", {32, 32}, 1).toImage();
  const QImage cross = picture("cross", {32, 32}, 1).toImage();
  EXPECT_EQ(drawn(tick.copy(24, 0, 8, 32)), 0);
  EXPECT_EQ(drawn(cross.copy(0, 0, 5, 32)), 0);
  EXPECT_GT(drawn(tick), 100);
  EXPECT_GT(drawn(cross), 100);
}

}  // namespace
}  // namespace ratanka
