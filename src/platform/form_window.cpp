#include "platform/form_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QWindow>

#include "platform/controls.h"
#include "platform/desktop.h"
#include "platform/keys.h"
#include "platform/pictures.h"
#include "platform/text.h"

namespace ratanka {
namespace {

// The outline's own region and every pixel that touches it: those of a smooth edge.
QRegion grown(const QRegion& region) {
  QRegion result;
  for (const int x : {-1, 0, 1}) {
    for (const int y : {-1, 0, 1}) result |= region.translated(x, y);
  }
  return result;
}

// Whether the window system takes the drag over. Not on X11: its managers follow the left button
// alone, and one that hears of a drag after its release lets the window hang on the pointer.
bool movesByItself(QWindow& window) {
  return QGuiApplication::platformName() != "xcb" && window.startSystemMove();
}

}  // namespace

FormWindow::FormWindow(Form& form, const FormDesign& design) : form_(&form), design_(design) {
  setObjectName(text(design.name.text()));
  setWindowTitle(design.caption);
  Qt::WindowFlags flags = Qt::Window;
  if (!design.hasBorder) flags |= Qt::FramelessWindowHint;
  if (!design.takesKeyboard) flags |= Qt::WindowDoesNotAcceptFocus;
  setWindowFlags(flags);
  setAttribute(Qt::WA_ShowWithoutActivating, !design.takesKeyboard);
  setFixedSize(pixels(design.width), pixels(design.height));
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void FormWindow::cutTo(const QPolygon& outline) {
  outline_ = outline;
  const QRegion region(outline, Qt::OddEvenFill);
  const bool isSmooth = canDrawTranslucentWindows();
  if (isSmooth) setAttribute(Qt::WA_TranslucentBackground);
  setAttribute(Qt::WA_OpaquePaintEvent, !isSmooth);
  setMask(isSmooth ? grown(region) : region);
  if (!isSmooth) return;
  QPainterPath all;
  // At 150 % a window may end in the middle of a pixel: that one belongs to the outside, too.
  all.addRect(rect().adjusted(-1, -1, 1, 1));
  QPainterPath inside;
  inside.addPolygon(outline);
  inside.closeSubpath();
  outside_ = all - inside;
}

void FormWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  paintBackground(painter);
  if (outside_.isEmpty()) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
  painter.fillPath(outside_, Qt::black);
}

void FormWindow::paintBackground(QPainter& painter) const {
  const QSize size(design_.pictureSize.width, design_.pictureSize.height);
  if (size.width() < width() || size.height() < height()) {
    painter.fillRect(rect(), colour(design_.back));
  }
  if (!design_.picture.isEmpty()) {
    painter.drawPixmap(0, 0, picture(design_.picture, size, devicePixelRatioF()));
  }
}

void FormWindow::closeEvent(QCloseEvent* event) {
  // Closing is the form's to do: its window goes when its handlers have returned.
  event->ignore();
  if (form_ == nullptr) return;
  const Form::HandlerScope scope(*form_);
  form_->unload();
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (form_ == nullptr || form_->hasEnded()) return;
  const Form::HandlerScope scope(*form_);
  form_->Form_KeyDown(keyCode(*event));
}

void FormWindow::mousePressEvent(QMouseEvent* event) {
  // A press that a label or an image doesn't want comes here too.
  const bool isOnBackground = childAt(event->position().toPoint()) == nullptr;
  if (outline_.isEmpty() || !isOnBackground || movesByItself(*windowHandle())) return;
  grip_ = event->position().toPoint();
}

void FormWindow::mouseMoveEvent(QMouseEvent* event) {
  if (grip_) move(event->globalPosition().toPoint() - *grip_);
}

void FormWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (event->buttons() == Qt::NoButton) grip_.reset();
}

}  // namespace ratanka
