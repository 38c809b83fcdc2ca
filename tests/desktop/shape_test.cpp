#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "clock/rules/outline.h"
#include "desktop/places.h"

namespace ratanka {
namespace {

using Polygon = std::vector<ScreenPoint>;

const Polygon kMenuEdge{{0, 0}, {241, 0}, {241, 276}, {2, 275}, {1, 276}};
const Polygon kSheetEdge{{10, 6},    {26, 5},    {30, 7},    {250, 7},   {251, 8},   {253, 5},
                         {258, 10},  {262, 10},  {262, 11},  {283, 11},  {287, 9},   {288, 6},
                         {291, 6},   {291, 8},   {512, 8},   {514, 7},   {531, 7},   {531, 25},
                         {529, 26},  {528, 422}, {530, 423}, {531, 438}, {529, 440}, {519, 441},
                         {516, 439}, {516, 498}, {27, 498},  {27, 443},  {15, 443},  {11, 441},
                         {9, 439},   {8, 424},   {10, 422},  {11, 6},    {26, 6}};
const Polygon kCardEdge{{6, 3}, {357, 3}, {357, 458}, {6, 458}};

// Even-odd, by the edges that a ray to the right crosses.
bool isInside(const Polygon& polygon, double x, double y) {
  bool inside = false;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const ScreenPoint& a = polygon[i];
    const ScreenPoint& b = polygon[(i + 1) % polygon.size()];
    if ((a.y > y) == (b.y > y)) continue;
    inside ^= x < a.x + (y - a.y) * (b.x - a.x) / (b.y - a.y);
  }
  return inside;
}

// The server's shape is the polygon, but for pixels that its edge touches.
void expectShape(const PrivateDesktop& desktop, const char* title, PixelSize size,
                 const Polygon& polygon) {
  const std::vector<std::string> shape = desktop.shape(title, size);
  int wrong = 0;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      int corners = 0;
      for (const double dx : {-1.1, 1.1}) {
        for (const double dy : {-1.1, 1.1}) corners += isInside(polygon, x + dx, y + dy) ? 1 : 0;
      }
      const bool shown = shape[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == '#';
      wrong += (corners == 4 && !shown) || (corners == 0 && shown) ? 1 : 0;
    }
  }
  // A notch one pixel wide has all its corners on the other side.
  EXPECT_LE(wrong, 12) << title;
}

TEST(Shape, IsCutToItsOutline) {
  PrivateDesktop desktop(kScreen);
  desktop.startProgram();
  ASSERT_TRUE(desktop.waitForActive(kMenu));
  expectShape(desktop, kMenu, {248, 285}, kMenuEdge);

  EXPECT_EQ(desktop.place(kMenu), (ScreenPoint{kMenuCorner.x, kMenuCorner.y}));

  clickMenu(desktop, 0);
  ASSERT_TRUE(desktop.waitForActive(kSheet));
  expectShape(desktop, kSheet, {536, 501}, kSheetEdge);
  Polygon clockEdge;
  for (const Point& point : clock::kOutline) clockEdge.push_back({point.x, point.y});
  expectShape(desktop, "Hodiny", {239, 190}, clockEdge);

  clickIn(desktop, kSheetCorner, 476, 460);
  ASSERT_TRUE(desktop.waitForActive(kMenu));
  clickIn(desktop, kMenuCorner, 120, 252);
  ASSERT_TRUE(desktop.waitForActive(kCard));
  expectShape(desktop, kCard, {359, 464}, kCardEdge);
}

}  // namespace
}  // namespace ratanka
