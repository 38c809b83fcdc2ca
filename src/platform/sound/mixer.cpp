#include "platform/sound/mixer.h"

#include <SDL.h>

#include <bit>

#include "platform/sound/sound_files.h"
#include "platform/sound/sound_font.h"
#include "platform/sound/sound_system.h"

namespace ratanka {
namespace {

constexpr int kRate = 44100;   // Hz, as the waves have it
constexpr int kFrames = 512;   // 12 ms from a wave's start to its sound
constexpr int kChannels = 16;  // waves at a time
constexpr std::chrono::seconds kPatience{10};

// Of 128. The music lies beneath the waves, which are to be heard and to be told apart.
constexpr int kMusicVolume = 25;

SDL_RWops* reader(const std::string& bytes) {
  return SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
}

}  // namespace

Mixer::~Mixer() {
  closeMusic();
  close();
}

bool Mixer::open() {
  const auto now = std::chrono::steady_clock::now();
  closeLostDevice();
  if (isOpen_ || now < nextTry_) return isOpen_;
  const SoundSystem system;
  const unsigned others = system.runningDevices();
  isOpen_ = system.open(
      [] { return Mix_OpenAudioDevice(kRate, AUDIO_S16SYS, 2, kFrames, nullptr, 0) == 0; });
  if (!isOpen_) {
    nextTry_ = now + kPatience;
    return false;
  }
  system.keepDevices(true);
  device_ = static_cast<SDL_AudioDeviceID>(std::countr_zero(system.runningDevices() & ~others));
  Mix_AllocateChannels(kChannels);
  Mix_VolumeMusic(kMusicVolume);
  Mix_SetSoundFonts(soundFont_.c_str());
  return true;
}

void Mixer::close() {
  if (!isOpen_) return;
  const SoundSystem system;
  Mix_CloseAudio();
  system.keepDevices(false);
  isOpen_ = false;
}

void Mixer::closeLostDevice() {
  if (!isOpen_ || SDL_GetAudioDeviceStatus(device_) != SDL_AUDIO_STOPPED) return;
  closeMusic();
  close();
}

Mix_Chunk* Mixer::wave(const std::string& file) {
  const auto [place, isNew] = waves_.try_emplace(file);
  if (isNew) {
    const std::string bytes = plainWave(readSoundFile(file));
    if (!bytes.empty()) place->second.reset(Mix_LoadWAV_RW(reader(bytes), 1));
  }
  return place->second.get();
}

void Mixer::playWave(const std::string& file) {
  constexpr int kAnyFree = -1;
  constexpr int kOfAll = -1;
  if (!open()) return;
  Mix_Chunk* const chunk = wave(file);
  if (chunk == nullptr || Mix_PlayChannel(kAnyFree, chunk, 0) >= 0) return;
  Mix_PlayChannel(Mix_GroupOldest(kOfAll), chunk, 0);
}

void Mixer::openMusic(const std::string& file) {
  closeMusic();
  if (!isSoundFont(soundFont_) || !open()) return;
  const std::string bytes = readSoundFile(file);
  // The sound font isn't loaded for anything else.
  if (bytes.starts_with("MThd")) music_.reset(Mix_LoadMUSType_RW(reader(bytes), MUS_MID, 1));
  musicFile_ = file;
  isFresh_ = true;
}

void Mixer::playMusic() {
  // What has played before would go on from where it was.
  if (music_ && !isFresh_) openMusic(musicFile_);
  if (!music_) return;
  Mix_PlayMusic(music_.get(), 1);
  isFresh_ = false;
}

void Mixer::closeMusic() { music_.reset(); }

void Mixer::rest() {
  closeLostDevice();
  if (!music_ && isOpen_ && Mix_Playing(-1) == 0) close();
}

}  // namespace ratanka
