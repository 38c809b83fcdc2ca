#pragma once

#include <SDL.h>
#include <SDL_mixer.h>

#include <chrono>
#include <map>
#include <memory>
#include <string>

namespace ratanka {

// Plays waves and music on the machine's sound device. Its calls may take as long as a device takes
// to open and a sound font to load. For one thread at a time.
class Mixer {
 public:
  // Without a sound font music is silent. Opens nothing yet.
  explicit Mixer(std::string soundFont) : soundFont_(std::move(soundFont)) {}
  // Stops what is playing.
  ~Mixer();
  Mixer(const Mixer&) = delete;
  Mixer& operator=(const Mixer&) = delete;

  // Files by full paths; what isn't there or isn't what it should be is silent. Where the device
  // has gone with its sound server, the next wave or opening looks for a new one.
  void playWave(const std::string& file);
  void openMusic(const std::string& file);
  void playMusic();
  void closeMusic();

  // Gives the device back to the system if nothing is playing and no music is open: an open device
  // costs a little all the time, and keeps the hardware awake. So it does with one that was lost.
  void rest();

 private:
  struct Free {
    void operator()(Mix_Chunk* wave) const { Mix_FreeChunk(wave); }
    void operator()(Mix_Music* music) const { Mix_FreeMusic(music); }
  };

  std::string soundFont_;
  bool isOpen_ = false;
  SDL_AudioDeviceID device_ = 0;
  std::chrono::steady_clock::time_point nextTry_{};  // to open a device after it failed
  std::map<std::string, std::unique_ptr<Mix_Chunk, Free>> waves_;  // null where it can't be read
  std::unique_ptr<Mix_Music, Free> music_;
  std::string musicFile_;
  bool isFresh_ = false;  // the music hasn't been played since it was loaded

  bool open();
  void close();
  void closeLostDevice();
  Mix_Chunk* wave(const std::string& file);
};

}  // namespace ratanka
