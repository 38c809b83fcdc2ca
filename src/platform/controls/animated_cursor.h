#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <vector>

class QPainter;

namespace ratanka {

// A little film in an animated-cursor file, shown as a picture and not as a mouse pointer. Knows
// nothing of time: whoever shows it says which step.
//
// A film is whole or it isn't there. A file that is missing, no regular file, longer than
// kMaxAniBytes, cut, or has one broken frame gives an empty film, without a message. A file from
// anywhere may be tried: what is decoded is checked first and stays under two megabytes.
class AnimatedCursor {
 public:
  static constexpr int kSize = 32;      // logical pixels, width and height
  static constexpr int kMaxSteps = 11;  // steps that are kept; a longer film ends there

  AnimatedCursor() = default;  // empty
  static AnimatedCursor load(const QString& path);
  static AnimatedCursor fromBytes(const QByteArray& file);

  bool isNull() const { return steps_.empty(); }
  int steps() const { return static_cast<int>(steps_.size()); }  // 0 to kMaxSteps

  // The smallest of the step's pictures that is sharp at `pixelRatio` device pixels a logical one,
  // or its largest; kSize logical pixels wide. Null for a step that doesn't exist.
  QImage frame(int step, qreal pixelRatio) const;

  // Fills the square of kSize logical pixels at the painter's origin with the step's picture,
  // sharp for the painter's device. A step that doesn't exist draws nothing.
  void draw(QPainter& painter, int step) const;

 private:
  using Pictures = std::vector<QImage>;  // one frame in several sizes, smallest first

  std::vector<Pictures> steps_;
};

}  // namespace ratanka
