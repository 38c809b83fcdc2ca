#include "platform/sound/sound_font.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <optional>

#include "platform/plain/riff.h"

namespace ratanka {
namespace {

using riff::number;

constexpr std::uint32_t kGenerators = 60;  // what a sound's shape can be told with

// Records of one size; the last one only ends the others.
class Table {
 public:
  Table() = default;
  Table(std::string_view bytes, std::size_t size) : bytes_(bytes), size_(size) {}

  bool isWhole() const { return !bytes_.empty() && bytes_.size() % size_ == 0; }
  std::size_t count() const { return bytes_.size() / size_; }
  std::uint32_t at(std::size_t record, std::size_t byte, std::size_t width = 2) const {
    return number(bytes_, record * size_ + byte, width);
  }

  // Whether the numbers there rise, and lead into the other table.
  bool leadsInto(const Table& other, std::size_t byte) const {
    std::uint32_t before = 0;
    for (std::size_t i = 0; i < count(); ++i) {
      const std::uint32_t index = at(i, byte);
      if (index < before || index >= other.count()) return false;
      before = index;
    }
    return true;
  }

 private:
  std::string_view bytes_;
  std::size_t size_ = 1;
};

// Either half of a font: its presets, or its instruments. A generator of a certain kind names what
// a zone plays.
struct Half {
  Table names, zones, modulators, generators;

  bool isSound(std::size_t firstZone, std::uint32_t kind, const Table& played) const {
    if (!names.leadsInto(zones, firstZone)) return false;
    if (!zones.leadsInto(generators, 0) || !zones.leadsInto(modulators, 2)) return false;
    for (std::size_t i = 0; i < modulators.count(); ++i) {
      if (modulators.at(i, 2) >= kGenerators) return false;
    }
    for (std::size_t i = 0; i + 1 < generators.count(); ++i) {
      if (generators.at(i, 0) == kind && generators.at(i, 2) + 1 >= played.count()) return false;
    }
    return true;
  }
};

bool areWithin(const Table& samples, std::uint64_t size) {
  for (std::size_t i = 0; i + 1 < samples.count(); ++i) {
    const std::uint32_t start = samples.at(i, 20, 4);
    const std::uint32_t end = samples.at(i, 24, 4);
    if (start > end || end > size || samples.at(i, 36, 4) == 0) return false;
  }
  return true;
}

// All but the samples: `sampleBytes` is how much there is of them.
bool isSound(std::string_view hydra, std::uint64_t sampleBytes) {
  struct {
    std::string_view tag;
    std::size_t size;
    Table table{};
  } parts[] = {{"phdr", 38}, {"pbag", 4},  {"pmod", 10}, {"pgen", 4}, {"inst", 22},
               {"ibag", 4},  {"imod", 10}, {"igen", 4},  {"shdr", 46}};
  for (auto& part : parts) {
    const auto chunk = riff::takeChunk(hydra);
    if (!chunk || chunk->tag != part.tag) return false;
    part.table = Table(chunk->body, part.size);
    if (!part.table.isWhole()) return false;
  }
  const auto half = [&](std::size_t first) {
    return Half{parts[first].table, parts[first + 1].table, parts[first + 2].table,
                parts[first + 3].table};
  };
  const Table& samples = parts[8].table;
  constexpr std::uint32_t kInstrument = 41;
  constexpr std::uint32_t kSample = 53;
  return half(0).isSound(24, kInstrument, parts[4].table) &&
         half(4).isSound(20, kSample, samples) && areWithin(samples, sampleBytes);
}

std::string take(std::istream& file, std::size_t size) {
  std::string bytes(size, '\0');
  file.read(bytes.data(), size);
  return file ? bytes : "";
}

}  // namespace

bool isSoundFont(const std::string& path) {
  constexpr std::size_t kMaxHydra = 1 << 26;
  constexpr std::size_t kListHeader = riff::kHeader + 4;
  std::error_code error;
  const std::uintmax_t fileSize = std::filesystem::file_size(path, error);
  if (error) return false;
  std::ifstream file(path, std::ios::binary);
  const std::string start = take(file, kListHeader);
  if (!start.starts_with("RIFF") || !start.ends_with("sfbk")) return false;
  if (number(start, 4, 4) + riff::kHeader != fileSize) return false;
  std::uint32_t sampleBytes = 0;
  for (const char* tag : {"INFO", "sdta", "pdta"}) {
    const std::string list = take(file, kListHeader);
    if (!list.starts_with("LIST") || !list.ends_with(tag)) return false;
    const std::uint32_t size = number(list, 4, 4) - 4;
    // Nothing fills up a list of an odd size: so the synthesiser has it.
    const std::streamoff next = file.tellg() + std::streamoff{size};
    if (next > static_cast<std::streamoff>(fileSize)) return false;
    if (list.ends_with("pdta")) return size < kMaxHydra && isSound(take(file, size), sampleBytes);
    if (list.ends_with("sdta") && take(file, 4) != "smpl") return false;
    sampleBytes = size;
    file.seekg(next);
  }
  return false;
}

}  // namespace ratanka
