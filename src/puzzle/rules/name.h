#pragma once

#include <string>
#include <string_view>

namespace ratanka::puzzle {

inline constexpr int kNameLength = 20;  // characters

// A player's name as the best times keep it: without the blanks around, then cut to its first
// kNameLength characters. A letter with the marks that stand on it is one character, however it is
// encoded; so is a picture made of several joined ones. UTF-8 in and out; malformed bytes count as
// characters of their own and are kept.
std::string playerName(std::string_view answer);

}  // namespace ratanka::puzzle
