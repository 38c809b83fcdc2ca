#pragma once

#include <QString>

namespace ratanka {

// The right to change the settings files of a folder, which one process has at a time. The system
// takes it from a process that dies, so that nobody waits for the dead.
class IniLock {
 public:
  // Waits for another process, but for a second at most. Makes the folder where it is missing.
  explicit IniLock(const QString& folder);
  ~IniLock();
  IniLock(const IniLock&) = delete;
  IniLock& operator=(const IniLock&) = delete;

  // Not held where no file can be made or the file system has no locks, and after that second.
  bool isHeld() const { return isHeld_; }

 private:
  int file_;
  bool isHeld_ = false;
};

}  // namespace ratanka
