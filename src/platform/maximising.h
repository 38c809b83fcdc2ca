#pragma once

class QWidget;

namespace ratanka {

// On Wayland the toolkit's frame offers to maximise every window, one of a fixed size too, and a
// compositor may end a program whose window doesn't fill what it is given then. From now on the
// limit of this window's size goes while it is maximised, and comes back once it is small again.
void growWhenMaximised(QWidget& widget);

}  // namespace ratanka
