#pragma once

#include <memory>

#include "platform/ports/sound.h"
#include "platform/sound/sound_module.h"

namespace ratanka {

// The program's sound. Loads the sound module with the first wave or music; if that fails, all of
// it is silent.
class LazySound : public Sound {
 public:
  explicit LazySound(SoundModule module = installedSoundModule()) : module_(std::move(module)) {}

  void PlayWave(std::string_view file) override;
  void openMusic(std::string_view file) override;
  void playMusic() override;
  void closeMusic() override;

 private:
  SoundModule module_;
  bool isLoaded_ = false;  // or has failed to
  std::unique_ptr<Sound> sound_;

  Sound* sound();
};

}  // namespace ratanka
