#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

// Files of chunks, each with a tag, its size and so many bytes: waves, sound fonts and animations.
namespace ratanka::riff {

inline constexpr std::size_t kHeader = 8;  // of a chunk: its tag and its size

// Little-endian, as everything in such a file is. The bytes have to be there.
inline std::uint32_t number(std::string_view bytes, std::size_t at, std::size_t width) {
  std::uint32_t value = 0;
  for (std::size_t i = width; i > 0; --i) {
    value = value << 8 | static_cast<unsigned char>(bytes[at + i - 1]);
  }
  return value;
}

struct Chunk {
  std::string_view tag;
  std::string_view body;
};

// Takes the next chunk off, with the byte that fills up an odd size if it is there; nothing where
// no whole one is left.
inline std::optional<Chunk> takeChunk(std::string_view& rest) {
  if (rest.size() < kHeader) return std::nullopt;
  const std::size_t size = number(rest, 4, 4);
  if (rest.size() - kHeader < size) return std::nullopt;
  const Chunk chunk{rest.substr(0, 4), rest.substr(kHeader, size)};
  rest.remove_prefix(std::min(rest.size(), kHeader + size + size % 2));
  return chunk;
}

}  // namespace ratanka::riff
