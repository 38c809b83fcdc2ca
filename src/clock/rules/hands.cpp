#include "clock/rules/hands.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/plain/plain_text.h"

namespace ratanka::clock {
namespace {

constexpr double kFullTurn = 6.28318530717958;
constexpr double kQuarterTurn = 1.570796326794895;  // brings 0 to twelve o'clock

// The sixteen colours of text screens: the plain ones, then the light ones.
constexpr std::array<Rgb, 16> kPalette{{{0, 0, 0},
                                        {0, 0, 128},
                                        {0, 128, 0},
                                        {0, 128, 128},
                                        {128, 0, 0},
                                        {128, 0, 128},
                                        {128, 128, 0},
                                        {192, 192, 192},
                                        {128, 128, 128},
                                        {0, 0, 255},
                                        {0, 255, 0},
                                        {0, 255, 255},
                                        {255, 0, 0},
                                        {255, 0, 255},
                                        {255, 255, 0},
                                        {255, 255, 255}}};

constexpr std::string_view kApplication = "Ciferka";
constexpr std::string_view kSection = "Hands";
constexpr std::array<std::string_view, 3> kKeys{"mlHcolor", "mlMcolor", "mlScolor"};

}  // namespace

Angles handAngles(const TimeOfDay& time) {
  const auto angle = [](double position, double positions) {
    return position * kFullTurn / positions - kQuarterTurn;
  };
  return {.hour = angle(time.hour + time.minute / 60.0, 12),
          .minute = angle(time.minute + time.second / 60.0, 60),
          .second = angle(time.second, 60)};
}

Tip handTip(double length, double angle) {
  return {length * std::cos(angle), length * std::sin(angle)};
}

Rgb paletteColour(int index) {
  const bool isKnown = index >= 0 && index < std::ssize(kPalette);
  return kPalette.at(isKnown ? index : 0);
}

int storedNumber(std::string_view text) {
  text = trimmedLeft(text, " ");
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  long long number = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
  using Limits = std::numeric_limits<std::int16_t>;
  if (end.ec == std::errc::result_out_of_range) {
    number = text.starts_with('-') ? Limits::min() : Limits::max();
  }
  return static_cast<int>(std::clamp<long long>(number, Limits::min(), Limits::max()));
}

std::string storedText(int number) {
  std::string text(number < 0 ? 0 : 1, ' ');
  return text.append(std::to_string(number));
}

HandColours readHandColours(const SettingsStore& settings) {
  HandColours colours{};
  for (std::size_t hand = 0; hand < colours.size(); ++hand) {
    colours.at(hand) = storedNumber(settings.read(kApplication, kSection, kKeys.at(hand), ""));
  }
  return colours;
}

void writeHandColours(SettingsStore& settings, const HandColours& colours) {
  for (std::size_t hand = 0; hand < colours.size(); ++hand) {
    settings.write(kApplication, kSection, kKeys.at(hand), storedText(colours.at(hand)));
  }
}

}  // namespace ratanka::clock
