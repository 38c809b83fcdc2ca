#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "platform/ports/sound.h"
#include "platform/sound/makers.h"
#include "platform/sound/mixer.h"
#include "platform/sound/worker.h"

namespace ratanka {
namespace {

// A wave that couldn't be played by then, since a device was being opened or a font loaded, isn't
// played any more: what it told of is over.
constexpr std::chrono::milliseconds kLate{250};

// What the worker's tasks use.
struct Player {
  explicit Player(std::string soundFont) : mixer(std::move(soundFont)) {}

  Mixer mixer;
  std::atomic<unsigned> tune = 0;  // the last that was asked for
};

// Leaves all work to the worker, so that no device, however slow, holds up a window.
class SdlSound : public Sound {
 public:
  explicit SdlSound(std::string soundFont)
      : player_(std::make_shared<Player>(std::move(soundFont))) {
    soundWorker().setWhenIdle([idle = std::weak_ptr(player_)] {
      if (const auto player = idle.lock()) player->mixer.rest();
    });
  }
  ~SdlSound() override {
    ++player_->tune;
    soundWorker().release(std::move(player_));
    soundWorker().finish();
  }
  SdlSound(const SdlSound&) = delete;
  SdlSound& operator=(const SdlSound&) = delete;

  void PlayWave(std::string_view file) override {
    const auto asked = std::chrono::steady_clock::now();
    soundWorker().add([player = player_, asked, path = std::string(file)] {
      if (std::chrono::steady_clock::now() - asked < kLate) player->mixer.playWave(path);
    });
  }
  void openMusic(std::string_view file) override {
    ++player_->tune;
    addForTune([path = std::string(file)](Mixer& mixer) { mixer.openMusic(path); });
  }
  void playMusic() override {
    addForTune([](Mixer& mixer) { mixer.playMusic(); });
  }
  void closeMusic() override {
    ++player_->tune;
    addForTune([](Mixer& mixer) { mixer.closeMusic(); });
  }

 private:
  std::shared_ptr<Player> player_;

  // A tune that has been closed by then, or that another follows, isn't loaded any more.
  void addForTune(std::function<void(Mixer&)> task) {
    soundWorker().add([player = player_, tune = player_->tune.load(), task = std::move(task)] {
      if (player->tune == tune) task(player->mixer);
    });
  }
};

}  // namespace
}  // namespace ratanka

ratanka::Sound* ratankaMakeSound(const char* soundFont) { return new ratanka::SdlSound(soundFont); }
