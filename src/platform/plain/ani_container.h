#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace ratanka {

inline constexpr std::size_t kMaxAniBytes = std::size_t{1} << 20;
inline constexpr std::size_t kMaxAniFrames = 256;
inline constexpr std::size_t kMaxAniSteps = 1024;

// What an animated-cursor file holds, before anyone looks inside a frame. A frame is the whole of
// an icon or cursor file, as it stands in the animation; it points into the bytes that were parsed
// and lives no longer than they do.
struct AniContainer {
  std::vector<std::string_view> frames;  // 1 to kMaxAniFrames, maybe empty ones
  std::vector<std::uint32_t> steps;      // 1 to kMaxAniSteps indices into frames, in playing order
};

// Parses a RIFF file of the form ACON. Chunks that an animation doesn't need (titles, rates, what
// nobody knows) are skipped, bytes behind the RIFF chunk are ignored.
//
// Nothing comes back when the file is longer than kMaxAniBytes; when a chunk is longer than what
// is there; when the header or the frames are missing, there twice, or disagree about how many
// frames there are; when a step names a frame that isn't there; when the frames are raw pixels
// without an icon around them; when a limit above is passed.
std::optional<AniContainer> parseAni(std::string_view file);

}  // namespace ratanka
