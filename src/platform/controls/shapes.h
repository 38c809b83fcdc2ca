#pragma once

#include <QString>
#include <optional>

#include "platform/controls/controls.h"

// Builders for what is only drawn on a form; the mouse doesn't feel it.

namespace ratanka {

// A straight line.
struct LineDesign {
  QString name;
  int x1 = 0;  // twips
  int y1 = 0;
  int x2 = 0;
  int y2 = 0;
  int width = 1;  // logical pixels
  Rgb colour = kInkColour;
  bool visible = true;
};
QWidget* addLine(QWidget& form, const LineDesign& design);

struct OvalDesign {
  QString name;
  Place place;
  std::optional<Rgb> fill{};     // none: what lies behind shows through
  std::optional<Rgb> outline{};  // inside the place
  int width = 1;                 // of the outline, in logical pixels
};
QWidget* addOval(QWidget& form, const OvalDesign& design);

}  // namespace ratanka
