#pragma once

#include <functional>

#include "platform/ports/units.h"

class QAbstractButton;
class QString;
class QWidget;

namespace ratanka::piano {

struct Key;

// A key that goes down and up as it is told (`setChecked`), and tells of the mouse: true when any
// of its buttons goes down on it, false when it comes up.
QAbstractButton* addPianoKey(QWidget& form, const QString& name, const Key& key,
                             std::function<void(bool isDown)> whenTouched);

}  // namespace ratanka::piano
