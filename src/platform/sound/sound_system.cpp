#include "platform/sound/sound_system.h"

#include <SDL.h>
#include <alsa/asoundlib.h>
#include <fluidsynth.h>

namespace ratanka {
namespace {

void sayNothing(const char*, int, const char*, int, const char*, ...) {}

void silenceMessages() {
  for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG}) {
    fluid_set_log_function(level, nullptr, nullptr);
  }
  snd_lib_error_set_handler(sayNothing);
  SDL_LogSetOutputFunction([](void*, int, SDL_LogPriority, const char*) {}, nullptr);
}

unsigned timesAnew = 0;
bool areKept = false;

}  // namespace

SoundSystem::SoundSystem() {
  if (isReady()) return;
  silenceMessages();
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  // How the desktop's volume control calls us.
  SDL_SetHint(SDL_HINT_APP_NAME, "Rátanka");
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_ROLE, "game");
  SDL_InitSubSystem(SDL_INIT_AUDIO);
}

bool SoundSystem::isReady() const { return SDL_WasInit(SDL_INIT_AUDIO) != 0; }

bool SoundSystem::open(const std::function<bool()>& open) const {
  if (!isReady()) return false;
  if (open()) return true;
  if (areKept || runningDevices() != 0) return false;
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
  ++timesAnew;
  return SDL_InitSubSystem(SDL_INIT_AUDIO) == 0 && open();
}

unsigned SoundSystem::age() const { return timesAnew; }

void SoundSystem::keepDevices(bool keep) const { areKept = keep; }

unsigned SoundSystem::runningDevices() const {
  constexpr SDL_AudioDeviceID kEnd = 18;  // the library has sixteen at most, from 2 on
  unsigned devices = 0;
  for (SDL_AudioDeviceID device = 2; device < kEnd; ++device) {
    if (SDL_GetAudioDeviceStatus(device) != SDL_AUDIO_STOPPED) devices |= 1U << device;
  }
  return devices;
}

}  // namespace ratanka
