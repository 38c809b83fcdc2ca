#include "platform/timer.h"

#include <algorithm>

namespace ratanka {
namespace {

constexpr int kEasyMilliseconds = 250;

}  // namespace

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

void Timer::setPrecise() {
  isPrecise_ = true;
  restart();
}

void Timer::setEasy(bool easy) {
  if (easy == isEasy_) return;
  isEasy_ = easy;
  if (interval_ < kEasyMilliseconds) restart();
}

void Timer::restart() {
  isPostponed_ = false;
  source_.reset();
  if (enabled_ && interval_ > 0) {
    const int interval = isEasy_ ? std::max(interval_, kEasyMilliseconds) : interval_;
    const auto precision = isPrecise_ && !isEasy_ ? Ticks::Precision::fine : Ticks::Precision::any;
    source_ =
        ticks_.every(std::chrono::milliseconds(interval), precision, [this] { emit ticked(); });
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
