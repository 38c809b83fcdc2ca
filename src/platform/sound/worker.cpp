#include "platform/sound/worker.h"

#include <unistd.h>

#include <cstdlib>
#include <thread>
#include <utility>

namespace ratanka {

Worker::Worker() {
  std::thread([this] { run(); }).detach();
}

void Worker::add(Task task) {
  const std::lock_guard lock(mutex_);
  tasks_.push_back(std::move(task));
  given_.notify_one();
}

bool Worker::doInTime(Task task) {
  std::unique_lock lock(mutex_);
  if (lastDone_ < late_) return false;
  tasks_.push_back(std::move(task));
  given_.notify_one();
  const std::uint64_t number = lastGiven();
  if (done_.wait_for(lock, kPatience, [&] { return lastDone_ >= number; })) return true;
  late_ = number;
  if (lastBegun_ < number) tasks_.at(number - lastBegun_ - 1) = [] {};
  return false;
}

void Worker::release(std::shared_ptr<void> last) {
  add([owner = std::move(last)] {});
}

void Worker::setWhenIdle(Task task) {
  const std::lock_guard lock(mutex_);
  whenIdle_ = std::move(task);
}

bool Worker::isBusy() {
  const std::lock_guard lock(mutex_);
  return lastDone_ < lastGiven();
}

void Worker::run() {
  constexpr std::chrono::seconds kIdle{10};
  std::unique_lock lock(mutex_);
  while (true) {
    const bool isIdle = !given_.wait_for(lock, kIdle, [this] { return !tasks_.empty(); });
    if (isIdle) tasks_.push_back(whenIdle_);
    Task task = std::move(tasks_.front());
    tasks_.pop_front();
    ++lastBegun_;
    lock.unlock();
    task();
    task = nullptr;  // with what it owns
    lock.lock();
    lastDone_ = lastBegun_;
    done_.notify_all();
  }
}

Worker& soundWorker() {
  static Worker* const worker = [] {
    auto* const one = new Worker;
    on_exit(
        [](int status, void* busy) {
          if (static_cast<Worker*>(busy)->isBusy()) _exit(status);
        },
        one);
    return one;
  }();
  return *worker;
}

}  // namespace ratanka
