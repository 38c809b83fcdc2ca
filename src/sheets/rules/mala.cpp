#include "sheets/rules/mala.h"

namespace ratanka::sheets::malá {

Examples ShowStart(Random& random) {
  Examples examples;
  for (Example& example : examples) {
    const int a = random.below(10);
    const int b = random.below(10);
    const bool subtracts = a > b;
    example = {.first = std::to_string(a),
               .sign = subtracts ? " - " : " + ",
               .second = std::to_string(b),
               .Výsledok = subtracts ? a - b : a + b};
  }
  return examples;
}

}  // namespace ratanka::sheets::malá
