#include "platform/sound/sound_system.h"

#include <SDL.h>
#include <alsa/asoundlib.h>
#include <fluidsynth.h>

namespace ratanka {
namespace {

std::mutex& oneAtATime() {
  static std::mutex mutex;
  return mutex;
}

void sayNothing(const char*, int, const char*, int, const char*, ...) {}

void silenceMessages() {
  for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG}) {
    fluid_set_log_function(level, nullptr, nullptr);
  }
  snd_lib_error_set_handler(sayNothing);
  SDL_LogSetOutputFunction([](void*, int, SDL_LogPriority, const char*) {}, nullptr);
}

}  // namespace

SoundSystem::SoundSystem() : lock_(oneAtATime()) {
  if (SDL_WasInit(SDL_INIT_AUDIO) != 0) return;
  silenceMessages();
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  // How the desktop's volume control calls us.
  SDL_SetHint(SDL_HINT_APP_NAME, "Rátanka");
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_ROLE, "game");
  SDL_InitSubSystem(SDL_INIT_AUDIO);
}

bool SoundSystem::isReady() const { return SDL_WasInit(SDL_INIT_AUDIO) != 0; }

}  // namespace ratanka
