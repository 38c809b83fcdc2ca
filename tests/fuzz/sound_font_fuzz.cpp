// A sound font may be damaged. Whatever is in it, the piano and the music sound or are silent.

#include "fuzz/damaged_input.h"
#include "fuzz/memory_file.h"
#include "fuzz/still_device.h"
#include "fuzz/tiny_files.h"
#include "fuzz/tiny_font.h"
#include "platform/sound/mixer.h"
#include "platform/sound/synthesiser.h"

namespace ratanka {

std::string wholeFile() { return tinyFont(); }

double tryPiano(const std::string& font) {
  const auto synthesiser = Synthesiser::open(font);
  if (!synthesiser) return 0;
  for (const std::uint32_t message : {0x7f3c90U, 0x7f2699U, 0x0001c0U, 0x7f4890U}) {
    synthesiser->send(message);
  }
  return play(2);
}

double tryMusic(const std::string& font) {
  static const MemoryFile music(tinyMusic());
  static Mixer mixer(font);
  mixer.openMusic(music.path());
  mixer.playMusic();
  const double loudest = play(2);
  mixer.closeMusic();
  return loudest;
}

double tryFile(std::string_view content) {
  static MemoryFile font(content);
  font.put(content);
  return std::min(tryPiano(font.path()), tryMusic(font.path()));
}

}  // namespace ratanka
