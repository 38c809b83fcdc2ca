#include "blocks/pics.h"

#include <QPainter>
#include <cmath>

#include "blocks/rules/tiles.h"
#include "platform/controls/controls.h"

namespace ratanka::blocks {
namespace {

// Moves the edges of a rectangle to the nearest pixels of the device, so that neighbours meet
// without a gap and without a blurred edge.
QRectF onPixels(const QPainter& painter, const QRectF& area) {
  const QTransform& device = painter.deviceTransform();
  const QRectF mapped = device.mapRect(area);
  const QPointF from(std::round(mapped.left()), std::round(mapped.top()));
  const QPointF to(std::round(mapped.right()), std::round(mapped.bottom()));
  return device.inverted().mapRect(QRectF(from, to));
}

}  // namespace

void paintTile(QPainter& painter, int kind, int left, int top) {
  for (const Stroke& stroke : tile(kind)) {
    const QRectF area(left + stroke.x, top + stroke.y, stroke.width, stroke.height);
    painter.fillRect(onPixels(painter, area), colour(stroke.colour));
  }
}

void paintNext(QPainter& painter, int kind, int left, int top) {
  const QRectF area(left, top, kPreviewSize.width, kPreviewSize.height);
  painter.fillRect(onPixels(painter, area), colour(kBackColour));
  if (kind == 0) return;
  for (const ScreenPoint& corner : previewTiles(kind)) {
    paintTile(painter, kind, left + corner.x, top + corner.y);
  }
}

}  // namespace ratanka::blocks
