#include "puzzle/rules/name.h"

#include <algorithm>

#include "platform/plain/plain_text.h"

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

std::string_view firstCharacters(std::string_view text, int count) {
  std::string_view rest = text;
  char32_t before = 0;
  for (int characters = 0; !rest.empty();) {
    const std::size_t at = text.size() - rest.size();
    const char32_t sign = takeCharacter(rest);
    const bool isPart = at > 0 && (isMark(sign) || before == kJoiner);
    if (!isPart && ++characters > count) return text.substr(0, at);
    before = sign;
  }
  return text;
}

}  // namespace

std::string playerName(std::string_view answer) {
  return std::string(firstCharacters(trimmed(answer, " "), kNameLength));
}

}  // namespace ratanka::puzzle
