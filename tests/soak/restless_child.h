#pragma once

#include <cstdint>

namespace ratanka::soak {

// Lets a child without patience at one run of the program after another, under the laws, until so
// many events have come, and tells what was seen. The same seed does the same, but for a run in a
// few, in which the keyboard goes to another button somewhere on the way.
void playRestlessly(std::int64_t events, std::uint64_t seed);

}  // namespace ratanka::soak
