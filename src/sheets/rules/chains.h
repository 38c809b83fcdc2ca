#pragma once

#include "platform/ports/random.h"
#include "sheets/rules/example.h"

// The sheets of five numbers a row, five draws each. An operator follows from the values on both
// sides of it: a larger left one is reduced by the right one, otherwise (equal ones too) they are
// added, so that no step is ever below 0. The fifth number is always added.
namespace ratanka::sheets {

namespace veľkéčísla {
// A chain from left to right of numbers below 25, 20, 15, 10 and 5. Results from 0 to 42.
Examples ShowStart(Random& random);
}  // namespace veľkéčísla

namespace zátvorky {
// Two bracketed pairs and a last number, below 50 and 40, 30 and 20, and 10. Results from 0 to 87.
Examples ShowStart(Random& random);
}  // namespace zátvorky

}  // namespace ratanka::sheets
