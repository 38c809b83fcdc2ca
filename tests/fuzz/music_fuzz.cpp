// The music's file may be damaged. Whatever is in it, it sounds or is silent.

#include "fuzz/damaged_input.h"
#include "fuzz/memory_file.h"
#include "fuzz/still_device.h"
#include "fuzz/tiny_files.h"
#include "fuzz/tiny_font.h"
#include "platform/sound/mixer.h"

namespace ratanka {

std::string wholeFile() { return tinyMusic(); }

// The device stays open: to open it takes as long as all the rest.
double tryFile(std::string_view content) {
  static const MemoryFile font(tinyFont());
  static Mixer mixer(font.path());
  const MemoryFile file(content);
  mixer.openMusic(file.path());
  mixer.playMusic();
  const double loudest = play(6);
  mixer.closeMusic();
  return loudest;
}

}  // namespace ratanka
