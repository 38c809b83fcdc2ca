#pragma once

// The system's units: every place and size of a control is told in twips, 15 to a logical pixel,
// from the upper left corner of the form's client area, x to the right and y downwards.

namespace ratanka {

inline constexpr int kTwipsPerPixel = 15;

// Logical pixels nearest to a length in twips, a half away from zero.
constexpr int pixels(int twips) {
  const int half = twips < 0 ? -kTwipsPerPixel / 2 : kTwipsPerPixel / 2;
  return (twips + half) / kTwipsPerPixel;
}

constexpr int twips(int pixels) { return pixels * kTwipsPerPixel; }

// Where a control stands and how large it is, in twips.
struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

// A point on the screen or in a window, in logical pixels.
struct ScreenPoint {
  int x = 0;
  int y = 0;
  friend constexpr bool operator==(const ScreenPoint&, const ScreenPoint&) = default;
};

struct PixelSize {
  int width = 0;
  int height = 0;
};

// A colour, each part from 0 to 255.
struct Rgb {
  int red = 0;
  int green = 0;
  int blue = 0;
  friend constexpr bool operator==(const Rgb&, const Rgb&) = default;
};

// Left or top edge that puts `length` in the middle of `available`, all in one unit, with the
// remainder cut off.
constexpr int centred(int available, int length) { return (available - length) / 2; }

}  // namespace ratanka
