#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace ratanka {

// A thread that does tasks one after another, in the order in which they were given.
class Worker {
 public:
  // `whenIdle` is done, on the same thread, each time that nothing has come for `idle`.
  Worker(std::chrono::milliseconds idle, std::function<void()> whenIdle);
  // Waits for the task that is being done; those that haven't begun are forgotten.
  ~Worker();
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  void add(std::function<void()> task);

 private:
  std::chrono::milliseconds idle_;
  std::function<void()> whenIdle_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<std::function<void()>> tasks_;  // under the mutex, as is the next
  bool isEnding_ = false;
  std::thread thread_;  // the last: it uses all of the above

  void run();
};

}  // namespace ratanka
