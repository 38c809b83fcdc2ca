#include "platform/forms/timer.h"

#include <algorithm>
#include <utility>

namespace ratanka {
namespace {

constexpr int kEasyMilliseconds = 250;

}  // namespace

Timer::Timer(QObject* parent, Ticks& ticks, std::function<bool()> isGateOpen,
             std::function<void()> handler)
    : QObject(parent),
      ticks_(ticks),
      isGateOpen_(std::move(isGateOpen)),
      handler_(std::move(handler)) {}

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
  isKept_ = false;
  source_.reset();
  if (!handler_ || !enabled_ || interval_ <= 0) return;
  const int interval = isEasy_ ? std::max(interval_, kEasyMilliseconds) : interval_;
  const auto precision = isPrecise_ && !isEasy_ ? Ticks::Precision::fine : Ticks::Precision::any;
  source_ = ticks_.every(std::chrono::milliseconds(interval), precision, [this] { tick(); });
}

void Timer::tick() {
  isKept_ = isTicking_ || !(isImpatient_ || isGateOpen_());
  if (isKept_) return;
  isTicking_ = true;
  emit ticked();
  const std::function<void()> handler = handler_;  // it may end the timer
  handler();
  isTicking_ = false;
}

void Timer::deliver() {
  if (!isKept_) return;
  const auto tickAgain = [this] {
    if (std::exchange(isKept_, false)) tick();
  };
  QMetaObject::invokeMethod(this, tickAgain, Qt::QueuedConnection);
}

void Timer::end() {
  handler_ = nullptr;
  restart();
}

}  // namespace ratanka
