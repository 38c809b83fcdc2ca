#include "platform/sound/synthesiser.h"

#include <algorithm>
#include <cmath>

#include "platform/sound/sound_font.h"
#include "platform/sound/sound_system.h"

namespace ratanka {
namespace {

constexpr int kRate = 44100;  // Hz
constexpr int kFrames = 512;  // at a time: 12 ms
// Eight neighbouring keys struck at once with all force, wherever on the keyboard, aren't cut off.
constexpr double kGain = 0.7;
constexpr float kInaudible = 3e-5F;  // below one step of 16 bits

}  // namespace

Synthesiser::Synthesiser() : settings_(new_fluid_settings()) {
  fluid_settings_setnum(settings_.get(), "synth.sample-rate", kRate);
  fluid_settings_setnum(settings_.get(), "synth.gain", kGain);
  fluid_settings_setint(settings_.get(), "synth.chorus.active", 0);
  // Of a large font only the instruments in use are read.
  fluid_settings_setint(settings_.get(), "synth.dynamic-sample-loading", 1);
  fluid_settings_setint(settings_.get(), "synth.lock-memory", 0);
  synth_.reset(new_fluid_synth(settings_.get()));
}

std::unique_ptr<Synthesiser> Synthesiser::open(const std::string& soundFont) {
  const SoundSystem system;
  if (!system.isReady() || !isSoundFont(soundFont)) return nullptr;
  std::unique_ptr<Synthesiser> synthesiser(new Synthesiser);
  constexpr int kResetPresets = 1;
  const bool isOpen = fluid_synth_sfload(synthesiser->synth_.get(), soundFont.c_str(),
                                         kResetPresets) != FLUID_FAILED &&
                      system.open([&] { return synthesiser->openDevice(); });
  synthesiser->age_ = system.age();
  return isOpen ? std::move(synthesiser) : nullptr;
}

bool Synthesiser::openDevice() {
  SDL_AudioSpec spec{};
  spec.freq = kRate;
  spec.format = AUDIO_F32SYS;
  spec.channels = 2;
  spec.samples = kFrames;
  spec.userdata = this;
  spec.callback = [](void* self, Uint8* bytes, int length) {
    static_cast<Synthesiser*>(self)->render(reinterpret_cast<float*>(bytes),
                                            length / static_cast<int>(2 * sizeof(float)));
  };
  device_ = SDL_OpenAudioDevice(nullptr, 0, &spec, nullptr, 0);
  if (device_ == 0) return false;
  SDL_PauseAudioDevice(device_, 0);
  return true;
}

Synthesiser::~Synthesiser() {
  if (device_ == 0) return;
  const SoundSystem system;
  if (age_ == system.age()) SDL_CloseAudioDevice(device_);
}

// Once the last note and its echo have died away, the synthesiser is left to sleep.
void Synthesiser::render(float* samples, int frames) {
  float* const end = samples + std::ptrdiff_t{2} * frames;
  if (isQuiet_ && fluid_synth_get_active_voice_count(synth_.get()) == 0) {
    std::fill(samples, end, 0.0F);
    return;
  }
  fluid_synth_write_float(synth_.get(), frames, samples, 0, 2, samples, 1, 2);
  isQuiet_ = std::all_of(samples, end, [](float one) { return std::abs(one) < kInaudible; });
}

void Synthesiser::send(std::uint32_t message) {
  const int status = message & 0xf0;
  const int channel = message & 0x0f;
  const int first = message >> 8 & 0x7f;
  const int second = message >> 16 & 0x7f;
  switch (status) {
    case 0x80:
      fluid_synth_noteoff(synth_.get(), channel, first);
      break;
    case 0x90:
      fluid_synth_noteon(synth_.get(), channel, first, second);
      break;
    case 0xb0:
      fluid_synth_cc(synth_.get(), channel, first, second);
      break;
    case 0xc0:
      fluid_synth_program_change(synth_.get(), channel, first);
      break;
    case 0xd0:
      fluid_synth_channel_pressure(synth_.get(), channel, first);
      break;
    case 0xe0:
      fluid_synth_pitch_bend(synth_.get(), channel, second << 7 | first);
      break;
    default:
      break;
  }
}

}  // namespace ratanka
