#pragma once

#include "platform/ports/dialogs.h"

namespace ratanka::piskorky {

// How a game ended, as the child sees it.
enum class Outcome { lost, won, tied };

// The box that tells the child.
MessageBox outcomeBox(Outcome outcome);

}  // namespace ratanka::piskorky
