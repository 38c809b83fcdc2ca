#pragma once

#include <array>

#include "shell/rules/shape.h"

namespace ratanka::clock {

inline constexpr int kOutlinePoints = 255;

// The edge of the clock's picture, in its pixels, clockwise from the left bell's side. To be filled
// by the even-odd rule: a seam across that bell is walked there and back.
extern const std::array<Point, kOutlinePoints> kOutline;

}  // namespace ratanka::clock
