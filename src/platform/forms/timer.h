#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "platform/ports/ticks.h"

namespace ratanka {

// A form's timer: ticks periodically while it is enabled and its interval is above 0. Turning it
// on and changing its interval starts the wait anew; turning on one that is on does nothing.
//
// A tick is an event between other events. One that comes at a bad moment, while its gate is shut
// or its own last tick is handled, is kept and comes again once after `deliver`, unless the timer
// is turned off or restarted before.
class Timer : public QObject {
  Q_OBJECT
  Q_PROPERTY(int interval READ interval WRITE setInterval)
  Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled)

 public:
  Timer(QObject* parent, Ticks& ticks, std::function<bool()> isGateOpen,
        std::function<void()> handler);

  int interval() const { return interval_; }
  void setInterval(int milliseconds);
  bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled);

  // Ticks whatever its gate says: even while its form stands at a box.
  void setImpatient() { isImpatient_ = true; }
  // Keeps its interval to the millisecond; all below 20 ms do.
  void setPrecise();
  // Ticks a few times a second at most.
  void setEasy(bool easy);

  void deliver();
  // Never ticks again, whatever is set.
  void end();

 signals:
  // For who counts; the handler is called next.
  void ticked();

 private:
  void restart();
  void tick();

  Ticks& ticks_;
  std::function<bool()> isGateOpen_;
  std::function<void()> handler_;
  std::unique_ptr<Ticks::Source> source_;
  int interval_ = 0;
  bool enabled_ = false;
  bool isImpatient_ = false;
  bool isPrecise_ = false;
  bool isEasy_ = false;
  bool isTicking_ = false;
  bool isKept_ = false;  // a tick that came at a bad moment
};

}  // namespace ratanka
