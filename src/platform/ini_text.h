#pragma once

#include <string>
#include <string_view>

namespace ratanka {

struct IniValue {
  std::string_view key;
  std::string value;
};

// The text of a settings file ([section] headers, key=value lines) with one value set. A key that
// is there keeps its place; a new one comes to the end of its section, a new section to the end of
// the text. Section and key are found whatever the case of their ASCII letters. Everything else
// stays byte for byte.
std::string withValue(std::string_view ini, std::string_view section, std::string_view key,
                      std::string_view value);

}  // namespace ratanka
