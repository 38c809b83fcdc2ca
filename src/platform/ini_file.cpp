#include "platform/ini_file.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace ratanka {

void writeIniValues(const QString& path, std::string_view section,
                    std::span<const IniValue> values) {
  constexpr qint64 kMaxBytes = 1 << 20;  // more than that isn't a file of ours
  std::string content;
  if (QFile file(path); file.exists()) {
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMaxBytes) return;
    content = file.readAll().toStdString();
  }
  for (const IniValue& value : values)
    content = withValue(content, section, value.key, value.value);
  QDir().mkpath(QFileInfo(path).path());
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return;
  file.write(content.data(), static_cast<qint64>(content.size()));
  file.commit();
}

}  // namespace ratanka
