// A wave's file may be damaged. Whatever is in it, it sounds or is silent, and costs no more memory
// than a wave does.

#include "fuzz/damage.h"
#include "fuzz/damaged_input.h"
#include "fuzz/memory_file.h"
#include "fuzz/still_device.h"
#include "fuzz/tiny_files.h"
#include "platform/sound/mixer.h"

namespace ratanka {

std::string wholeFile() { return tinyWave(); }

double tryFile(std::string_view content) {
  // Another one keeps the device open: to open it takes as long as all the rest.
  static const MemoryFile whole(wholeFile());
  static Mixer keeper("");
  keeper.playWave(whole.path());
  const MemoryFile file(content);
  Mixer mixer("");
  double loudest = 0;
  for (const int times : {1, 3}) {
    mixer.playWave(file.path());
    loudest += play(times);
  }
  return loudest;
}

}  // namespace ratanka
