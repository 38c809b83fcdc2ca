#pragma once

#include "platform/ports/random.h"
#include "sheets/rules/example.h"

// The sheets of one sum a row. Each draws the first number and then the second, two draws a row. A
// first number that is larger is reduced by the second, otherwise (equal ones too) the second is
// added, so that nothing is ever below 0.
namespace ratanka::sheets {

namespace malá {
// Both numbers from 0 to 9.
Examples ShowStart(Random& random);
}  // namespace malá

namespace veľká {
// Both numbers from 0 to 99.
Examples ShowStart(Random& random);
}  // namespace veľká

namespace hádanka {
// Both numbers from 0 to 9, one of them hidden behind the box: the first one in the rows 2, 4 and
// 5, the second one in the others. `Výsledok` is the hidden number.
Examples ShowStart(Random& random);
// Of a row from 1 to 9.
bool hidesFirst(int row);
}  // namespace hádanka

}  // namespace ratanka::sheets
