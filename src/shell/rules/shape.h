#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/ports/units.h"

namespace ratanka {

// A point of an outline, in pixels of the form's background picture.
struct Point {
  std::int16_t x = 0;
  std::int16_t y = 0;
};
using Outline = std::span<const Point>;

// A coordinate of the point with that index; 0 for an index outside the table.
std::int16_t GetPointX(Outline outline, int index);
std::int16_t GetPointY(Outline outline, int index);

// What the region of a form is made with.
struct RegionScale {
  float ScaleX = 1;
  float ScaleY = 1;
  std::int16_t OffsetX = 0;  // pixels
  std::int16_t OffsetY = 0;
  double TwipsPerPixelX = kTwipsPerPixel;  // of the screen, above 0
  double TwipsPerPixelY = kTwipsPerPixel;
};

// The outline in pixels of the screen, to be filled by the even-odd rule. The tables are written
// for 15 twips to the pixel and grow with the form on other densities; coordinates are rounded to
// the nearest whole number, a half to the even neighbour.
std::vector<ScreenPoint> GetFormRegion(Outline outline, const RegionScale& scale = {});

}  // namespace ratanka
