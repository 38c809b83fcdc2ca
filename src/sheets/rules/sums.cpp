#include "sheets/rules/sums.h"

namespace ratanka::sheets {
namespace {

struct Sum {
  int first;
  int second;
  bool subtracts;

  int result() const { return subtracts ? first - second : first + second; }
  const char* sign() const { return subtracts ? " - " : " + "; }
};

Sum draw(Random& random, int numbers) {
  const int first = random.below(numbers);
  const int second = random.below(numbers);
  return {first, second, first > second};
}

Examples plainSums(Random& random, int numbers) {
  return nineRows([&]() -> Example {
    const Sum sum = draw(random, numbers);
    return {.first = std::to_string(sum.first),
            .sign = sum.sign(),
            .second = std::to_string(sum.second),
            .Výsledok = sum.result()};
  });
}

}  // namespace

bool hádanka::hidesFirst(int row) { return row == 2 || row == 4 || row == 5; }

Examples malá::ShowStart(Random& random) { return plainSums(random, 10); }

Examples veľká::ShowStart(Random& random) { return plainSums(random, 100); }

Examples hádanka::ShowStart(Random& random) {
  int row = 0;
  return nineRows([&]() -> Example {
    const Sum sum = draw(random, 10);
    const bool first = hidesFirst(++row);
    return {.first = std::to_string(first ? sum.second : sum.first),
            .sign = sum.sign(),
            .second = std::to_string(sum.result()),
            .Výsledok = first ? sum.first : sum.second,
            .box = first ? Example::Box::firstOperand : Example::Box::secondOperand};
  });
}

}  // namespace ratanka::sheets
