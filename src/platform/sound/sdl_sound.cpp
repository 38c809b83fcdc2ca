#include <chrono>
#include <string>

#include "platform/sound.h"
#include "platform/sound/makers.h"
#include "platform/sound/mixer.h"
#include "platform/sound/worker.h"

namespace ratanka {
namespace {

// A silence after which the device is given back.
constexpr std::chrono::seconds kIdle{10};
// A wave that couldn't be played by then, since a device was being opened or a font loaded, isn't
// played any more: what it told of is over.
constexpr std::chrono::milliseconds kLate{250};

// Leaves all work to a thread of its own, so that no device, however slow, holds up a window.
class SdlSound : public Sound {
 public:
  explicit SdlSound(std::string soundFont) : mixer_(std::move(soundFont)) {}

  void PlayWave(std::string_view file) override {
    const auto asked = std::chrono::steady_clock::now();
    worker_.add([this, asked, path = std::string(file)] {
      if (std::chrono::steady_clock::now() - asked < kLate) mixer_.playWave(path);
    });
  }
  void openMusic(std::string_view file) override {
    worker_.add([this, path = std::string(file)] { mixer_.openMusic(path); });
  }
  void playMusic() override {
    worker_.add([this] { mixer_.playMusic(); });
  }
  void closeMusic() override {
    worker_.add([this] { mixer_.closeMusic(); });
  }

 private:
  Mixer mixer_;  // used by the worker, which ends before it
  Worker worker_{kIdle, [this] { mixer_.rest(); }};
};

}  // namespace
}  // namespace ratanka

ratanka::Sound* ratankaMakeSound(const char* soundFont) { return new ratanka::SdlSound(soundFont); }
