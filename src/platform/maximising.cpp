#include "platform/maximising.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>
#include <memory>
#include <utility>

namespace ratanka {

void growWhenMaximised(QWidget& widget) {
  constexpr auto kIsReady = "growsWhenMaximised";
  if (!QGuiApplication::platformName().startsWith("wayland")) return;
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

}  // namespace ratanka
