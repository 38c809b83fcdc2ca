#include "platform/plain/number.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>

#include "platform/plain/plain_text.h"

namespace ratanka {

std::optional<double> numberIn(std::string_view text) {
  std::string number(trimmed(text, " \t"));
  std::ranges::replace(number, ',', '.');
  if (number.starts_with('+') && !number.starts_with("+-")) number.erase(0, 1);
  // Keeps out the words that the conversion would take.
  if (number.find_first_not_of("0123456789.-+eE") != std::string::npos) return std::nullopt;
  double value = 0;
  const char* const end = number.data() + number.size();
  const auto [rest, error] = std::from_chars(number.data(), end, value);
  if (error != std::errc() || rest != end) return std::nullopt;
  return value;
}

}  // namespace ratanka
