#include "platform/settings/ini_settings_store.h"

#include <QDir>
#include <QStandardPaths>
#include <optional>

#include "platform/base/text.h"
#include "platform/plain/ini_text.h"
#include "platform/settings/ini_file.h"

namespace ratanka {
namespace {

// A name as the file has it: signs that could be taken for something else are written as their
// numbers.
std::string encoded(std::string_view name) {
  QString plain;
  for (const QChar sign : text(name)) {
    const ushort number = sign.unicode();
    const bool isPlain =
        number < 0x80 && (sign.isLetterOrNumber() || QStringView(u"_-.").contains(sign));
    if (isPlain) plain += sign;
    if (!isPlain && number < 0x100)
      plain += QString("%%1").arg(number, 2, 16, QChar('0')).toUpper();
    if (number >= 0x100) plain += QString("%U%1").arg(number, 4, 16, QChar('0')).toUpper();
  }
  return plain.toStdString();
}

}  // namespace

QString IniSettingsStore::usersFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/ratanka";
}

QString IniSettingsStore::fileOf(std::string_view application) const {
  return QDir(folder_).filePath(text(application) + ".ini");
}

std::optional<std::string> IniSettingsStore::find(std::string_view application,
                                                  std::string_view section,
                                                  std::string_view key) const {
  const std::string content = readIniFile(fileOf(application)).value_or("");
  const auto stored = valueIn(content, encoded(section), encoded(key));
  if (!stored) return std::nullopt;
  return text(unquoted(*stored)).toStdString();  // UTF-8, whatever stood there
}

std::string IniSettingsStore::read(std::string_view application, std::string_view section,
                                   std::string_view key, std::string_view fallback) const {
  return find(application, section, key).value_or(std::string(fallback));
}

void IniSettingsStore::write(std::string_view application, std::string_view section,
                             std::string_view key, std::string_view value) {
  // What is there already isn't written again: a disk takes its time.
  if (find(application, section, key) == value) return;
  const std::string name = encoded(key);
  const IniValue values[] = {{name, quoted(value)}};
  writeIniValues(fileOf(application), encoded(section), values);
}

}  // namespace ratanka
