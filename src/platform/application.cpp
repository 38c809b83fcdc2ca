#include "platform/application.h"

#include <QPalette>
#include <QStyleFactory>
#include <QTimer>

#include "platform/controls.h"
#include "platform/fonts.h"
#include "platform/pictures.h"

namespace ratanka {
namespace {

constexpr Rgb kInk{0x22, 0x30, 0x4a};
constexpr Rgb kPaper{0xff, 0xfd, 0xf5};
constexpr Rgb kCard{0xf3, 0xed, 0xdf};
constexpr Rgb kSky{0x2f, 0x7f, 0xb4};

QPalette ourPalette() {
  QPalette palette(colour(kCard), colour(kCard));
  palette.setColor(QPalette::Base, colour(kPaper));
  palette.setColor(QPalette::ToolTipBase, colour(kPaper));
  palette.setColor(QPalette::Highlight, colour(kSky));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, colour(kInk));
  }
  return palette;
}

// Before the toolkit looks for a desktop's theme to load: it would cost more than the program.
char* withoutDesktopTheme(char* program) {
  qputenv("QT_QPA_PLATFORMTHEME", "generic");
  QApplication::setDesktopSettingsAware(false);
  QApplication::setStyle("fusion");
  return program;
}

}  // namespace

int Application::argumentCount_ = 1;

Application::Application(char* program)
    : arguments_{withoutDesktopTheme(program), nullptr}, application_(argumentCount_, arguments_) {
  QApplication::setApplicationName("ratanka");
  QApplication::setApplicationVersion(RATANKA_VERSION);
  QApplication::setDesktopFileName("ratanka");
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setPalette(ourPalette());
  QApplication::setFont(font({.points = 9.75}));
}

int Application::run(const std::function<void()>& start) {
  QTimer::singleShot(0, &application_, start);
  return QApplication::exec();
}

}  // namespace ratanka
