#include "platform/timer.h"

namespace ratanka {

Timer::Timer(QObject* parent, Ticks& ticks) : QObject(parent), ticks_(ticks) {}

void Timer::setInterval(int milliseconds) {
  if (milliseconds == interval_) return;
  interval_ = milliseconds;
  restart();
}

void Timer::setEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  restart();
}

void Timer::restart() {
  isPostponed_ = false;
  source_.reset();
  if (enabled_ && interval_ > 0) {
    source_ = ticks_.every(std::chrono::milliseconds(interval_), [this] { emit ticked(); });
  }
}

void Timer::deliver() {
  if (!isPostponed_) return;
  const auto tickAgain = [this] {
    if (!isPostponed_) return;
    isPostponed_ = false;
    emit ticked();
  };
  QMetaObject::invokeMethod(this, tickAgain, Qt::QueuedConnection);
}

}  // namespace ratanka
