#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/ports/clock.h"
#include "platform/ports/settings_store.h"
#include "platform/ports/units.h"

// The hands of the clock: where they point and what colour they have. The face has units of its own
// from the middle, 2 to each edge of the picture, y downwards.
namespace ratanka::clock {

inline constexpr double kFaceReach = 2;  // units from the middle to an edge of the picture
inline constexpr double kHourHand = 0.5;
inline constexpr double kMinuteHand = 1.0;
inline constexpr double kSecondHand = 1.0;

// In radians, 0 to the right and growing clockwise on the screen.
struct Angles {
  double hour = 0;
  double minute = 0;
  double second = 0;
};
Angles handAngles(const TimeOfDay& time);

struct Tip {
  double x = 0;
  double y = 0;
};
// Where a hand of that length ends, in units of the face.
Tip handTip(double length, double angle);

// The palette's colour of a stored index; black for an index outside 0 to 15.
Rgb paletteColour(int index);

// A number as the settings keep it: read from the start of a text behind leading blanks, 0 where
// there is none, at most as large as 16 bits hold.
int storedNumber(std::string_view text);
// One that isn't negative has a blank in front.
std::string storedText(int number);

// Indices of the palette, of the hour, the minute and the second hand, as they are stored.
using HandColours = std::array<int, 3>;
HandColours readHandColours(const SettingsStore& settings);
void writeHandColours(SettingsStore& settings, const HandColours& colours);

}  // namespace ratanka::clock
