#pragma once

#include <QFont>

namespace ratanka {

// A font as the system names it.
struct Type {
  const char* family = "MS Sans Serif";
  double points = 8.25;
  bool bold = false;
  bool italic = false;
};

// The named family where the machine has it, else a free one of the same width. The size belongs to
// the same grid as the twips (20 to a point), whatever density the screen claims.
QFont font(const Type& type);

}  // namespace ratanka
