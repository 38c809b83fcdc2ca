#include "platform/forms/window_states.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>
#include <memory>
#include <utility>

#include "platform/forms/desktop.h"

namespace ratanka {
namespace {

class ComesBack : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* const window = static_cast<QWidget*>(watched);
    if (event->type() != QEvent::WindowStateChange || !window->isMinimized()) return false;
    // Not from within the change.
    QMetaObject::invokeMethod(
        window,
        [window] {
          if (window->isVisible()) window->showNormal();
        },
        Qt::QueuedConnection);
    return false;
  }
};

}  // namespace

void growWhenMaximised(QWidget& widget) {
  constexpr auto kIsReady = "growsWhenMaximised";
  if (!isWayland()) return;
  widget.winId();  // makes the window where there is none yet
  QWindow& window = *widget.windowHandle();
  if (window.property(kIsReady).toBool()) return;
  window.setProperty(kIsReady, true);
  const auto limit = std::make_shared<QSize>();  // none while it stands in the window
  const auto adapt = [&window, limit] {
    const QSize size = window.size();
    const bool isMaximised = window.windowState() == Qt::WindowMaximized;
    if (isMaximised && !limit->isValid()) {
      *limit = window.maximumSize();
      window.setMaximumSize({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX});
    } else if (!isMaximised && limit->isValid() && size.boundedTo(*limit) == size) {
      window.setMaximumSize(std::exchange(*limit, QSize()));
    }
  };
  QObject::connect(&window, &QWindow::windowStateChanged, &window, adapt);
  QObject::connect(&window, &QWindow::widthChanged, &window, adapt);
  QObject::connect(&window, &QWindow::heightChanged, &window, adapt);
}

void comeBackWhenPutAway(QWidget& widget) { widget.installEventFilter(new ComesBack(&widget)); }

}  // namespace ratanka
