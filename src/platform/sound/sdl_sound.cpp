#include <chrono>
#include <memory>
#include <string>

#include "platform/sound.h"
#include "platform/sound/makers.h"
#include "platform/sound/mixer.h"
#include "platform/sound/worker.h"

namespace ratanka {
namespace {

// A wave that couldn't be played by then, since a device was being opened or a font loaded, isn't
// played any more: what it told of is over.
constexpr std::chrono::milliseconds kLate{250};

// Leaves all work to the worker, so that no device, however slow, holds up a window.
class SdlSound : public Sound {
 public:
  explicit SdlSound(std::string soundFont) : mixer_(std::make_shared<Mixer>(std::move(soundFont))) {
    soundWorker().setWhenIdle([idle = std::weak_ptr(mixer_)] {
      if (const auto mixer = idle.lock()) mixer->rest();
    });
  }
  ~SdlSound() override { soundWorker().release(std::move(mixer_)); }
  SdlSound(const SdlSound&) = delete;
  SdlSound& operator=(const SdlSound&) = delete;

  void PlayWave(std::string_view file) override {
    const auto asked = std::chrono::steady_clock::now();
    soundWorker().add([mixer = mixer_, asked, path = std::string(file)] {
      if (std::chrono::steady_clock::now() - asked < kLate) mixer->playWave(path);
    });
  }
  void openMusic(std::string_view file) override {
    soundWorker().add([mixer = mixer_, path = std::string(file)] { mixer->openMusic(path); });
  }
  void playMusic() override {
    soundWorker().add([mixer = mixer_] { mixer->playMusic(); });
  }
  void closeMusic() override {
    soundWorker().add([mixer = mixer_] { mixer->closeMusic(); });
  }

 private:
  std::shared_ptr<Mixer> mixer_;  // the worker alone uses it
};

}  // namespace
}  // namespace ratanka

ratanka::Sound* ratankaMakeSound(const char* soundFont) { return new ratanka::SdlSound(soundFont); }
