#include "platform/forms/application.h"

#include <langinfo.h>
#include <unistd.h>

#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QScreen>
#include <QStyleOption>
#include <QTimer>
#include <clocale>
#include <string_view>

#include "platform/controls/controls.h"
#include "platform/controls/fonts.h"
#include "platform/controls/pictures.h"
#include "platform/forms/desktop.h"

namespace ratanka {
namespace {

// The first window is painted by then: the program's sign, drawn at many sizes, delays nothing.
constexpr std::chrono::milliseconds kIconDelay{300};

constexpr qreal kCorner = 3;  // of a button, in logical pixels

constexpr Rgb kSky{0x2f, 0x7f, 0xb4};
constexpr Rgb kFaded{0x9a, 0xa2, 0xb0};    // what can't be chosen now
constexpr Rgb kCaption{0x0c, 0x12, 0x20};  // deep enough to read on a pure red

// The toolkit's plain style with the signs of our own hand in its boxes.
class Style : public QProxyStyle {
 public:
  Style() : QProxyStyle("fusion") {}

  QIcon standardIcon(StandardPixmap sign, const QStyleOption* option,
                     const QWidget* widget) const override {
    if (sign == SP_MessageBoxInformation) return pictureIcon("box-information");
    if (sign == SP_MessageBoxWarning) return pictureIcon("box-exclamation");
    return QProxyStyle::standardIcon(sign, option, widget);
  }

  // A button's face in its own flat colour, which the plain style would lighten.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (element != PE_PanelButtonCommand) {
      QProxyStyle::drawPrimitive(element, option, painter, widget);
      return;
    }
    // The keyboard's ring shows once the keyboard is used to walk about.
    const bool hasRing =
        option->state.testFlag(State_HasFocus) && option->state.testFlag(State_KeyboardFocusChange);
    const bool isDown = (option->state & (State_Sunken | State_On)) != 0;
    const QColor face = option->palette.button().color();
    const QRectF edge = QRectF(option->rect).adjusted(1, 1, -1, -1);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(isDown ? face.darker(115) : face);
    painter->drawRoundedRect(edge, kCorner, kCorner);
    if (!isDown) {
      painter->setBrush(face.darker(115));
      painter->drawRect(QRectF(edge.left() + 1, edge.bottom() - 3, edge.width() - 2, 3));
    }
    painter->setBrush(Qt::NoBrush);
    painter->setPen(hasRing ? QPen(option->palette.highlight().color(), 2)
                            : QPen(colour(kInkColour), 1));
    painter->drawRoundedRect(edge, kCorner, kCorner);
    painter->restore();
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, more);
  }
};

QPalette ourPalette() {
  QPalette palette(colour(kCard), colour(kCard));
  palette.setColor(QPalette::Base, colour(kPaper));
  palette.setColor(QPalette::ToolTipBase, colour(kPaper));
  palette.setColor(QPalette::Highlight, colour(kSky));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ToolTipText}) {
    palette.setColor(role, colour(kInkColour));
  }
  palette.setColor(QPalette::ButtonText, colour(kCaption));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, colour(kFaded));
  }
  return palette;
}

// The toolkit wants a locale in UTF-8 and complains of every other. This one is on each machine.
void wantUtf8() {
  std::setlocale(LC_CTYPE, "");
  if (std::string_view(nl_langinfo(CODESET)) != "UTF-8") qputenv("LC_ALL", "C.UTF-8");
}

// What has to be said before the toolkit starts; passes the program's path through.
char* withToolkitSetUp(char* program) {
  wantUtf8();
  // A desktop's theme would cost more to load than the whole program.
  qputenv("QT_QPA_PLATFORMTHEME", "generic");
  // Pictures in memory shared with the X server cost two more wake-ups each, to ask whether the
  // server is done with them. Ours are small: they go through the connection.
  qputenv("QT_XCB_NO_MITSHM", "1");
  QApplication::setDesktopSettingsAware(false);
  QApplication::setStyle(new Style);
  return program;
}

}  // namespace

int Application::argumentCount_ = 1;

Application::Application(char* program)
    : arguments_{withToolkitSetUp(program), nullptr}, application_(argumentCount_, arguments_) {
  stayOnScreen();
  QApplication::setApplicationName("ratanka");
  QApplication::setApplicationVersion(RATANKA_VERSION);
  QApplication::setDesktopFileName("ratanka");
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setPalette(ourPalette());
  QApplication::setFont(font({.points = 9.75}));
}

void Application::stayOnScreen() {
  constexpr auto kFactor = "QT_SCALE_FACTOR";
  constexpr double kRounding = 0.01;
  const QScreen* const screen = QGuiApplication::primaryScreen();
  if (QGuiApplication::platformName() != "xcb" || screen == nullptr) return;
  const double wanted = screen->devicePixelRatio();
  const QSizeF area = QSizeF(screen->availableSize()) * wanted;
  const double fitting = fittingMagnification(
      wanted, {static_cast<int>(area.width()), static_cast<int>(area.height())});
  if (wanted - fitting < kRounding) return;
  const double own = qEnvironmentVariable(kFactor).toDouble();
  const double factor = (own > 0 ? own : 1) * fitting / wanted;
  qputenv(kFactor, QByteArray::number(factor, 'g', 10));
  execv("/proc/self/exe", arguments_);
}

int Application::run(const std::function<void()>& start) {
  QTimer::singleShot(0, &application_, start);
  QTimer::singleShot(kIconDelay, &application_,
                     [] { QApplication::setWindowIcon(pictureIcon("program")); });
  return QApplication::exec();
}

}  // namespace ratanka
