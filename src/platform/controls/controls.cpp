#include "platform/controls/controls.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

#include "platform/controls/pictures.h"
#include "platform/keyboard/keys.h"

namespace ratanka {
namespace {

constexpr int kBorder = 1;  // of a picture box, in logical pixels

// What a listener is told of a control that shows no text: its tooltip's words.
QString spoken(const QString& tooltip) { return tooltip.simplified(); }

class Image : public QWidget {
 public:
  Image(QWidget* parent, QString picture) : QWidget(parent), picture_(std::move(picture)) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter(this).drawPixmap(0, 0, picture(picture_, size(), devicePixelRatioF()));
  }

 private:
  QString picture_;
};

// Letters with a rim round each of them.
class RimmedLabel : public QLabel {
 public:
  RimmedLabel(QWidget* parent, const Rgb& rim) : QLabel(parent), rim_(colour(rim)) {}

  // Within the place that the label has now.
  void setMiddle(const ScreenPoint& middle) {
    constexpr int kReach = 7;
    middle_ = QPoint(middle.x + kReach, middle.y + kReach);
    setGeometry(geometry().adjusted(-kReach, -kReach, kReach, kReach));
    setContentsMargins(kReach, kReach, kReach, kReach);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const qreal rim = font().pixelSize() / 10.0;  // half of it lies beneath the letter
    QPainterPath letters;
    letters.addText(0, 0, font(), text());
    const QRectF box = letters.boundingRect();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate((middle_ ? QPointF(*middle_) : QRectF(rect()).center()) - box.center());
    painter.strokePath(letters, QPen(rim_, rim, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(letters, palette().windowText());
  }

 private:
  QColor rim_;
  std::optional<QPoint> middle_;
};

QKeyEvent withEnterAsSpace(const QKeyEvent& event) {
  const int key = keyCode(event) == key::kEnter ? static_cast<int>(Qt::Key_Space) : event.key();
  return {event.type(), key, event.modifiers(), event.text(), event.isAutoRepeat()};
}

// Turns with the wheel only while it has the keyboard, not for a pointer that passes by.
class ComboBox : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }
};

// Its whole line can be clicked, not its words alone.
class CheckBox : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

 protected:
  bool hitButton(const QPoint& at) const override { return rect().contains(at); }
};

// Whether all of it could be on the screen at once. Only X11 tells where a window stands.
bool isWithinScreen(const QWidget& widget) {
  if (QGuiApplication::platformName() != "xcb") return true;
  const QSize area = widget.screen()->virtualSize();
  return widget.width() <= area.width() && widget.height() <= area.height();
}

}  // namespace

QRect rectangle(const Place& place) {
  const int left = pixels(place.left);
  const int top = pixels(place.top);
  return {left, top, pixels(place.left + place.width) - left,
          pixels(place.top + place.height) - top};
}

void setUp(QWidget& control, const QString& name, const Place& place) {
  control.setObjectName(name);
  control.setGeometry(rectangle(place));
}

QLabel* addLabel(QWidget& form, const LabelDesign& design) {
  auto* const rimmed = design.rim ? new RimmedLabel(&form, *design.rim) : nullptr;
  auto* const label = rimmed != nullptr ? rimmed : new QLabel(&form);
  setUp(*label, design.name, design.place);
  if (rimmed != nullptr && design.middle) rimmed->setMiddle(*design.middle);
  label->setTextFormat(Qt::PlainText);
  label->setText(design.caption);
  label->setFont(font(design.type));
  label->setAlignment(design.align);
  label->setToolTip(design.tooltip);
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, colour(design.fore));
  label->setPalette(palette);
  if (design.back) setBack(*label, *design.back);
  return label;
}

void setBack(QLabel& label, const Rgb& back) {
  QPalette palette = label.palette();
  palette.setColor(QPalette::Window, colour(back));
  label.setPalette(palette);
  label.setAutoFillBackground(true);
}

void setBackReadably(QLabel& label, const Rgb& back) {
  // The darkest of the colours that ink still reads on is a pure red.
  const double brightness = 0.2126 * back.red + 0.7152 * back.green + 0.0722 * back.blue;
  constexpr double kDark = 40;
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText,
                   brightness < kDark ? QColor(Qt::white) : colour(kInkColour));
  label.setPalette(palette);
  setBack(label, back);
}

void TextBox::setOpen(bool open) {
  if (open == isEnabled()) return;
  // The toolkit would hand the keyboard of a disabled control to the next one in its tab order.
  if (!open && hasFocus()) window()->setFocus();
  setFrame(open);
  setEnabled(open);
}

void TextBox::keyPressEvent(QKeyEvent* event) {
  const std::optional<char> row = digitOfRow(*event);
  const std::optional<char> digit = row ? row : digitOfKeypad(*event);
  if (!digit) {
    QLineEdit::keyPressEvent(event);
    return;
  }
  QKeyEvent typed(event->type(), *digit, Qt::NoModifier, QString(QLatin1Char(*digit)),
                  event->isAutoRepeat());
  QLineEdit::keyPressEvent(&typed);
  event->setAccepted(typed.isAccepted());
}

void TextBox::keyReleaseEvent(QKeyEvent* event) {
  QLineEdit::keyReleaseEvent(event);
  // A key that repeats goes down again and again, and up once.
  if (!event->isAutoRepeat()) emit keyUp(keyCode(*event));
}

void TextBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  const Qt::FocusReason reason = event->reason();
  const bool isToOtherWindow =
      reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
  if (!isToOtherWindow) emit lostFocus();
}

TextBox* addTextBox(QWidget& form, const TextBoxDesign& design) {
  auto* const box = new TextBox(&form);
  setUp(*box, design.name, design.place);
  if (design.maxLength > 0) box->setMaxLength(design.maxLength);
  box->setFont(font(design.type));
  box->setContextMenuPolicy(Qt::NoContextMenu);
  box->setAcceptDrops(false);
  QPalette palette = box->palette();
  palette.setColor(QPalette::Disabled, QPalette::Base, Qt::transparent);
  palette.setColor(QPalette::Disabled, QPalette::Text, colour(kInkColour));
  box->setPalette(palette);
  return box;
}

QWidget* addImage(QWidget& form, const ImageDesign& design) {
  auto* const image = new Image(&form, design.picture);
  setUp(*image, design.name, design.place);
  image->setAccessibleName(design.accessibleName);
  image->setVisible(design.visible);
  return image;
}

void PictureBox::paint(std::function<void(QPainter&)> painting) {
  painting_ = std::move(painting);
  update();
}

void PictureBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), colour(kInkColour));
  const QRect inside = rect().adjusted(kBorder, kBorder, -kBorder, -kBorder);
  painter.fillRect(inside, Qt::white);
  painter.translate(inside.topLeft());
  if (painting_) painting_(painter);
}

PictureBox* addPictureBox(QWidget& form, const QString& name, const Place& place) {
  auto* const box = new PictureBox(&form);
  setUp(*box, name, place);
  box->setAttribute(Qt::WA_OpaquePaintEvent);
  return box;
}

Canvas::Canvas(QWidget* parent, Paint paint) : QWidget(parent), paint_(std::move(paint)) {
  window()->installEventFilter(this);
}

void Canvas::paintEvent(QPaintEvent* event) {
  const QRect onScreen = screen()->virtualGeometry().translated(-mapToGlobal(QPoint()));
  const QRect exposed = isWithinScreen(*this) ? event->rect() : event->rect() & onScreen;
  if (exposed.isEmpty()) return;
  QPainter painter(this);
  painter.setClipRect(exposed);
  paint_(painter, exposed);
}

bool Canvas::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Move && !isWithinScreen(*this)) update();
  return false;
}

Clicks::Clicks(QWidget& control) : QObject(&control) {
  control.setMouseTracking(true);
  control.installEventFilter(this);
}

bool Clicks::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseMove) emit pointerMoved();
  const bool isRelease = event->type() == QEvent::MouseButtonRelease;
  if (!isRelease && event->type() != QEvent::MouseButtonPress) return false;
  const QPoint at = static_cast<QMouseEvent*>(event)->position().toPoint();
  if (isRelease && static_cast<QWidget*>(watched)->contentsRect().contains(at)) {
    emit clicked();
  }
  return true;
}

Canvas* addCanvas(QWidget& form, const CanvasDesign& design) {
  auto* const canvas = new Canvas(&form, design.paint);
  setUp(*canvas, design.name, design.place);
  canvas->setAccessibleName(design.accessibleName);
  canvas->setAttribute(Qt::WA_OpaquePaintEvent, design.isOpaque);
  return canvas;
}

Button::Button(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
  connect(this, &QPushButton::pressed, this, [this] {
    if (!isInMousePress_) emit wentDown();
  });
}

void Button::keyPressEvent(QKeyEvent* event) {
  QKeyEvent asSpace = withEnterAsSpace(*event);
  QPushButton::keyPressEvent(&asSpace);
  event->setAccepted(asSpace.isAccepted());
}

void Button::keyReleaseEvent(QKeyEvent* event) {
  QKeyEvent asSpace = withEnterAsSpace(*event);
  QPushButton::keyReleaseEvent(&asSpace);
  event->setAccepted(asSpace.isAccepted());
}

void Button::mousePressEvent(QMouseEvent* event) {
  isInMousePress_ = true;
  emit wentDown();
  if (isVisible()) QPushButton::mousePressEvent(event);
  isInMousePress_ = false;
}

void Button::mouseMoveEvent(QMouseEvent* event) {
  QPushButton::mouseMoveEvent(event);
  if (hasMouseTracking()) emit pointerMoved();
}

Button* addButton(QWidget& form, const ButtonDesign& design) {
  auto* const button = new Button(design.caption, &form);
  setUp(*button, design.name, design.place);
  button->setToolTip(design.tooltip);
  button->setFont(font(design.type));
  setFace(*button, design.back);
  if (!design.icon.isEmpty()) {
    button->setIcon(pictureIcon(design.icon));
    button->setIconSize({design.iconSize, design.iconSize});
  }
  if (design.caption.isEmpty()) button->setAccessibleName(spoken(design.tooltip));
  button->setMouseTracking(design.isShy);
  if (design.isShy) button->setFocusPolicy(Qt::NoFocus);
  button->setVisible(design.visible);
  return button;
}

void setFace(Button& button, const Rgb& back) {
  QPalette palette = button.palette();
  palette.setColor(QPalette::Button, colour(back));
  button.setPalette(palette);
}

QCheckBox* addCheckBox(QWidget& form, const CheckBoxDesign& design) {
  auto* const box = new CheckBox(design.caption, &form);
  setUp(*box, design.name, design.place);
  return box;
}

QComboBox* addComboBox(QWidget& form, const ComboBoxDesign& design) {
  auto* const box = new ComboBox(&form);
  setUp(*box, design.name, design.place);
  box->addItems(design.items);
  box->setCurrentIndex(design.chosen);
  box->setAccessibleName(design.accessibleName);
  return box;
}

}  // namespace ratanka
