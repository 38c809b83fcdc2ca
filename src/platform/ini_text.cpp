#include "platform/ini_text.h"

#include <algorithm>
#include <vector>

namespace ratanka {
namespace {

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

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

}  // namespace

std::string withValue(std::string_view ini, std::string_view section, std::string_view key,
                      std::string_view value) {
  const bool isDos = ini.find("\r\n") != std::string_view::npos;
  const std::string end = isDos ? "\r\n" : "\n";
  const std::string setting = std::string(key).append("=").append(value) + end;
  std::vector<std::string_view> lines = linesOf(ini);
  std::string unended;  // a last line that nothing ended
  if (!lines.empty() && !lines.back().ends_with('\n')) {
    unended = std::string(lines.back()) + end;
    lines.back() = unended;
  }
  const std::string header = std::string("[").append(section).append("]").append(end);
  auto at = std::ranges::find_if(lines, [&](auto line) { return isHeaderOf(line, section); });
  if (at == lines.end()) {
    lines.push_back(header);
    at = lines.end() - 1;
  }
  ++at;
  auto afterLast = at;  // blank lines before the next section stay there
  for (; at != lines.end() && !isHeader(*at); ++at) {
    if (isKey(*at, key)) break;
    if (!trimmed(*at).empty()) afterLast = at + 1;
  }
  if (at != lines.end() && isKey(*at, key) && !isHeader(*at)) {
    *at = setting;
  } else {
    lines.insert(afterLast, setting);
  }
  std::string result;
  for (const std::string_view line : lines) result += line;
  return result;
}

}  // namespace ratanka
