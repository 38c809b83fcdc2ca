#include "platform/plain/ini_text.h"

#include <algorithm>
#include <vector>

#include "platform/plain/plain_text.h"

namespace ratanka {
namespace {

std::string_view trimmed(std::string_view text) { return ratanka::trimmed(text, " \t\r\n"); }

bool isSame(std::string_view one, std::string_view other) {
  const auto lower = [](char sign) {
    return 'A' <= sign && sign <= 'Z' ? static_cast<char>(sign + ('a' - 'A')) : sign;
  };
  return std::ranges::equal(one, other, {}, lower, lower);
}

// With their ends.
std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return lines;
}

bool isHeader(std::string_view line) { return trimmed(line).starts_with('['); }

bool isHeaderOf(std::string_view line, std::string_view section) {
  std::string_view header = trimmed(line);
  if (!header.starts_with('[') || !header.ends_with(']')) return false;
  header.remove_prefix(1);
  header.remove_suffix(1);
  return isSame(trimmed(header), section);
}

bool isKey(std::string_view line, std::string_view key) {
  const std::size_t sign = line.find('=');
  return sign != std::string_view::npos && isSame(trimmed(line.substr(0, sign)), key);
}

struct Place {
  std::size_t at = 0;  // of the key's line, or of where a new one belongs
  bool hasSection = false;
  bool hasKey = false;
};

Place find(const std::vector<std::string_view>& lines, std::string_view section,
           std::string_view key) {
  Place place{.at = lines.size()};
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string_view line = lines[i];
    if (isHeader(line) && place.hasSection) break;
    if (place.hasSection && isKey(line, key)) return {i, true, true};
    if (isHeaderOf(line, section)) place.hasSection = true;
    // Blank lines before the next section stay there.
    if (place.hasSection && !trimmed(line).empty()) place.at = i + 1;
  }
  return place;
}

}  // namespace

std::string withValue(std::string_view ini, std::string_view section, std::string_view key,
                      std::string_view value) {
  const bool isCutEnd = ini.ends_with('\r');  // between its two signs
  const bool isDos = isCutEnd || ini.find("\r\n") != std::string_view::npos;
  const std::string end = isDos ? "\r\n" : "\n";
  const std::string setting = std::string(key).append("=").append(value) + end;
  std::vector<std::string_view> lines = linesOf(ini);
  std::string unended;  // a last line that nothing ended
  if (!lines.empty() && !lines.back().ends_with('\n')) {
    unended = std::string(lines.back()) + (isCutEnd ? "\n" : end);
    lines.back() = unended;
  }
  const Place place = find(lines, section, key);
  const auto at = lines.begin() + place.at;
  const std::string header = std::string("[").append(section).append("]").append(end);
  if (place.hasKey) {
    *at = setting;
  } else if (place.hasSection) {
    lines.insert(at, setting);
  } else {
    lines.insert(at, {header, setting});
  }
  std::string result;
  for (const std::string_view line : lines) result += line;
  return result;
}

std::optional<std::string_view> valueIn(std::string_view ini, std::string_view section,
                                        std::string_view key) {
  const std::vector<std::string_view> lines = linesOf(ini);
  const Place place = find(lines, section, key);
  if (!place.hasKey) return std::nullopt;
  const std::string_view line = lines[place.at];
  return trimmed(line.substr(line.find('=') + 1));
}

std::string quoted(std::string_view value) {
  constexpr std::string_view kUnplain = "\"\\\r\n";
  if (value == trimmed(value) && value.find_first_of(kUnplain) == std::string_view::npos) {
    return std::string(value);
  }
  std::string text = "\"";
  for (const char sign : value) {
    const bool isLineEnd = sign == '\r' || sign == '\n';
    if (isLineEnd || sign == '"' || sign == '\\') text += '\\';
    text += !isLineEnd ? sign : sign == '\r' ? 'r' : 'n';
  }
  return text + '"';
}

std::string unquoted(std::string_view text) {
  std::string value;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '"') continue;
    const bool isEscape = text[i] == '\\' && i + 1 < text.size();
    if (isEscape) ++i;
    const bool isLineEnd = isEscape && (text[i] == 'r' || text[i] == 'n');
    value += !isLineEnd ? text[i] : text[i] == 'r' ? '\r' : '\n';
  }
  return value;
}

}  // namespace ratanka
