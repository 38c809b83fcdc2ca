#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace ratanka::screen {

// What a program finds beside its words.
struct Surroundings {
  std::vector<std::string> variables{};  // "NAME=value", before those of our own environment
  std::string says{};  // file for all that it says; empty: it comes to our standard error
};

// A program that was started by us; is killed with this object.
class Process {
 public:
  // The first word is a path or a name to be looked for in PATH. Throws where it can't be started.
  explicit Process(std::vector<std::string> words, const Surroundings& surroundings = {});
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  pid_t id() const { return id_; }

  // Waits for the process to end by itself; throws where it doesn't end with status 0.
  void awaitEnd();
  // The status of a program that has ended, that of a shell for one that was killed; none while it
  // runs.
  std::optional<int> endStatus();
  // Asks it to end, and gives it ten seconds for that.
  void end();

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

  pid_t id_ = 0;  // 0 once it has ended
  int status_ = 0;
};

}  // namespace ratanka::screen
