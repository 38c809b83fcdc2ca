#pragma once

#include <malloc.h>

#include <cstddef>

#ifdef __SANITIZE_ADDRESS__
// The compiler brings it without a header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace ratanka::soak {

// In use on the heap, by the program and its libraries.
inline std::size_t heapBytes() {
#ifdef __SANITIZE_ADDRESS__
  return __sanitizer_get_current_allocated_bytes();
#else
  return mallinfo2().uordblks;
#endif
}

}  // namespace ratanka::soak
