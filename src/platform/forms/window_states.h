#pragma once

class QWidget;

namespace ratanka {

// On Wayland the toolkit's frame offers to maximise every window, one of a fixed size too, and a
// compositor may end a program whose window doesn't fill what it is given then. From now on the
// limit of this window's size goes while it is maximised, and comes back once it is small again.
void growWhenMaximised(QWidget& widget);

// A dialog that is put away would leave a child before windows that don't answer, and some managers
// take the form beneath along. From now on this window comes back at once.
void comeBackWhenPutAway(QWidget& widget);

}  // namespace ratanka
