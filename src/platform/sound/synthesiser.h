#pragma once

#include <SDL.h>
#include <fluidsynth.h>

#include <cstdint>
#include <memory>
#include <string>

namespace ratanka {

// A synthesiser with the instruments of a sound font, played on the machine's sound device. Sounds
// as long as it lives.
class Synthesiser {
 public:
  // A null pointer where the font or the device is not to be had.
  static std::unique_ptr<Synthesiser> open(const std::string& soundFont);
  ~Synthesiser();
  Synthesiser(const Synthesiser&) = delete;
  Synthesiser& operator=(const Synthesiser&) = delete;

  // A short message, packed with the status in the lowest byte. It sounds within the 12 ms that the
  // device plays at a time.
  void send(std::uint32_t message);

 private:
  struct Free {
    void operator()(fluid_settings_t* settings) const { delete_fluid_settings(settings); }
    void operator()(fluid_synth_t* synth) const { delete_fluid_synth(synth); }
  };

  std::unique_ptr<fluid_settings_t, Free> settings_;
  std::unique_ptr<fluid_synth_t, Free> synth_;
  SDL_AudioDeviceID device_ = 0;
  unsigned age_ = 0;      // of the sound libraries, when the device was opened
  bool isQuiet_ = false;  // the last frames were; the device's thread alone uses it

  Synthesiser();
  bool openDevice();
  void render(float* samples, int frames);
};

}  // namespace ratanka
