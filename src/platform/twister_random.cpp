#include "platform/twister_random.h"

namespace ratanka {

double TwisterRandom::next() {
  // The upper 53 bits fill a double's significand exactly, so 1 itself can't come out.
  return static_cast<double>(engine_() >> 11) * 0x1p-53;
}

}  // namespace ratanka
