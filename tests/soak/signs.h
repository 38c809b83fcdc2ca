#pragma once

#include <Qt>

namespace ratanka::soak {

// A key that a child finds, with what it types.
struct Sign {
  int key;
  const char* typed = "";
  Qt::KeyboardModifiers modifiers = {};
};
inline constexpr Sign kSigns[] = {
    {Qt::Key_0, "0"},
    {Qt::Key_1, "1"},
    {Qt::Key_2, "2"},
    {Qt::Key_3, "3"},
    {Qt::Key_5, "5"},
    {Qt::Key_9, "9"},
    {Qt::Key_Plus, "+"},
    {Qt::Key_Minus, "-"},
    {Qt::Key_Return},
    {Qt::Key_Enter},
    {Qt::Key_Escape},
    {Qt::Key_Space, " "},
    {Qt::Key_Tab},
    {Qt::Key_Backtab, "", Qt::ShiftModifier},
    {Qt::Key_Backspace},
    {Qt::Key_Delete},
    {Qt::Key_Left},
    {Qt::Key_Right},
    {Qt::Key_Up},
    {Qt::Key_Down},
    {Qt::Key_Home},
    {Qt::Key_End},
    {Qt::Key_PageUp},
    {Qt::Key_PageDown},
    {Qt::Key_F1},
    {Qt::Key_F2},
    {Qt::Key_F3},
    {Qt::Key_F4},
    {Qt::Key_F10},
    {Qt::Key_P, "p"},
    {Qt::Key_W, "w"},
    {Qt::Key_A, "a"},
    {Qt::Key_S, "s"},
    {Qt::Key_D, "d"},
    {Qt::Key_Z, "z"},
    {Qt::Key_X, "x"},
    {Qt::Key_Y, "y"},
    {Qt::Key_M, "m"},
    {Qt::Key_Q, "q"},
    {Qt::Key_Shift},
    {Qt::Key_Control},
    {Qt::Key_Alt},
    {Qt::Key_AltGr},
    {Qt::Key_Clear},
    {Qt::Key_Insert},
    {Qt::Key_Menu},
    {Qt::Key_CapsLock},
    {0x10c, "č"},
    {Qt::Key_Dead_Acute},
    {Qt::Key_unknown},
    {Qt::Key_Comma, ","},
    {Qt::Key_H, "h", Qt::AltModifier},
    {Qt::Key_M, "m", Qt::AltModifier},
    {Qt::Key_P, "p", Qt::AltModifier},
    {Qt::Key_O, "o", Qt::AltModifier},
    {Qt::Key_A, "", Qt::ControlModifier},
    {Qt::Key_V, "", Qt::ControlModifier},
    {Qt::Key_C, "", Qt::ControlModifier},
    {Qt::Key_Z, "", Qt::ControlModifier},
};

}  // namespace ratanka::soak
