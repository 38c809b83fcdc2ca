#pragma once

#include <optional>
#include <string_view>

namespace ratanka {

// The number that somebody has typed: with a decimal comma, as at school, or a point, perhaps a
// sign, an exponent, and blanks around it. Nothing for every other text; words such as "inf" and
// hexadecimal digits are none.
std::optional<double> numberIn(std::string_view text);

}  // namespace ratanka
