#pragma once

#include "platform/ports/units.h"

// The colours that more than one window has.
namespace ratanka {

inline constexpr Rgb kBlack{0, 0, 0};
inline constexpr Rgb kWhite{255, 255, 255};
inline constexpr Rgb kRed{255, 0, 0};
inline constexpr Rgb kBlue{0, 0, 255};
inline constexpr Rgb kYellow{255, 255, 0};

// Of our own hand: what is written and drawn with, and what on.
inline constexpr Rgb kInkColour{0x22, 0x30, 0x4a};
inline constexpr Rgb kPaper{0xff, 0xfd, 0xf5};
inline constexpr Rgb kCard{0xf3, 0xed, 0xdf};

}  // namespace ratanka
