#pragma once

#include <mutex>

namespace ratanka {

// The machine's sound libraries, which don't like two threads to open, load or close something at
// the same moment: whoever does so holds one of these meanwhile. They are started by the first one,
// stay so until the program ends, install no handlers of signals and say nothing on stderr.
class SoundSystem {
 public:
  // Waits until no other thread holds one.
  SoundSystem();

  // Whether devices can be opened now; a sound server may come later.
  bool isReady() const;

 private:
  std::unique_lock<std::mutex> lock_;
};

}  // namespace ratanka
