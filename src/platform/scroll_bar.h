#pragma once

#include <QScrollBar>

#include "platform/units.h"

namespace ratanka {

// A horizontal scroll bar whose greatest value is at its left end. Its keys, arrows and trough move
// the thumb the way that the child sees.
class ReversedScrollBar : public QScrollBar {
 public:
  explicit ReversedScrollBar(QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
};

struct ScrollBarDesign {
  QString name;
  Place place;
  int left = 0;  // the value at the left end, the greatest
  int right = 0;
  int value = 0;
  QString accessibleName{};
};
ReversedScrollBar* addReversedScrollBar(QWidget& form, const ScrollBarDesign& design);

}  // namespace ratanka
