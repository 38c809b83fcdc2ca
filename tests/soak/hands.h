#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <set>
#include <vector>

namespace ratanka::soak {

// What a window system tells of a child's hands. It tells it at once and looks at no other events,
// so that one thing happens at a time. Windows beneath a modal one feel nothing.
class Hands {
 public:
  explicit Hands(bool hasPlaces) : hasPlaces_(hasPlaces) {}

  // Visible windows in the order of their names.
  static std::vector<QWidget*> windows() {
    std::vector<QWidget*> found;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      const bool isPopup = widget->windowType() == Qt::Popup || widget->windowType() == Qt::ToolTip;
      if (widget->isVisible() && widget->windowHandle() != nullptr && !isPopup) {
        found.push_back(widget);
      }
    }
    std::sort(found.begin(), found.end(),
              [](const QWidget* a, const QWidget* b) { return a->objectName() < b->objectName(); });
    return found;
  }

  // Those that can be used now.
  static std::vector<QWidget*> openWindows() {
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal == nullptr) return windows();
    if (!modal->isVisible() || modal->windowHandle() == nullptr) return {};
    return {modal};
  }

  void press(int key, Qt::KeyboardModifiers modifiers, const QString& typed) {
    down_.insert(key);
    send(QEvent::KeyPress, key, modifiers, typed, false);
  }
  void repeat(int key) {
    send(QEvent::KeyRelease, key, {}, {}, true);
    send(QEvent::KeyPress, key, {}, {}, true);
  }
  void release(int key, Qt::KeyboardModifiers modifiers = {}) {
    down_.erase(key);
    send(QEvent::KeyRelease, key, modifiers, {}, false);
  }
  void strike(int key, Qt::KeyboardModifiers modifiers = {}, const QString& typed = {}) {
    press(key, modifiers, typed);
    release(key, modifiers);
  }
  // Digits and signs.
  void type(const QString& text) {
    for (const QChar& sign : text) strike(sign.unicode(), {}, sign);
  }
  const std::set<int>& down() const { return down_; }

  void pressMouse(QWidget& at, const QPoint& point, Qt::MouseButton button) {
    buttons_ |= button;
    mouse(at, point, button, QEvent::MouseButtonPress);
  }
  void releaseMouse(QWidget& at, const QPoint& point, Qt::MouseButton button) {
    buttons_ &= ~Qt::MouseButtons(button);
    mouse(at, point, button, QEvent::MouseButtonRelease);
  }
  void moveMouse(QWidget& at, const QPoint& point) {
    mouse(at, point, Qt::NoButton, QEvent::MouseMove);
  }
  void click(QWidget& at, const QPoint& point, Qt::MouseButton button) {
    const QPointer<QWidget> target(&at);
    moveMouse(at, point);
    if (target != nullptr) pressMouse(at, point, button);
    if (target != nullptr) {
      releaseMouse(at, point, button);
    } else {
      buttons_ &= ~Qt::MouseButtons(button);
    }
  }
  void click(QWidget& at) { click(at, at.rect().center(), Qt::LeftButton); }
  Qt::MouseButtons buttons() const { return buttons_; }
  // So long that the next click makes no double click.
  void pause() { mouseTime_ += 1000; }

  static void wheel(QWidget& at, const QPoint& point, int turn) {
    QWindow* const window = at.window()->windowHandle();
    if (window == nullptr) return;
    const QPoint local = at.mapTo(at.window(), point);
    QWheelEvent event(local, at.mapToGlobal(point), {}, {0, turn}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window, &event);
  }

 private:
  // With the key's place on the keyboard and the time of the window system; without them where a
  // screen keyboard sends it.
  void send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, const QString& typed,
            bool isRepeat) {
    QWindow* const active = QGuiApplication::focusWindow();
    const QWidget* const modal = QApplication::activeModalWidget();
    if (active == nullptr || (modal != nullptr && modal->windowHandle() != active)) return;
    if (!hasPlaces_) {
      qt_handleKeyEvent(active, type, key, modifiers, typed, isRepeat);
      return;
    }
    const auto place = static_cast<quint32>(key & 0xff) + 8;
    const auto time = static_cast<quint64>(++keyTime_);
    const bool isShortcut =
        type == QEvent::KeyPress &&
        qt_sendShortcutOverrideEvent(active, time, key, modifiers, typed, isRepeat);
    if (isShortcut) return;
    QKeyEvent event(type, key, modifiers, place, 0, 0, typed, isRepeat);
    event.setTimestamp(time);
    if (active == QGuiApplication::focusWindow()) QCoreApplication::sendEvent(active, &event);
  }

  void mouse(QWidget& at, const QPoint& point, Qt::MouseButton button, QEvent::Type type) {
    QWindow* const window = at.window()->windowHandle();
    if (window == nullptr) return;
    mouseTime_ += 10;
    qt_handleMouseEvent(window, at.mapTo(at.window(), point), at.mapToGlobal(point), buttons_,
                        button, type, {}, mouseTime_);
  }

  bool hasPlaces_;
  std::set<int> down_;
  int keyTime_ = 0;
  Qt::MouseButtons buttons_;
  int mouseTime_ = 0;
};

}  // namespace ratanka::soak
