#include "sheets/rules/chains.h"

namespace ratanka::sheets {
namespace {

// A piece of an example as it reads, and its value.
struct Term {
  std::string text;
  int value = 0;
};

Term number(int value) { return {std::to_string(value), value}; }

Term drawn(Random& random, int numbers) { return number(random.below(numbers)); }

Term joined(const Term& left, const Term& right) {
  if (left.value <= right.value) return {left.text + " + " + right.text, left.value + right.value};
  return {left.text + " -  " + right.text, left.value - right.value};
}

Term bracketed(const Term& term) { return {"(" + term.text + ")", term.value}; }

Example closed(const Term& term, const Term& last) {
  return {.first = term.text + "+" + last.text, .Výsledok = term.value + last.value};
}

}  // namespace

Examples veľkéčísla::ShowStart(Random& random) {
  return nineRows([&] {
    Term chain = drawn(random, 25);
    for (const int numbers : {20, 15, 10}) chain = joined(chain, drawn(random, numbers));
    return closed(chain, drawn(random, 5));
  });
}

Examples zátvorky::ShowStart(Random& random) {
  return nineRows([&] {
    const Term a = drawn(random, 50);
    const Term b = drawn(random, 40);
    const Term c = drawn(random, 30);
    const Term d = drawn(random, 20);
    const Term pairs = joined(bracketed(joined(a, b)), bracketed(joined(c, d)));
    return closed(pairs, drawn(random, 10));
  });
}

}  // namespace ratanka::sheets
