#include "platform/plain/ani_container.h"

#include <utility>

#include "platform/plain/riff.h"

namespace ratanka {
namespace {

using riff::Chunk;
using riff::number;

constexpr std::size_t kHeaderBytes = 36;
constexpr std::uint32_t kFramesAreIcons = 1;

// Whether the last chunk there has the byte that fills up an odd size: all others do.
bool isFilledUp(std::string_view chunks) { return chunks.size() % 2 == 0; }

struct Parts {
  std::string_view header;
  std::optional<std::string_view> sequence;
  std::optional<std::vector<std::string_view>> frames;
};

std::optional<std::vector<std::string_view>> readFrames(std::string_view rest) {
  if (!isFilledUp(rest)) return std::nullopt;
  std::vector<std::string_view> frames;
  while (!rest.empty()) {
    const std::optional<Chunk> chunk = riff::takeChunk(rest);
    if (!chunk) return std::nullopt;
    if (chunk->tag != "icon") continue;
    if (frames.size() == kMaxAniFrames) return std::nullopt;
    frames.push_back(chunk->body);
  }
  return frames;
}

// False when the chunk must not be where it is: a second one of its kind, or one cut short.
bool takePart(const Chunk& chunk, Parts& parts) {
  if (chunk.tag == "anih") {
    if (!parts.header.empty() || chunk.body.size() != kHeaderBytes) return false;
    parts.header = chunk.body;
  } else if (chunk.tag == "seq ") {
    if (parts.sequence) return false;
    parts.sequence = chunk.body;
  } else if (chunk.tag == "LIST" && chunk.body.starts_with("fram")) {
    if (parts.frames) return false;
    parts.frames = readFrames(chunk.body.substr(4));
    return parts.frames.has_value();
  }
  return true;
}

std::optional<Parts> readParts(std::string_view file) {
  if (file.size() > kMaxAniBytes || !file.starts_with("RIFF")) return std::nullopt;
  const std::optional<Chunk> all = riff::takeChunk(file);
  if (!all || !all->body.starts_with("ACON") || !isFilledUp(all->body)) return std::nullopt;
  Parts parts;
  std::string_view rest = all->body.substr(4);
  while (!rest.empty()) {
    const std::optional<Chunk> chunk = riff::takeChunk(rest);
    if (!chunk || !takePart(*chunk, parts)) return std::nullopt;
  }
  if (parts.header.empty() || !parts.frames) return std::nullopt;
  return parts;
}

// Empty when the sequence and the count of steps disagree or a step has no frame.
std::vector<std::uint32_t> readSteps(std::size_t count,
                                     const std::optional<std::string_view>& sequence,
                                     std::size_t frames) {
  const bool counted = sequence ? sequence->size() == 4 * count : count <= frames;
  if (!counted || count > kMaxAniSteps) return {};
  std::vector<std::uint32_t> steps;
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint32_t frame =
        sequence ? number(*sequence, 4 * i, 4) : static_cast<std::uint32_t>(i);
    if (frame >= frames) return {};
    steps.push_back(frame);
  }
  return steps;
}

}  // namespace

std::optional<AniContainer> parseAni(std::string_view file) {
  std::optional<Parts> parts = readParts(file);
  if (!parts) return std::nullopt;
  const std::size_t frameCount = number(parts->header, 4, 4);
  const std::size_t stepCount = number(parts->header, 8, 4);
  const std::uint32_t flags = number(parts->header, 32, 4);
  if (frameCount != parts->frames->size() || !(flags & kFramesAreIcons)) return std::nullopt;

  AniContainer container{std::move(*parts->frames), {}};
  container.steps = readSteps(stepCount, parts->sequence, container.frames.size());
  if (container.steps.empty()) return std::nullopt;
  return container;
}

}  // namespace ratanka
