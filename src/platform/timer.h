#pragma once

#include <QObject>
#include <memory>

#include "platform/ticks.h"

namespace ratanka {

// A form's timer: ticks periodically while it is enabled and its interval is above 0. Turning it
// on and changing its interval starts the wait anew; turning on one that is on does nothing.
// A receiver may destroy it.
class Timer : public QObject {
  Q_OBJECT
  Q_PROPERTY(int interval READ interval WRITE setInterval)
  Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled)

 public:
  Timer(QObject* parent, Ticks& ticks);

  int interval() const { return interval_; }
  void setInterval(int milliseconds);
  bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled);

  // An impatient timer ticks even while its form stands at a box.
  bool isImpatient() const { return isImpatient_; }
  void setImpatient() { isImpatient_ = true; }
  // A precise timer keeps its interval to the millisecond; all below 20 ms do.
  void setPrecise();
  // An easy timer ticks a few times a second at most.
  void setEasy(bool easy);
  // While its own tick is handled.
  bool isTicking() const { return isTicking_; }
  void setTicking(bool ticking) { isTicking_ = ticking; }

  // A tick that came at a bad moment comes again once after `deliver`, as an event of its own,
  // unless the timer is turned off or restarted before.
  void postpone() { isPostponed_ = true; }
  void deliver();

 signals:
  void ticked();

 private:
  void restart();

  Ticks& ticks_;
  std::unique_ptr<Ticks::Source> source_;
  int interval_ = 0;
  bool enabled_ = false;
  bool isPostponed_ = false;
  bool isImpatient_ = false;
  bool isPrecise_ = false;
  bool isEasy_ = false;
  bool isTicking_ = false;
};

}  // namespace ratanka
