#pragma once

#include <optional>

class QKeyEvent;

namespace ratanka {

// The system's key codes that are named in the code; letters and digits are their ASCII signs
// (letters in upper case).
namespace key {
inline constexpr int kNone = 0;
inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kClear = 12;
inline constexpr int kEnter = 13;  // both Enter keys
inline constexpr int kControl = 17;
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;
inline constexpr int kLeft = 37;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
inline constexpr int kF1 = 112;
inline constexpr int kSemicolon = 186;
inline constexpr int kComma = 188;
inline constexpr int kPeriod = 190;
inline constexpr int kSlash = 191;
}  // namespace key

// The system's code of a key; kNone for one that the system doesn't know. Letters go by the sign on
// the key; the four signs at the lower right, which a Slovak keyboard has elsewhere, go by their
// place on the keyboard.
int keyCode(const QKeyEvent& event);

// The digit of a key of the keypad that types none, since the keypad isn't switched to digits.
// Nothing for a key that is pressed with another one.
std::optional<char> digitOfKeypad(const QKeyEvent& event);

// The digit of a key in the row above the letters, where that key by itself types one of the signs
// that Slovak and Czech keyboards have there (+ ľ š č ť ž ý á í é, + ě š č ř ž ý á í é). Nothing
// for a key that is pressed with another one, and for all other keys and layouts.
std::optional<char> digitOfRow(const QKeyEvent& event);

}  // namespace ratanka
