#include "platform/settings/ini_file.h"

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <filesystem>
#include <string>
#include <system_error>

#include "platform/settings/ini_lock.h"

namespace ratanka {
namespace {

constexpr auto kDraft = ".draft-";

// A process that was killed in the middle of a write has left its draft.
void sweep(const QDir& folder) {
  const QStringList left = folder.entryList({QString(kDraft) + '*'}, QDir::Files | QDir::Hidden);
  for (const QString& draft : left) QFile::remove(folder.filePath(draft));
}

// By a draft that takes the file's place once all of it is on the disk; where it doesn't fit the
// old one stays. The toolkit's own file of this kind doesn't notice a disk that is full.
void replace(const QFileInfo& old, const std::string& content) {
  const qint64 size = content.size();
  QTemporaryFile draft(old.dir().filePath(QString(kDraft) + "XXXXXX"));
  if (!draft.open() || draft.write(content.data(), size) != size) return;
  if (!draft.flush() || fsync(draft.handle()) != 0) return;
  if (old.exists()) draft.setPermissions(old.permissions());
  const auto bytesOf = [](const QString& path) { return QFile::encodeName(path).toStdString(); };
  std::error_code failure;
  std::filesystem::rename(bytesOf(draft.fileName()), bytesOf(old.filePath()), failure);
  draft.setAutoRemove(static_cast<bool>(failure));
}

// The file itself, where somebody keeps it elsewhere and links it.
QFileInfo withoutLinks(const QString& path) {
  const QFileInfo file(path);
  return file.exists() ? QFileInfo(file.canonicalFilePath()) : file;
}

}  // namespace

std::optional<std::string> readIniFile(const QString& path) {
  constexpr qint64 kMaxBytes = 1 << 20;
  QFile file(path);
  if (!file.exists()) return "";
  if (!file.open(QIODevice::ReadOnly) || file.size() > kMaxBytes) return std::nullopt;
  return file.readAll().toStdString();
}

void writeIniValues(const QString& path, std::string_view section,
                    std::span<const IniValue> values) {
  const QString folder = withoutLinks(path).absolutePath();
  const IniLock lock(folder);
  const QFileInfo file = withoutLinks(path);
  if (file.exists() && !file.isWritable()) return;
  std::optional<std::string> content = readIniFile(path);
  if (!content) return;
  if (lock.isHeld()) sweep(folder);
  for (const IniValue& value : values)
    content = withValue(*content, section, value.key, value.value);
  replace(file, *content);
}

}  // namespace ratanka
