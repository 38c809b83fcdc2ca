#include "platform/base/data_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace ratanka {

QString dataFile(const QString& name) {
  const QDir folder(QCoreApplication::applicationDirPath());
  const QString beside = folder.filePath(name);
  const QString installed = QDir::cleanPath(folder.filePath("../share/ratanka/" + name));
  return !QFile::exists(beside) && QFile::exists(installed) ? installed : beside;
}

}  // namespace ratanka
