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

// A comma that somebody typed into the file by hand makes a list of the text: joins it again.
QString textOf(const QVariant& value) { return value.toStringList().join(", "); }

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
  return value.isValid() ? textOf(value).toStdString() : std::string(fallback);
}

void IniSettingsStore::write(std::string_view application, std::string_view section,
                             std::string_view key, std::string_view value) {
  QSettings store(fileOf(application), QSettings::IniFormat);
  const QString path = pathOf(section, key);
  // What is there already isn't written again: a disk takes its time.
  const QVariant there = store.value(path);
  if (!there.isValid() || textOf(there) != text(value)) store.setValue(path, text(value));
}

}  // namespace ratanka
