#include "blocks/rules/options.h"

#include <charconv>

#include "platform/plain/number.h"

namespace ratanka::blocks {
namespace {

constexpr double kLowestLevel = 1;
constexpr double kHighestLevel = 9;

bool isLevel(double number) { return kLowestLevel <= number && number <= kHighestLevel; }

std::string textOf(const std::optional<bool>& flag) {
  if (!flag) return "";
  return *flag ? "True" : "False";
}

}  // namespace

std::string Options::startingLevelText() const {
  if (!StartingLevel) return "";
  std::array<char, 32> text{};  // the longest double has 24 signs
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), *StartingLevel);
  return {text.data(), end};
}

std::optional<MessageBox> refusal(std::string_view text) {
  const std::optional<double> number = numberIn(text);
  if (number && isLevel(*number)) return std::nullopt;
  return MessageBox{.title = "Rátanka - hra TETRIS",
                    .text = number ? " Číslo musí mať hodnotu medzi 1 a 9"
                                   : "V poli LEVEL prosím zadajte číslo medzi 1 a 9",
                    .icon = MessageBox::Icon::none};
}

void accept(Options& options, std::string_view text, bool FillLines, bool PlaySounds) {
  const std::optional<double> number = numberIn(text);
  if (number && isLevel(*number)) options.StartingLevel = number;
  options.FillLines = FillLines;
  options.PlaySounds = PlaySounds;
}

std::array<IniValue, 4> settings(const Options& options) {
  return {{{"Starting Level", options.startingLevelText()},
           {"Fill Lines", textOf(options.FillLines)},
           {"Play Sounds", textOf(options.PlaySounds)},
           {"Hide Splash", ""}}};
}

}  // namespace ratanka::blocks
