// Anything may stand in a settings file that one value is set in. Whatever it is, the value is
// found there afterwards, and nothing else has changed.
//
// An input's first line is the value, the rest is the file.

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "fuzz/law.h"
#include "platform/plain/ini_text.h"
#include "platform/settings/ini_file.h"

namespace {

using namespace ratanka;

constexpr auto kSection = "Section";
constexpr auto kKey = "Key One";

std::string plain(std::string text) {
  std::ranges::transform(text, text.begin(), [](char sign) {
    return 'A' <= sign && sign <= 'Z' ? static_cast<char>(sign | 0x20) : sign;
  });
  const auto isBlank = [](char sign) {
    return std::string(" \t\r\n").find(sign) != std::string::npos;
  };
  while (!text.empty() && isBlank(text.front())) text.erase(0, 1);
  while (!text.empty() && isBlank(text.back())) text.pop_back();
  return text;
}

// With their ends, which the last one may lack.
std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size(); at += lines.back().size()) {
    const std::size_t end = std::min(text.find('\n', at), text.size() - 1);
    lines.push_back(text.substr(at, end + 1 - at));
  }
  return lines;
}

// The line of the first section of that name that sets the key.
std::string settingIn(const std::string& ini) {
  bool isInside = false;
  for (const std::string& line : linesOf(ini)) {
    const std::string content = plain(line);
    if (content.starts_with('[')) {
      if (isInside) break;
      isInside =
          content.ends_with(']') && plain(content.substr(1, content.size() - 2)) == "section";
    } else if (isInside && line.find('=') != std::string::npos) {
      if (plain(line.substr(0, line.find('='))) == "key one") return line;
    }
  }
  return {};
}

// One line is there instead of another that set a value, or in addition, perhaps with a header.
void holdOnlyOneChange(const std::string& before, const std::string& after) {
  std::vector<std::string> old = linesOf(before);
  std::vector<std::string> now = linesOf(after);
  const bool isCutEnd = before.ends_with('\r');
  const bool isDos = isCutEnd || before.find("\r\n") != std::string::npos;
  const std::string end = isDos ? "\r\n" : "\n";
  if (!old.empty() && !old.back().ends_with('\n')) old.back() += isCutEnd ? "\n" : end;
  const auto [oldStart, nowStart] = std::ranges::mismatch(old, now);
  const auto [oldEnd, nowEnd] = std::mismatch(old.rbegin(), std::reverse_iterator(oldStart),
                                              now.rbegin(), std::reverse_iterator(nowStart));
  const auto removed = oldEnd.base() - oldStart;
  const auto added = nowEnd.base() - nowStart;
  hold(added <= 2 && removed <= 1 && (removed == 0 || added == 1));
  if (removed == 1) hold(oldStart->find('=') != std::string::npos);
  if (added == 2) hold(*nowStart == "[" + std::string(kSection) + "]" + end);
}

std::string throughFile(const std::string& ini, const std::string& value) {
  static const QTemporaryDir folder("/dev/shm/ini_fuzz-XXXXXX");
  const QString path = folder.filePath("a.ini");
  QFile file(path);
  hold(file.open(QIODevice::WriteOnly));
  file.write(ini.data(), static_cast<qint64>(ini.size()));
  file.close();
  const IniValue values[] = {{kKey, "another"}, {kKey, value}};
  writeIniValues(path, kSection, values);
  hold(file.open(QIODevice::ReadOnly));
  return file.readAll().toStdString();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  const std::string value = input.substr(0, input.find_first_of("\r\n"));
  const std::string ini = value.size() < input.size() ? input.substr(value.size() + 1) : "";
  const std::string result = withValue(ini, kSection, kKey, value);
  hold(settingIn(result).starts_with(kKey + ("=" + value)));
  holdOnlyOneChange(ini, result);
  hold(withValue(result, kSection, kKey, value) == result);
  hold(withValue(withValue(ini, kSection, kKey, "another"), kSection, kKey, value) == result);
  hold(throughFile(ini, value) == result);
  return 0;
}
