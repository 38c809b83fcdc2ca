#include "platform/controls/shapes.h"

#include <QPainter>
#include <algorithm>
#include <cstdlib>

namespace ratanka {
namespace {

// From one point of its own area to another.
class Line : public QWidget {
 public:
  Line(QWidget* parent, const QLine& line, int width, const Rgb& rgb)
      : QWidget(parent), line_(line), width_(width), colour_(colour(rgb)) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (line_.dx() == 0 || line_.dy() == 0) {
      painter.fillRect(rect(), colour_);
      return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour_, width_, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(line_);
  }

 private:
  QLine line_;
  int width_;
  QColor colour_;
};

class Oval : public QWidget {
 public:
  Oval(QWidget* parent, const OvalDesign& design)
      : QWidget(parent),
        brush_(design.fill ? QBrush(colour(*design.fill)) : QBrush(Qt::NoBrush)),
        pen_(design.outline ? QPen(colour(*design.outline), design.width) : QPen(Qt::NoPen)) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(brush_);
    painter.setPen(pen_);
    const qreal inset = pen_.style() == Qt::NoPen ? 0 : pen_.widthF() / 2;
    painter.drawEllipse(QRectF(rect()).adjusted(inset, inset, -inset, -inset));
  }

 private:
  QBrush brush_;
  QPen pen_;
};

}  // namespace

QWidget* addLine(QWidget& form, const LineDesign& design) {
  const QPoint from(pixels(design.x1), pixels(design.y1));
  const QPoint to(pixels(design.x2), pixels(design.y2));
  const int before = design.width / 2;
  QRect area = QRect(from, to).normalized();
  if (from.y() == to.y()) {
    area = {std::min(from.x(), to.x()), from.y() - before, std::abs(to.x() - from.x()),
            design.width};
  } else if (from.x() == to.x()) {
    area = {from.x() - before, std::min(from.y(), to.y()), design.width,
            std::abs(to.y() - from.y())};
  } else {
    area.adjust(-design.width, -design.width, design.width, design.width);
  }
  auto* const line = new Line(&form, QLine(from - area.topLeft(), to - area.topLeft()),
                              design.width, design.colour);
  line->setObjectName(design.name);
  line->setGeometry(area);
  line->setVisible(design.visible);
  return line;
}

QWidget* addOval(QWidget& form, const OvalDesign& design) {
  auto* const oval = new Oval(&form, design);
  setUp(*oval, design.name, design.place);
  return oval;
}

}  // namespace ratanka
