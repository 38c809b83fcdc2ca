#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace ratanka::bench {

// A program that was started by us; ends with this object.
class Process {
 public:
  // The first word is a path or a name to be looked for in PATH. Throws where it can't be started.
  explicit Process(std::vector<std::string> words);
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  pid_t id() const { return id_; }

  // Waits for the process to end by itself; throws where it doesn't end with status 0.
  void awaitEnd();

  // The proportional set: what is shared with other processes counts in equal parts.
  double memoryKilobytes() const;

  // What the process itself has written to; doesn't depend on who else runs.
  double ownMemoryKilobytes() const;

  // Of all threads since the start.
  struct Usage {
    double wakeUps = 0;
    double cpuSeconds = 0;
  };
  Usage usage() const;

 private:
  std::string folder() const { return "/proc/" + std::to_string(id_); }

  pid_t id_ = 0;
};

}  // namespace ratanka::bench
