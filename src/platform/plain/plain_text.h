#pragma once

#include <string_view>

namespace ratanka {

// A text without the blanks that it begins with.
std::string_view trimmedLeft(std::string_view text, std::string_view blanks);
// Without those that it ends with, either.
std::string_view trimmed(std::string_view text, std::string_view blanks);

// Takes the first character off a text in UTF-8 that isn't empty, and gives its code point. A byte
// that belongs to no character, as in older encodings, is one of its own: 0x80 to 0xFF.
char32_t takeCharacter(std::string_view& text);

}  // namespace ratanka
