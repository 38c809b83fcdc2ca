#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <random>
#include <string>

namespace ratanka {

// What happens to a file on a bad disk or on a bad stick: it's cut, parts of it are rubbish, zero,
// in another place or there twice, and numbers in it, sizes above all, are others than they were.
inline std::string damaged(std::string file, unsigned seed) {
  std::mt19937 random(seed);
  const auto below = [&](std::size_t end) { return end == 0 ? 0 : random() % end; };
  const auto number = [&]() -> std::uint32_t {
    constexpr std::uint32_t kAwkward[] = {0,          1,          0x7f,       0x80,
                                          0xff,       0x7fff,     0x8000,     0xffff,
                                          0x7fffffff, 0x80000000, 0xfffffffe, 0xffffffff};
    return below(2) == 0 ? kAwkward[below(std::size(kAwkward))]
                         : static_cast<std::uint32_t>(random());
  };
  for (std::size_t left = 1 + below(4); left > 0; --left) {
    const std::size_t at = below(file.size());
    const std::size_t length = below(std::min<std::size_t>(file.size() - at, 64)) + 1;
    const std::size_t width = std::size_t{1} << below(3);
    switch (below(8)) {
      case 0:
        file.resize(at);
        break;
      case 1:
        file.erase(at, length);
        break;
      case 2:
        file.insert(at, file.substr(below(file.size()), length));
        break;
      case 3:
        for (std::size_t i = 0; i < length && at + i < file.size(); ++i) {
          file[at + i] = static_cast<char>(random());
        }
        break;
      default: {
        // Half of the time what stands behind a tag of four letters.
        const std::size_t tag = below(2) == 0 ? file.find_first_of("RLMifbdpsv", at) : at - 4;
        const std::uint32_t value = number();
        const bool isBigEndian = below(2) == 0;
        for (std::size_t i = 0; i < width && tag + 4 + i < file.size(); ++i) {
          const std::size_t byte = isBigEndian ? width - 1 - i : i;
          file[tag + 4 + i] = static_cast<char>(value >> 8 * byte & 0xff);
        }
      }
    }
  }
  return file;
}

}  // namespace ratanka
