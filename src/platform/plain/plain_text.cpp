#include "platform/plain/plain_text.h"

#include <algorithm>

namespace ratanka {
namespace {

// How many bytes the first character takes.
int characterBytes(std::string_view text) {
  const auto byte = [&](int at) { return static_cast<unsigned char>(text[at]); };
  const unsigned char lead = byte(0);
  const int bytes = lead < 0xC2 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (bytes == 1 || lead > 0xF4 || bytes > std::ssize(text)) return 1;
  // What no character may begin with: an overlong form, half of a pair, more than there is.
  if (lead == 0xE0 && byte(1) < 0xA0) return 1;
  if (lead == 0xED && byte(1) > 0x9F) return 1;
  if (lead == 0xF0 && byte(1) < 0x90) return 1;
  if (lead == 0xF4 && byte(1) > 0x8F) return 1;
  for (int at = 1; at < bytes; ++at) {
    if ((byte(at) & 0xC0) != 0x80) return 1;
  }
  return bytes;
}

}  // namespace

std::string_view trimmedLeft(std::string_view text, std::string_view blanks) {
  return text.substr(std::min(text.find_first_not_of(blanks), text.size()));
}

std::string_view trimmed(std::string_view text, std::string_view blanks) {
  return trimmedLeft(text.substr(0, text.find_last_not_of(blanks) + 1), blanks);
}

char32_t takeCharacter(std::string_view& text) {
  const int bytes = characterBytes(text);
  char32_t character = static_cast<unsigned char>(text.front());
  if (bytes > 1) character &= 0x7Fu >> bytes;
  for (const char byte : text.substr(1, bytes - 1)) character = character << 6 | (byte & 0x3Fu);
  text.remove_prefix(bytes);
  return character;
}

}  // namespace ratanka
