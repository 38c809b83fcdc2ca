#include "platform/controls/scroll_bar.h"

#include "platform/controls/controls.h"

namespace ratanka {

QScrollBar* addReversedScrollBar(QWidget& form, const ScrollBarDesign& design) {
  auto* const bar = new QScrollBar(Qt::Horizontal, &form);
  setUp(*bar, design.name, design.place);
  // As one of a language that is written from the right: its looks, its keys and its mouse alike.
  bar->setLayoutDirection(Qt::RightToLeft);
  bar->setInvertedControls(false);
  bar->setFocusPolicy(Qt::StrongFocus);
  bar->setContextMenuPolicy(Qt::NoContextMenu);
  bar->setRange(design.right, design.left);
  bar->setValue(design.value);
  bar->setAccessibleName(design.accessibleName);
  return bar;
}

}  // namespace ratanka
