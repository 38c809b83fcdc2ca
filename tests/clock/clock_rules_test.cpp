#include <gtest/gtest.h>

#include <cmath>

#include "clock/rules/elapsed_time.h"
#include "clock/rules/hands.h"

namespace ratanka::clock {
namespace {

// Where a hand points: minutes of the face, from twelve o'clock.
double pointsAt(double angle) {
  const Tip tip = handTip(1, angle);
  const double turns = std::atan2(tip.x, -tip.y) / (2 * M_PI);
  return std::fmod(60 * turns + 60, 60);
}

TEST(Hands, PointWhereTheTimeSays) {
  const struct {
    TimeOfDay time;
    double hour, minute, second;
  } times[] = {{{12, 0, 0}, 0, 0, 0},          {{3, 0, 0}, 15, 0, 0},
               {{14, 30, 0}, 12.5, 30, 0},     {{2, 30, 15}, 12.5, 30.25, 15},
               {{0, 0, 59}, 0, 59.0 / 60, 59}, {{23, 59, 30}, 59 + 11.0 / 12, 59.5, 30}};
  for (const auto& [time, hour, minute, second] : times) {
    const Angles angles = handAngles(time);
    const auto isAt = [](double angle, double minutes) {
      const double off = std::fabs(pointsAt(angle) - minutes);
      return std::min(off, 60 - off) < 1e-6;
    };
    EXPECT_TRUE(isAt(angles.hour, hour)) << time.hour << ':' << time.minute;
    EXPECT_TRUE(isAt(angles.minute, minute)) << time.hour << ':' << time.minute;
    EXPECT_TRUE(isAt(angles.second, second)) << time.hour << ':' << time.minute;
  }
}

TEST(Hands, GrowFromTheMiddleByTheirLength) {
  const Tip tip = handTip(0.5, handAngles({3, 0, 0}).hour);
  EXPECT_NEAR(tip.x, 0.5, 1e-9);
  EXPECT_NEAR(tip.y, 0, 1e-9);
}

TEST(ElapsedTime, CountsSixtyHoursAndStartsAnew) {
  ElapsedTime elapsed;
  for (int second = 1; second <= 61 * 3600; ++second) {
    elapsed.tick();
    ASSERT_EQ(elapsed.seconds(), second % 60) << second;
    ASSERT_EQ(elapsed.minutes(), second / 60 % 60) << second;
    ASSERT_EQ(elapsed.hours(), second / 3600 % 60) << second;
  }
}

TEST(StoredColours, AreReadAsFarAsTheyAreNumbers) {
  const std::pair<const char*, int> texts[] = {
      {"", 0},    {" 0", 0},   {"   12", 12}, {"7 red", 7},           {"red", 0},
      {"-3", -3}, {" +5", 5},  {"+-5", 0},    {"99999999999", 32767}, {"-40000", -32768},
      {"2.9", 2}, {"\xff", 0}, {"    ", 0}};
  for (const auto& [text, number] : texts) EXPECT_EQ(storedNumber(text), number) << text;
  EXPECT_EQ(storedText(0), " 0");
  EXPECT_EQ(storedText(12), " 12");
  EXPECT_EQ(storedText(-3), "-3");
}

TEST(StoredColours, AreBlackOutsideThePalette) {
  EXPECT_EQ(paletteColour(4), (Rgb{128, 0, 0}));
  EXPECT_EQ(paletteColour(12), (Rgb{255, 0, 0}));
  EXPECT_EQ(paletteColour(15), (Rgb{255, 255, 255}));
  for (const int index : {-32768, -1, 0, 16, 32767}) EXPECT_EQ(paletteColour(index), Rgb{});
}

}  // namespace
}  // namespace ratanka::clock
