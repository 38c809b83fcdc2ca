#pragma once

#include <cstdint>
#include <optional>

#include "platform/ports/random.h"
#include "sheets/rules/example.h"

namespace ratanka::sheets {

namespace násobilka {
// Products of two numbers from 0 to 9, two draws a row.
Examples ShowStart(Random& random);
}  // namespace násobilka

// All exact divisions a : b of the numbers a from 1 to 10, in ascending order: 27, in three sets.
namespace delenie {
Examples ShowStart();
Examples ShowStart1();
Examples ShowStart2();

// The set after one that was done. `DelenieKolo` (0 to 3) counts through a cycle of four: the three
// sets, and then none, which asks the last one again.
std::optional<Examples> nextSet(std::int16_t& DelenieKolo);
}  // namespace delenie

}  // namespace ratanka::sheets
