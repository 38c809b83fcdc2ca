#include "fuzz/damaged_input.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "fuzz/damage.h"
#include "fuzz/law.h"

using namespace ratanka;

extern "C" {

int LLVMFuzzerInitialize(int*, char***) {
  setenv("SDL_AUDIODRIVER", "dummy", 1);
  hold(tryFile(wholeFile()) > 0.01);
  return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t, std::size_t mostBytes,
                                    unsigned seed) {
  static const std::string whole = wholeFile();
  const std::string file = damaged(whole, seed).substr(0, mostBytes);
  std::ranges::copy(file, data);
  return file.size();
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tryFile({reinterpret_cast<const char*>(data), size});
  return 0;
}

}  // extern "C"
