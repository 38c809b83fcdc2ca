#include "platform/ini_settings_store.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

#include "platform/text.h"

namespace ratanka {
namespace {

QString pathOf(std::string_view section, std::string_view key) {
  return text(section) + '/' + text(key);
}

}  // namespace

QString IniSettingsStore::usersFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/ratanka";
}

QString IniSettingsStore::fileOf(std::string_view application) const {
  return QDir(folder_).filePath(text(application) + ".ini");
}

std::string IniSettingsStore::read(std::string_view application, std::string_view section,
                                   std::string_view key, std::string_view fallback) const {
  const QSettings store(fileOf(application), QSettings::IniFormat);
  const QVariant value = store.value(pathOf(section, key));
  if (!value.isValid()) return std::string(fallback);
  // A comma that somebody typed into the file by hand makes a list of the text: join it again.
  return value.toStringList().join(", ").toStdString();
}

void IniSettingsStore::write(std::string_view application, std::string_view section,
                             std::string_view key, std::string_view value) {
  QSettings store(fileOf(application), QSettings::IniFormat);
  store.setValue(pathOf(section, key), text(value));
}

}  // namespace ratanka
