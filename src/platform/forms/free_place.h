#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <vector>

namespace ratanka {

// An area of the screen that is to be seen. A pixel of it that is hidden counts `weight` times.
struct Kept {
  QRect area;
  int weight = 1;
};

// The upper left corner of a window of that size on the screen where it hides the least; of equal
// places the one nearest to `wish`. All in logical pixels of the whole desktop. A window that is
// larger than the screen begins at the screen's corner.
QPoint freePlace(const QSize& size, const QRect& screen, const std::vector<Kept>& kept,
                 const QPoint& wish);

// The size of a window that isn't shown yet, with the frame that a window manager will draw.
QSize withFrame(const QSize& client);

}  // namespace ratanka
