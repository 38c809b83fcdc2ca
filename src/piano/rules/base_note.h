#pragma once

#include <optional>
#include <string_view>

#include "piano/rules/keys.h"

namespace ratanka::piano {

// The MIDI note of key 0. The highest key must lie in the range of notes, too, which ends at 127.
inline constexpr int kMaxBaseNote = 127 - (kKeys - 1);

// The note that a child has written, from 0 to kMaxBaseNote; nothing for a text that is no number
// and for a number outside that range. A number may have a sign, a fraction behind a comma or a
// point, an exponent (1e1), and blanks around it, but none inside. It is rounded to the nearest
// whole one, a half to the even neighbour.
std::optional<int> baseNoteOf(std::string_view answer);

}  // namespace ratanka::piano
