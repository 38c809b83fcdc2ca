#include "platform/scroll_bar.h"

#include <QMouseEvent>
#include <QStyleOptionSlider>

#include "platform/controls.h"

namespace ratanka {

ReversedScrollBar::ReversedScrollBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
  setInvertedAppearance(true);
  setInvertedControls(true);
}

void ReversedScrollBar::mousePressEvent(QMouseEvent* event) {
  // The toolkit turns the looks round and the keys, but not the ways of the mouse.
  QStyleOptionSlider option;
  initStyleOption(&option);
  const auto act = [this](SliderAction action) {
    triggerAction(action);
    setRepeatAction(action);
  };
  switch (style()->hitTestComplexControl(QStyle::CC_ScrollBar, &option, event->position().toPoint(),
                                         this)) {
    case QStyle::SC_ScrollBarAddPage:
      return act(SliderPageStepSub);
    case QStyle::SC_ScrollBarSubPage:
      return act(SliderPageStepAdd);
    case QStyle::SC_ScrollBarAddLine:
      return act(SliderSingleStepSub);
    case QStyle::SC_ScrollBarSubLine:
      return act(SliderSingleStepAdd);
    default:
      QScrollBar::mousePressEvent(event);
  }
}

void ReversedScrollBar::mouseReleaseEvent(QMouseEvent* event) {
  setRepeatAction(SliderNoAction);
  QScrollBar::mouseReleaseEvent(event);
}

ReversedScrollBar* addReversedScrollBar(QWidget& form, const ScrollBarDesign& design) {
  auto* const bar = new ReversedScrollBar(&form);
  setUp(*bar, design.name, design.place);
  bar->setRange(design.right, design.left);
  bar->setValue(design.value);
  bar->setAccessibleName(design.accessibleName);
  return bar;
}

}  // namespace ratanka
