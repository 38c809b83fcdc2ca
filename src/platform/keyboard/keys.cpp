#include "platform/keyboard/keys.h"

#include <QKeyEvent>
#include <QStringView>
#include <array>
#include <string_view>

namespace ratanka {
namespace {

int codeOfPlace(quint32 scanCode) {
  // Scan codes of X11 and Wayland: the kernel's key number plus 8.
  switch (scanCode) {
    case 47:
      return key::kSemicolon;
    case 59:
      return key::kComma;
    case 60:
      return key::kPeriod;
    case 61:
      return key::kSlash;
    default:
      return key::kNone;
  }
}

// The keypad's own signs are none of the keys that the system names.
bool isKeypadSign(const QKeyEvent& event) {
  return event.modifiers().testFlag(Qt::KeypadModifier) &&
         (event.key() == Qt::Key_Slash || event.key() == Qt::Key_Period ||
          event.key() == Qt::Key_Comma);
}

int codeOfSign(int sign) {
  if (sign >= Qt::Key_A && sign <= Qt::Key_Z) return sign;
  if (sign >= Qt::Key_0 && sign <= Qt::Key_9) return sign;
  if (sign >= Qt::Key_F1 && sign <= Qt::Key_F12) return key::kF1 + (sign - Qt::Key_F1);
  switch (sign) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return key::kEnter;
    case Qt::Key_Backspace:
      return key::kBackspace;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return key::kTab;
    case Qt::Key_Clear:
      return key::kClear;
    case Qt::Key_Control:
      return key::kControl;
    case Qt::Key_Escape:
      return key::kEscape;
    case Qt::Key_Space:
      return key::kSpace;
    case Qt::Key_Left:
      return key::kLeft;
    case Qt::Key_Up:
      return key::kUp;
    case Qt::Key_Right:
      return key::kRight;
    case Qt::Key_Down:
      return key::kDown;
    case Qt::Key_Semicolon:
      return key::kSemicolon;
    case Qt::Key_Comma:
      return key::kComma;
    case Qt::Key_Period:
      return key::kPeriod;
    case Qt::Key_Slash:
      return key::kSlash;
    default:
      return key::kNone;
  }
}

}  // namespace

std::optional<char> digitOfKeypad(const QKeyEvent& event) {
  // From the scan code of the key of 7 on; a blank for the keys between the digits.
  static constexpr std::string_view kKeys = "789 456 1230";
  constexpr quint32 kFirstScanCode = 79;
  const quint32 place = event.nativeScanCode() - kFirstScanCode;
  const bool isDigit = event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9;
  if (event.modifiers() != Qt::KeypadModifier || isDigit || place >= kKeys.size()) {
    return std::nullopt;
  }
  return kKeys[place] == ' ' ? std::nullopt : std::optional(kKeys[place]);
}

std::optional<char> digitOfRow(const QKeyEvent& event) {
  struct Key {
    char digit;
    QStringView signs;
  };
  // From the key of 1 to that of 0.
  static constexpr std::array<Key, 10> kRow{{{'1', u"+"},
                                             {'2', u"ľě"},
                                             {'3', u"š"},
                                             {'4', u"č"},
                                             {'5', u"ťř"},
                                             {'6', u"ž"},
                                             {'7', u"ý"},
                                             {'8', u"á"},
                                             {'9', u"í"},
                                             {'0', u"é"}}};
  constexpr quint32 kFirstScanCode = 10;
  const quint32 place = event.nativeScanCode() - kFirstScanCode;
  const QString sign = event.text().toLower();
  if (event.modifiers() != Qt::NoModifier || sign.size() != 1 || place >= kRow.size()) {
    return std::nullopt;
  }
  const Key& key = kRow.at(place);
  return key.signs.contains(sign.front()) ? std::optional(key.digit) : std::nullopt;
}

int keyCode(const QKeyEvent& event) {
  const bool isLetter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
  const int place = isLetter ? key::kNone : codeOfPlace(event.nativeScanCode());
  if (place != key::kNone) return place;
  return isKeypadSign(event) ? key::kNone : codeOfSign(event.key());
}

}  // namespace ratanka
