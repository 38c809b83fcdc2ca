#include "platform/forms/qt_ticks.h"

#include <QTimer>

namespace ratanka {
namespace {

constexpr std::chrono::milliseconds kPreciseBelow{20};

class QtSource : public Ticks::Source {
 public:
  QtSource(std::chrono::milliseconds interval, QtTicks::Precision precision,
           std::function<void()> tick)
      : timer_(new QTimer) {
    const bool isPrecise = interval < kPreciseBelow || precision == QtTicks::Precision::fine;
    timer_->setTimerType(isPrecise ? Qt::PreciseTimer : Qt::CoarseTimer);
    QObject::connect(timer_, &QTimer::timeout, std::move(tick));
    timer_->start(interval);
  }

  ~QtSource() override {
    // This may be the timer's own tick: the toolkit's object has to outlive it.
    timer_->stop();
    timer_->disconnect();
    timer_->deleteLater();
  }

  QtSource(const QtSource&) = delete;
  QtSource& operator=(const QtSource&) = delete;

 private:
  QTimer* timer_;
};

}  // namespace

std::unique_ptr<Ticks::Source> QtTicks::every(std::chrono::milliseconds interval,
                                              Precision precision, std::function<void()> tick) {
  return std::make_unique<QtSource>(interval, precision, std::move(tick));
}

}  // namespace ratanka
