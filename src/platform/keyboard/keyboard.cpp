#include "platform/keyboard/keyboard.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWindow>
// A member of one of its structures has a name that is C++'s own.
#ifdef __clang__
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

#include "platform/keyboard/keys.h"

namespace ratanka {
namespace {

// Between two events of a held key, ms: more than desktops wait before the first repeat unless they
// are told to. Where the keyboard has changed windows since, a key that was seen to go down longer
// ago came up unseen.
constexpr quint64 kLongestWait = 1200;

// Keys that don't repeat, and let the one that does go on.
bool isModifier(int key) {
  return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr ||
         key == Qt::Key_Super_L || key == Qt::Key_Super_R || key == Qt::Key_Menu;
}

// Which key of the keyboard it is, whatever it types.
quint32 placeOf(const QKeyEvent& event) {
  const quint32 scanCode = event.nativeScanCode();
  return scanCode != 0 ? scanCode : static_cast<quint32>(event.key());
}

Keyboard::Repeats askForDetectableRepeat() {
  const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || x11->connection() == nullptr) return Keyboard::Repeats::marked;
  const auto* const extension = xcb_get_extension_data(x11->connection(), &xcb_xkb_id);
  if (extension == nullptr || extension->present == 0) return Keyboard::Repeats::marked;
  constexpr auto kDetectable = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
  const auto asked = xcb_xkb_per_client_flags(x11->connection(), XCB_XKB_ID_USE_CORE_KBD,
                                              kDetectable, kDetectable, 0, 0, 0);
  xcb_discard_reply(x11->connection(), asked.sequence);
  return Keyboard::Repeats::unmarked;
}

}  // namespace

Keyboard::Keyboard() : Keyboard(askForDetectableRepeat()) {}

Keyboard::Keyboard(Repeats repeats) : repeats_(repeats) {
  QCoreApplication::instance()->installEventFilter(this);
  if (repeats == Repeats::unmarked) QCoreApplication::instance()->installNativeEventFilter(this);
}

Keyboard::~Keyboard() {
  if (auto* const application = QCoreApplication::instance()) {
    application->removeNativeEventFilter(this);
  }
}

int Keyboard::codeOf(const QKeyEvent& event) const {
  const quint32 place = placeOf(event);
  const auto found = down_.find(place);
  if (found != down_.end()) return found->second.code;
  const bool isComingUp = event.type() == QEvent::KeyRelease && place == lastUp_;
  return isComingUp ? lastUpCode_ : keyCode(event);
}

void Keyboard::letGo(const QWindow* window) {
  for (auto& [place, key] : down_) key.isLetGo = key.isLetGo || key.window == window;
}

bool Keyboard::isRepeat(const QKeyEvent& event) const {
  if (event.isAutoRepeat()) return true;
  const quint32 place = placeOf(event);
  const auto found = down_.find(place);
  // Only the last key repeats. Another one came up unseen, on its way from a window to the next.
  if (repeats_ == Repeats::marked || found == down_.end() || place != lastDown_) return false;
  const Key& key = found->second;
  const bool isAsAnnounced = key.isAnnounced && event.timestamp() == key.time;
  if (key.isUp || isAsAnnounced) return false;
  const bool isAtHome =
      !key.isLetGo && key.window != nullptr && key.window == QGuiApplication::focusWindow();
  return isAtHome || event.timestamp() - key.time <= kLongestWait;
}

bool Keyboard::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  const auto* const event = static_cast<const xcb_key_release_event_t*>(message);
  if ((event->response_type & 0x7f) != XCB_KEY_RELEASE) return false;
  const auto found = down_.find(event->detail);
  if (found != down_.end()) found->second.isUp = true;
  return false;
}

void Keyboard::keep(QObject* window, const QKeyEvent& event, bool isAnnounced) {
  down_[placeOf(event)] = {.window = window,
                           .code = keyCode(event),
                           .time = event.timestamp(),
                           .isAnnounced = isAnnounced};
  if (!isModifier(event.key())) lastDown_ = placeOf(event);
}

// No item of a menu is chosen by a repeat. The window doesn't see a press that chooses one.
bool Keyboard::keepsFromMenus(QKeyEvent& event) {
  if (!isRepeat(event)) {
    keep(QGuiApplication::focusWindow(), event, true);
    return false;
  }
  event.accept();
  return true;
}

bool Keyboard::swallowsPress(QObject& window, const QKeyEvent& event) {
  if (!isRepeat(event)) {
    keep(&window, event, false);
    return false;
  }
  const auto found = down_.find(placeOf(event));
  if (found == down_.end()) return true;
  Key& key = found->second;
  key.time = event.timestamp();
  key.isAnnounced = false;
  if (key.window != &window)
    key.window = nullptr;  // held through another window: nobody's for good
  if (key.isLetGo || key.window == nullptr) return true;
  if (event.isAutoRepeat()) return false;
  QKeyEvent repeat(event.type(), event.key(), event.modifiers(), event.nativeScanCode(),
                   event.nativeVirtualKey(), event.nativeModifiers(), event.text(), true,
                   static_cast<quint16>(event.count()), event.device());
  repeat.setTimestamp(event.timestamp());
  const QScopedValueRollback<const QEvent*> marking(marked_, &repeat);
  QCoreApplication::sendEvent(&window, &repeat);
  return true;
}

bool Keyboard::swallowsRelease(const QObject& window, const QKeyEvent& event) {
  const quint32 place = placeOf(event);
  const auto found = down_.find(place);
  if (found == down_.end()) {
    lastUp_ = 0;
    return event.isAutoRepeat();
  }
  const bool isForeign = found->second.window != &window;
  if (event.isAutoRepeat()) return isForeign || found->second.isLetGo;
  lastUp_ = place;
  lastUpCode_ = found->second.code;
  down_.erase(found);
  return isForeign;
}

bool Keyboard::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::ShortcutOverride) return keepsFromMenus(static_cast<QKeyEvent&>(*event));
  const bool isPress = type == QEvent::KeyPress;
  // A key passes the window first and then the widget inside it. A window that wants no keys passes
  // them to another.
  if ((!isPress && type != QEvent::KeyRelease) || event == marked_ || !watched->isWindowType() ||
      static_cast<QWindow*>(watched)->flags().testFlag(Qt::WindowDoesNotAcceptFocus)) {
    return false;
  }
  const auto& keyEvent = static_cast<QKeyEvent&>(*event);
  return isPress ? swallowsPress(*watched, keyEvent) : swallowsRelease(*watched, keyEvent);
}

}  // namespace ratanka
