#include "platform/held_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace ratanka {

void HeldKeys::boxOpened() {
  if (openBoxes_++ == 0) {
    down_.clear();
    QCoreApplication::instance()->installEventFilter(this);
  }
}

void HeldKeys::boxClosed() {
  if (--openBoxes_ == 0 && down_.empty()) QCoreApplication::instance()->removeEventFilter(this);
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
  // A key passes the window first and then the widget inside it: the first look counts.
  const bool isPress = event->type() == QEvent::KeyPress;
  if ((!isPress && event->type() != QEvent::KeyRelease) || !watched->isWindowType()) return false;
  const auto* const keyEvent = static_cast<QKeyEvent*>(event);
  if (keyEvent->isAutoRepeat()) return false;

  if (openBoxes_ > 0) {
    if (isPress) {
      down_.insert(keyEvent->key());
    } else {
      down_.erase(keyEvent->key());
    }
    return false;
  }
  const bool wasDown = down_.erase(keyEvent->key()) > 0;
  if (down_.empty()) QCoreApplication::instance()->removeEventFilter(this);
  return wasDown && !isPress;
}

}  // namespace ratanka
