#pragma once

#include "platform/random.h"
#include "sheets/rules/example.h"

namespace ratanka::sheets::malá {

// Sums of one-digit numbers: a is 0 to 9, then b, two draws a row. The larger a is reduced by b,
// otherwise b is added, so that no result is below 0.
Examples ShowStart(Random& random);

}  // namespace ratanka::sheets::malá
