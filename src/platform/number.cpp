#include "platform/number.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>

namespace ratanka {
namespace {

std::string_view withoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

}  // namespace

std::optional<double> numberIn(std::string_view text) {
  std::string number(withoutBlanks(text));
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
