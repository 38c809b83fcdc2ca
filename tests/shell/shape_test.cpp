#include "shell/rules/shape.h"

#include <gtest/gtest.h>

#include "clock/rules/outline.h"

namespace ratanka {
namespace {

constexpr Point kTable[] = {{10, 6}, {26, 5}, {30, 7}, {531, 498}};
using Region = std::vector<ScreenPoint>;

TEST(FormRegion, IsTheTableAtFifteenTwipsToThePixel) {
  EXPECT_EQ(GetFormRegion(kTable), (Region{{10, 6}, {26, 5}, {30, 7}, {531, 498}}));
}

TEST(FormRegion, GrowsWithTheFormAndRoundsHalvesToEven) {
  // 12.5 and 32.5 go down, 7.5 and 37.5 up.
  EXPECT_EQ(GetFormRegion(kTable, {.TwipsPerPixelX = 12, .TwipsPerPixelY = 12}),
            (Region{{12, 8}, {32, 6}, {38, 9}, {664, 622}}));
  EXPECT_EQ(GetFormRegion(kTable, {.ScaleX = 0.5F, .ScaleY = 2, .OffsetX = -3, .OffsetY = 4}),
            (Region{{2, 16}, {10, 14}, {12, 18}, {262, 1000}}));
}

TEST(FormRegion, APointOutsideTheTableIsTheCorner) {
  EXPECT_EQ(GetPointX(kTable, 3), 531);
  for (const int index : {-1, 4, 32767}) {
    EXPECT_EQ(GetPointX(kTable, index), 0);
    EXPECT_EQ(GetPointY(kTable, index), 0);
  }
}

TEST(ClockOutline, BeginsAndEndsAtTheBellAndStaysInItsBounds) {
  const Region outline = GetFormRegion(clock::kOutline);
  ASSERT_EQ(outline.size(), 255U);
  EXPECT_EQ(Region(outline.begin(), outline.begin() + 5),
            (Region{{67, 30}, {67, 25}, {68, 22}, {70, 19}, {73, 15}}));
  EXPECT_EQ(Region(outline.end() - 4, outline.end()),
            (Region{{77, 13}, {81, 10}, {86, 8}, {91, 8}}));
  for (const ScreenPoint& point : outline) {
    EXPECT_TRUE(point.x >= 14 && point.x <= 235 && point.y >= 8 && point.y <= 186)
        << point.x << ", " << point.y;
  }
}

}  // namespace
}  // namespace ratanka
