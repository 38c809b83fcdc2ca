#pragma once

#include <cstdio>
#include <cstdlib>

namespace ratanka {

// What is true for every input; where it isn't, its line is told and the input kept.
inline void hold(bool law, int line = __builtin_LINE()) {
  if (law) return;
  std::fprintf(stderr, "The law of line %d doesn't hold.\n", line);
  std::abort();
}

}  // namespace ratanka
