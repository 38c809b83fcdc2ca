#include "puzzle/rules/name.h"

#include <algorithm>

namespace ratanka::puzzle {
namespace {

constexpr char32_t kJoiner = 0x200D;

// What belongs to the character before it: accents and other marks, the joiner, variants and skin
// tones of pictures.
bool isMark(char32_t sign) {
  constexpr struct {
    char32_t first, last;
  } kMarks[] = {{0x0300, 0x036F}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {kJoiner, kJoiner},
                {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0x1F3FB, 0x1F3FF}};
  return std::ranges::any_of(
      kMarks, [&](const auto& range) { return range.first <= sign && sign <= range.last; });
}

// Takes the next sign off a text that isn't empty. Of malformed bytes it takes at least one, and
// what it makes of them is no matter.
char32_t takeSign(std::string_view& text) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned lead = byte(0);
  const std::size_t length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  char32_t sign = length == 1 ? lead : lead & (0x7Fu >> length);
  std::size_t bytes = 1;
  while (bytes < length && bytes < text.size() && (byte(bytes) & 0xC0) == 0x80) {
    sign = sign << 6 | (byte(bytes++) & 0x3Fu);
  }
  text.remove_prefix(bytes);
  return sign;
}

std::string_view firstCharacters(std::string_view text, int count) {
  std::string_view rest = text;
  char32_t before = 0;
  for (int characters = 0; !rest.empty();) {
    const std::size_t at = text.size() - rest.size();
    const char32_t sign = takeSign(rest);
    const bool isPart = at > 0 && (isMark(sign) || before == kJoiner);
    if (!isPart && ++characters > count) return text.substr(0, at);
    before = sign;
  }
  return text;
}

}  // namespace

std::string playerName(std::string_view answer) {
  answer.remove_prefix(std::min(answer.find_first_not_of(' '), answer.size()));
  answer.remove_suffix(answer.size() - (answer.find_last_not_of(' ') + 1));
  return std::string(firstCharacters(answer, kNameLength));
}

}  // namespace ratanka::puzzle
