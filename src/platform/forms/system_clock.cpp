#include "platform/forms/system_clock.h"

#include <QTime>

namespace ratanka {

TimeOfDay SystemClock::timeOfDay() const {
  const QTime now = QTime::currentTime();
  return {now.hour(), now.minute(), now.second()};
}

double SystemClock::secondsSinceMidnight() const {
  return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

}  // namespace ratanka
