#include "shell/rules/shape.h"

#include <cmath>

namespace ratanka {
namespace {

bool isInside(Outline outline, int index) { return index >= 0 && index < std::ssize(outline); }

int onScreen(std::int16_t coordinate, float scale, double twipsPerPixel, std::int16_t offset) {
  // Rounds halves to even, as the processor does unless told otherwise.
  return static_cast<int>(std::nearbyint(
      coordinate * static_cast<double>(scale) * kTwipsPerPixel / twipsPerPixel + offset));
}

}  // namespace

std::int16_t GetPointX(Outline outline, int index) {
  return isInside(outline, index) ? outline[index].x : std::int16_t{0};
}

std::int16_t GetPointY(Outline outline, int index) {
  return isInside(outline, index) ? outline[index].y : std::int16_t{0};
}

std::vector<ScreenPoint> GetFormRegion(Outline outline, const RegionScale& scale) {
  std::vector<ScreenPoint> region;
  region.reserve(outline.size());
  for (int i = 0; i < std::ssize(outline); ++i) {
    region.push_back(
        {onScreen(GetPointX(outline, i), scale.ScaleX, scale.TwipsPerPixelX, scale.OffsetX),
         onScreen(GetPointY(outline, i), scale.ScaleY, scale.TwipsPerPixelY, scale.OffsetY)});
  }
  return region;
}

}  // namespace ratanka
