#include "platform/settings/ini_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <cerrno>
#include <chrono>
#include <thread>

namespace ratanka {
namespace {

// A file of its own that stays: those that are locked are replaced.
int openLockFile(const QString& folder) {
  constexpr int kUsersOwn = 0600;
  QDir().mkpath(folder);
  const QByteArray path = QFile::encodeName(QDir(folder).filePath(".lock"));
  return open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, kUsersOwn);
}

}  // namespace

IniLock::IniLock(const QString& folder) : file_(openLockFile(folder)) {
  using std::chrono::steady_clock;
  if (file_ < 0) return;
  const auto end = steady_clock::now() + std::chrono::seconds(1);
  do {
    isHeld_ = flock(file_, LOCK_EX | LOCK_NB) == 0;
    if (isHeld_ || (errno != EWOULDBLOCK && errno != EINTR)) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  } while (steady_clock::now() < end);
}

IniLock::~IniLock() {
  if (file_ >= 0) close(file_);
}

}  // namespace ratanka
