#include "platform/form_window.h"

#include <QCloseEvent>
#include <QPainter>

#include "platform/controls.h"
#include "platform/pictures.h"
#include "platform/text.h"

namespace ratanka {

FormWindow::FormWindow(Form& form, const FormDesign& design) : form_(&form), design_(design) {
  setObjectName(text(design.name.text()));
  setWindowTitle(design.caption);
  setWindowFlags(design.hasBorder ? Qt::Window : Qt::Window | Qt::FramelessWindowHint);
  setFixedSize(pixels(design.width), pixels(design.height));
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void FormWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
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

}  // namespace ratanka
