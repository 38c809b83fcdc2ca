#include "platform/forms/event_loop.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <cmath>

namespace ratanka {

void letEventsThrough() { QCoreApplication::processEvents(); }

void awaitEvents(double seconds) {
  constexpr double kLongest = 3600;
  QTimer wake;
  wake.setTimerType(Qt::PreciseTimer);
  wake.setSingleShot(true);
  wake.start(static_cast<int>(std::ceil(std::min(seconds, kLongest) * 1000)));
  QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

}  // namespace ratanka
