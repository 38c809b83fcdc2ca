#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

namespace ratanka {

// A thread that does tasks one after another, in the order in which they were given. A task may
// hang for as long as it likes, with a sound server that does, and nobody waits for it longer than
// kPatience. So a worker is never destroyed, nor is what a task uses before the task has returned.
class Worker {
 public:
  using Task = std::function<void()>;

  // So that nothing that a child does takes a second.
  static constexpr std::chrono::milliseconds kPatience{900};

  Worker();
  ~Worker() = delete;
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  // Returns at once.
  void add(Task task);
  // Whether it was done in time. One that wasn't goes on if it has begun, and is forgotten if it
  // hasn't; until the worker has got past it, the next ones aren't begun and fail at once.
  bool doInTime(Task task);
  // Lets the last owner of something go when the tasks up to now are done. Returns at once. What a
  // task was given an owner of is handed back in this way.
  void release(std::shared_ptr<void> last);
  // Waits for the tasks up to now, but no longer than for any other; whether they were done.
  bool finish() {
    return doInTime([] {});
  }

  // Done each time that nothing has come for ten seconds.
  void setWhenIdle(Task task);

  // Whether there is anything that has to be done yet.
  bool isBusy();

 private:
  std::mutex mutex_;
  std::condition_variable given_;
  std::condition_variable done_;
  // Under the mutex, as all that follow. Tasks are numbered from 1 on, as they come.
  std::deque<Task> tasks_;
  std::uint64_t lastBegun_ = 0;
  std::uint64_t lastDone_ = 0;
  std::uint64_t late_ = 0;  // the last that somebody has given up
  Task whenIdle_ = [] {};

  std::uint64_t lastGiven() const { return lastBegun_ + tasks_.size(); }
  [[noreturn]] void run();
};

// The one that does all work with the machine's sound libraries, which don't like two threads to
// open, load or close something at the same moment. If it's busy when the process exits, the exit
// handlers and destructors that are left are passed over: they would take things away under it.
Worker& soundWorker();

}  // namespace ratanka
