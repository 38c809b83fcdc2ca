#include "platform/desktop.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <cmath>

namespace ratanka {

int modeLength(int logicalPixels, double magnification) {
  const double length = logicalPixels * magnification;
  if (magnification == std::floor(magnification)) return static_cast<int>(length);
  return 2 * static_cast<int>(std::lround(length / 2));
}

PixelSize PrimaryScreen::size() const {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {};
  const double magnification = screen->devicePixelRatio();
  return {modeLength(screen->geometry().width(), magnification),
          modeLength(screen->geometry().height(), magnification)};
}

void centreOnScreen(QWidget& window) {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  const QRect area = screen->geometry();
  const auto middle = [](int available, int length) {
    return pixels(centred(twips(available), twips(length)));
  };
  window.move(area.left() + middle(area.width(), window.width()),
              area.top() + middle(area.height(), window.height()));
}

}  // namespace ratanka
