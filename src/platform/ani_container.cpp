#include "platform/ani_container.h"

#include <string_view>
#include <utility>

namespace ratanka {
namespace {

using Bytes = std::span<const std::byte>;

constexpr std::size_t kHeaderBytes = 36;
constexpr std::uint32_t kFramesAreIcons = 1;

// The caller has made sure that four bytes stand at the place.
std::uint32_t u32(Bytes bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 4; i-- > 0;) {
    value = value << 8 | std::to_integer<std::uint32_t>(bytes[at + i]);
  }
  return value;
}

bool isTag(Bytes bytes, std::string_view tag) {
  if (bytes.size() < tag.size()) return false;
  for (std::size_t i = 0; i < tag.size(); ++i) {
    if (std::to_integer<char>(bytes[i]) != tag[i]) return false;
  }
  return true;
}

struct Chunk {
  Bytes tag;
  Bytes data;
};

// Takes the first chunk off `rest`, with the byte that pads it to an even length. Nothing, when
// the chunk claims more than there is.
std::optional<Chunk> takeChunk(Bytes& rest) {
  if (rest.size() < 8) return std::nullopt;
  const std::size_t size = u32(rest, 4);
  const Bytes body = rest.subspan(8);
  if (size > body.size() || size % 2 > body.size() - size) return std::nullopt;
  const Chunk chunk{rest.first(4), body.first(size)};
  rest = body.subspan(size + size % 2);
  return chunk;
}

struct Parts {
  Bytes header;
  std::optional<Bytes> sequence;
  std::optional<std::vector<Bytes>> frames;
};

std::optional<std::vector<Bytes>> readFrames(Bytes rest) {
  std::vector<Bytes> frames;
  while (!rest.empty()) {
    const std::optional<Chunk> chunk = takeChunk(rest);
    if (!chunk) return std::nullopt;
    if (!isTag(chunk->tag, "icon")) continue;
    if (frames.size() == kMaxAniFrames) return std::nullopt;
    frames.push_back(chunk->data);
  }
  return frames;
}

// False when the chunk must not be where it is: a second one of its kind, or one cut short.
bool takePart(const Chunk& chunk, Parts& parts) {
  if (isTag(chunk.tag, "anih")) {
    if (!parts.header.empty() || chunk.data.size() != kHeaderBytes) return false;
    parts.header = chunk.data;
  } else if (isTag(chunk.tag, "seq ")) {
    if (parts.sequence) return false;
    parts.sequence = chunk.data;
  } else if (isTag(chunk.tag, "LIST") && isTag(chunk.data, "fram")) {
    if (parts.frames) return false;
    parts.frames = readFrames(chunk.data.subspan(4));
    return parts.frames.has_value();
  }
  return true;
}

std::optional<Parts> readParts(Bytes file) {
  if (file.size() > kMaxAniBytes || !isTag(file, "RIFF")) return std::nullopt;
  const std::optional<Chunk> riff = takeChunk(file);
  if (!riff || !isTag(riff->data, "ACON")) return std::nullopt;
  Parts parts;
  Bytes rest = riff->data.subspan(4);
  while (!rest.empty()) {
    const std::optional<Chunk> chunk = takeChunk(rest);
    if (!chunk || !takePart(*chunk, parts)) return std::nullopt;
  }
  if (parts.header.empty() || !parts.frames) return std::nullopt;
  return parts;
}

// Empty when the sequence and the count of steps disagree or a step has no frame.
std::vector<std::uint32_t> readSteps(std::size_t count, const std::optional<Bytes>& sequence,
                                     std::size_t frames) {
  const bool counted = sequence ? sequence->size() == 4 * count : count <= frames;
  if (!counted || count > kMaxAniSteps) return {};
  std::vector<std::uint32_t> steps;
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint32_t frame = sequence ? u32(*sequence, 4 * i) : static_cast<std::uint32_t>(i);
    if (frame >= frames) return {};
    steps.push_back(frame);
  }
  return steps;
}

}  // namespace

std::optional<AniContainer> parseAni(Bytes file) {
  std::optional<Parts> parts = readParts(file);
  if (!parts) return std::nullopt;
  const std::size_t frameCount = u32(parts->header, 4);
  const std::size_t stepCount = u32(parts->header, 8);
  const std::uint32_t flags = u32(parts->header, 32);
  if (frameCount != parts->frames->size() || !(flags & kFramesAreIcons)) return std::nullopt;

  AniContainer container{std::move(*parts->frames), {}};
  container.steps = readSteps(stepCount, parts->sequence, container.frames.size());
  if (container.steps.empty()) return std::nullopt;
  return container;
}

}  // namespace ratanka
