#pragma once

#include <QScrollBar>

#include "platform/ports/units.h"

namespace ratanka {

// A horizontal scroll bar whose greatest value is at its left end.
struct ScrollBarDesign {
  QString name;
  Place place;
  int left = 0;  // the value at the left end, the greatest
  int right = 0;
  int value = 0;
  QString accessibleName{};
};
QScrollBar* addReversedScrollBar(QWidget& form, const ScrollBarDesign& design);

}  // namespace ratanka
