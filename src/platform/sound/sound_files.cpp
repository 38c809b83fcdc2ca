#include "platform/sound/sound_files.h"

#include <filesystem>
#include <fstream>

#include "platform/plain/riff.h"

namespace ratanka {
namespace {

using riff::number;

std::string bytesOf(std::uint32_t number, int width) {
  std::string bytes;
  for (int i = 0; i < width; ++i) bytes += static_cast<char>(number >> 8 * i & 0xff);
  return bytes;
}

struct Wave {
  std::string_view format;
  std::string_view samples;
};

Wave chunksOf(std::string_view file) {
  constexpr std::size_t kStart = 12;  // "RIFF", a size, "WAVE"
  Wave wave;
  std::string_view rest = file.substr(std::min(kStart, file.size()));
  while (const auto chunk = riff::takeChunk(rest)) {
    if (chunk->tag == "fmt ") wave.format = chunk->body;
    if (chunk->tag == "data") wave.samples = chunk->body;
  }
  return wave;
}

}  // namespace

std::string readSoundFile(const std::string& path) {
  constexpr std::size_t kMaxBytes = 1 << 20;
  std::error_code error;
  const std::size_t size = std::filesystem::file_size(path, error);
  if (error || size > kMaxBytes) return {};
  std::string bytes(size, '\0');
  std::ifstream(path, std::ios::binary).read(bytes.data(), size);
  return bytes;
}

std::string plainWave(std::string_view file) {
  constexpr std::uint32_t kPlain = 1;
  constexpr std::size_t kFormatSize = 16;
  const Wave wave = chunksOf(file);
  if (!file.starts_with("RIFF") || wave.format.size() < kFormatSize) return {};
  const std::uint32_t sides = number(wave.format, 2, 2);
  const std::uint32_t rate = number(wave.format, 4, 4);
  const std::uint32_t bits = number(wave.format, 14, 2);
  if (number(wave.format, 0, 2) != kPlain || sides < 1 || sides > 2 || rate < 8000 ||
      rate > 48000 || (bits != 8 && bits != 16)) {
    return {};
  }
  const std::uint32_t frame = sides * bits / 8;
  const auto size = static_cast<std::uint32_t>(wave.samples.size() / frame * frame);
  if (size == 0) return {};
  return "RIFF" + bytesOf(size + 36, 4) + "WAVEfmt " + bytesOf(kFormatSize, 4) +
         bytesOf(kPlain, 2) + bytesOf(sides, 2) + bytesOf(rate, 4) + bytesOf(rate * frame, 4) +
         bytesOf(frame, 2) + bytesOf(bits, 2) + "data" + bytesOf(size, 4) +
         std::string(wave.samples.substr(0, size));
}

}  // namespace ratanka
