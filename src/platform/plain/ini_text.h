#pragma once

#include <optional>
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

// The value that withValue() would replace, as it stands there without the blanks around; nothing
// where it would add one.
std::optional<std::string_view> valueIn(std::string_view ini, std::string_view section,
                                        std::string_view key);

// A value of any signs as it can stand behind a key, in quotation marks where it needs them, and
// back. What somebody wrote by hand without marks is taken as it is, but for its backslashes.
std::string quoted(std::string_view value);
std::string unquoted(std::string_view text);

}  // namespace ratanka
