#include "platform/held_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace ratanka {
namespace {

bool isArrow(int key) { return key >= Qt::Key_Left && key <= Qt::Key_Down; }

}  // namespace

void HeldKeys::boxOpened() {
  if (openBoxes_++ == 0) QCoreApplication::instance()->installEventFilter(this);
}

void HeldKeys::boxClosed() {
  if (--openBoxes_ == 0 && down_.empty()) QCoreApplication::instance()->removeEventFilter(this);
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
  // A key passes the window first and then the widget inside it: the first look counts.
  const bool isPress = event->type() == QEvent::KeyPress;
  if ((!isPress && event->type() != QEvent::KeyRelease) || !watched->isWindowType()) return false;
  const auto* const keyEvent = static_cast<QKeyEvent*>(event);

  if (openBoxes_ > 0) {
    // An arrow that is held from before must not wander over the box's buttons.
    if (isPress && keyEvent->isAutoRepeat() && isArrow(keyEvent->key())) return true;
    if (isPress) {
      down_.insert(keyEvent->key());  // a repeat closes a box, too
    } else if (!keyEvent->isAutoRepeat()) {
      down_.erase(keyEvent->key());
    }
    return false;
  }

  if (!down_.contains(keyEvent->key())) return false;
  if (keyEvent->isAutoRepeat()) return true;  // still the press that the box has seen
  if (!isPress) {
    upAt_ = keyEvent->timestamp();
    return true;
  }
  // Where the keyboard changes windows, X11 breaks a repeat into a release and a press of the same
  // time: the key is still down.
  if (upAt_ == keyEvent->timestamp()) return true;
  down_.erase(keyEvent->key());
  if (down_.empty()) QCoreApplication::instance()->removeEventFilter(this);
  return false;
}

}  // namespace ratanka
