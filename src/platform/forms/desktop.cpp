#include "platform/forms/desktop.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace ratanka {
namespace {

// On X11 a compositor says that it is there by owning a selection.
bool hasCompositor(xcb_connection_t* connection) {
  constexpr std::string_view kSelection = "_NET_WM_CM_S0";
  const auto ask = xcb_intern_atom(connection, 0, kSelection.size(), kSelection.data());
  const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
      xcb_intern_atom_reply(connection, ask, nullptr), &std::free);
  if (!atom) return false;
  const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> owner(
      xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom),
                                    nullptr),
      &std::free);
  return owner && owner->owner != XCB_NONE;
}

}  // namespace

int modeLength(int logicalPixels, double magnification) {
  const double length = logicalPixels * magnification;
  if (magnification == std::floor(magnification)) return static_cast<int>(length);
  return 2 * static_cast<int>(std::lround(length / 2));
}

double fittingMagnification(double wanted, PixelSize area) {
  const double fitting = std::min(static_cast<double>(area.width) / kLargestWindow.width,
                                  static_cast<double>(area.height) / kLargestWindow.height);
  return wanted <= fitting ? wanted : std::max(1.0, std::floor(8 * fitting) / 8);
}

PixelSize PrimaryScreen::size() const {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {};
  const double magnification = screen->devicePixelRatio();
  return {modeLength(screen->geometry().width(), magnification),
          modeLength(screen->geometry().height(), magnification)};
}

bool isWayland() { return QGuiApplication::platformName().startsWith("wayland"); }

bool canDrawTranslucentWindows() {
  // Every other window system that we run on does.
  if (QGuiApplication::platformName() != "xcb") return true;
  const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 != nullptr && hasCompositor(x11->connection());
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

// The toolkit would rather have the window system asked. A compositor refuses.
void takeForActive(QWidget* window) {
  QT_WARNING_PUSH
  QT_WARNING_DISABLE_DEPRECATED
  QApplication::setActiveWindow(window);
  QT_WARNING_POP
}

void centreOverActiveWindow(QWidget& window) {
  const QWidget* const active = QApplication::activeWindow();
  if (active == nullptr) return;
  window.move(active->x() + (active->width() - window.width()) / 2,
              active->y() + (active->height() - window.height()) / 2);
}

}  // namespace ratanka
