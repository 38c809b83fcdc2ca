#include "platform/sound/worker.h"

#include <SDL.h>

#include <utility>

namespace ratanka {

Worker::Worker(std::chrono::milliseconds idle, std::function<void()> whenIdle)
    : idle_(idle), whenIdle_(std::move(whenIdle)), thread_([this] {
        run();
        SDL_TLSCleanup();  // what the library keeps for a thread
      }) {}

Worker::~Worker() {
  {
    const std::lock_guard lock(mutex_);
    isEnding_ = true;
  }
  changed_.notify_one();
  thread_.join();
}

void Worker::add(std::function<void()> task) {
  {
    const std::lock_guard lock(mutex_);
    tasks_.push_back(std::move(task));
  }
  changed_.notify_one();
}

void Worker::run() {
  std::unique_lock lock(mutex_);
  while (true) {
    changed_.wait_for(lock, idle_, [this] { return isEnding_ || !tasks_.empty(); });
    if (isEnding_) return;
    std::function<void()> task = whenIdle_;
    if (!tasks_.empty()) {
      task = std::move(tasks_.front());
      tasks_.pop_front();
    }
    lock.unlock();
    task();
    lock.lock();
  }
}

}  // namespace ratanka
