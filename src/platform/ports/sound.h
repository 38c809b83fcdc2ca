#pragma once

#include <string_view>

namespace ratanka {

// Waves and music from the program's own data files, each named by its file alone. Every call
// returns at once, in any order; what is missing or can't be played is silent. The end takes less
// than a second: what couldn't be closed by then is left behind.
class Sound {
 public:
  virtual ~Sound() = default;

  // Waves that follow each other closely sound together.
  virtual void PlayWave(std::string_view file) = 0;

  // One piece of music at a time: an open one is closed by the next.
  virtual void openMusic(std::string_view file) = 0;
  // Plays the open music once, from its start, also where it is playing already.
  virtual void playMusic() = 0;
  // Stops and forgets it.
  virtual void closeMusic() = 0;
};

}  // namespace ratanka
