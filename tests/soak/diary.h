#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <thread>

namespace ratanka::soak {

// Where the restless child is and what it did last, for those who ask after a crash.
class Diary {
 public:
  void write(const std::string& what);
  void print() const;

  std::uint64_t seed = 0;
  std::atomic<std::int64_t> event = 0;

 private:
  static constexpr std::size_t kLines = 25;
  char lines_[kLines][96] = {};
};
extern Diary diary;

// Says what is wrong and what went before it, and ends the process.
[[noreturn]] void fail(const std::string& what);

// Ends a process whose child has come to nothing for too long.
class Watchdog {
 public:
  Watchdog() : thread_([this] { watch(); }) {}
  ~Watchdog();
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

 private:
  void watch() const;

  std::atomic<bool> isOver_ = false;
  std::thread thread_;
};

}  // namespace ratanka::soak
