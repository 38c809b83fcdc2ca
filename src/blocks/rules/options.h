#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/plain/ini_text.h"
#include "platform/ports/dialogs.h"

namespace ratanka::blocks {

// What the options dialog sets; it lives for a run of the program. Nothing has a value before the
// dialog's first OK.
struct Options {
  std::optional<double> StartingLevel{};  // 1 to 9, fractions among them; no value counts as 0
  std::optional<bool> FillLines{};        // blocks in the well at the start
  std::optional<bool> PlaySounds{};       // waves and music

  double startingLevel() const { return StartingLevel.value_or(0); }
  bool fillsLines() const { return FillLines.value_or(false); }
  bool playsSounds() const { return PlaySounds.value_or(false); }

  // As it stands in txtStartingLevel and, at the start of a game, in lblLevel: the shortest text of
  // the number, with a decimal point; empty without a value.
  std::string startingLevelText() const;
};

// What is wrong with a text for the starting level, told to the child; nothing if it is a number
// from 1 to 9. After the box the text field gets startingLevelText() back.
std::optional<MessageBox> refusal(std::string_view text);

// The dialog's OK. A text that would be refused leaves the starting level as it was, so that sounds
// can be switched on although nobody ever chose a level.
void accept(Options& options, std::string_view text, bool FillLines, bool PlaySounds);

// The settings file and its one section; the file is only ever written.
inline constexpr std::string_view kSettingsFile = "Kockovka32.ini";
inline constexpr std::string_view kSettingsSection = "Kockovka32";

// What stands in the section, in this order.
std::array<IniValue, 4> settings(const Options& options);

}  // namespace ratanka::blocks
