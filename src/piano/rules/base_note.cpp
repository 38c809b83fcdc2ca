#include "piano/rules/base_note.h"

#include <cmath>

#include "platform/plain/number.h"

namespace ratanka::piano {

std::optional<int> baseNoteOf(std::string_view answer) {
  const std::optional<double> number = numberIn(answer);
  if (!number) return std::nullopt;
  const double note = std::nearbyint(*number);  // halves to even
  if (note < 0 || note > kMaxBaseNote) return std::nullopt;
  return static_cast<int>(note);
}

}  // namespace ratanka::piano
