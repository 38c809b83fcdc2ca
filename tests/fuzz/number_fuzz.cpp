// A child types anything where a number is asked for, and anything may stand where one is stored.
// Whatever it is, it is no number or one within its range.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

#include "blocks/rules/options.h"
#include "clock/rules/hands.h"
#include "fuzz/law.h"
#include "piano/rules/base_note.h"
#include "platform/plain/number.h"

namespace {

using namespace ratanka;

void tryNumber(const std::string& text) {
  const std::optional<double> number = numberIn(text);
  hold(numberIn(" \t" + text + " ") == number);
  for (const char* end : {"x", "P", "inf", "nan", "-"}) hold(!numberIn(text + end));
  if (!number) return;
  hold(std::isfinite(*number));
  std::string withCommas = text;
  std::ranges::replace(withCommas, '.', ',');
  hold(numberIn(withCommas) == number);
}

void tryLevel(const std::string& text) {
  blocks::Options options;
  accept(options, text, true, false);
  hold(options.StartingLevel.has_value() == !blocks::refusal(text));
  if (!options.StartingLevel) return;
  const double level = options.startingLevel();
  hold(1 <= level && level <= 9 && numberIn(text) == level);
  hold(numberIn(options.startingLevelText()) == level);
}

void tryBaseNote(const std::string& text) {
  const std::optional<int> note = piano::baseNoteOf(text);
  if (!note) return;
  hold(0 <= *note && *note <= piano::kMaxBaseNote && std::abs(*numberIn(text) - *note) <= 0.5);
}

void tryStored(const std::string& text) {
  using Limits = std::numeric_limits<std::int16_t>;
  const int stored = clock::storedNumber(text);
  hold(Limits::min() <= stored && stored <= Limits::max());
  hold(clock::storedNumber(clock::storedText(stored)) == stored);
  hold(clock::storedNumber("  " + text) == stored);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  tryNumber(text);
  tryLevel(text);
  tryBaseNote(text);
  tryStored(text);
  return 0;
}
