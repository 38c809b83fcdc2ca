#include "fuzz/still_device.h"

#include <SDL.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <vector>

namespace {

constexpr SDL_AudioDeviceID kFirst = 2;

std::array<SDL_AudioSpec, 4> devices{};  // without a callback where one is closed

SDL_AudioSpec* deviceOf(SDL_AudioDeviceID number) {
  const bool isOne = kFirst <= number && number - kFirst < devices.size();
  return isOne ? &devices.at(number - kFirst) : nullptr;
}

template <typename Sample>
double loudest(const std::vector<Uint8>& bytes, double fullScale) {
  double most = 0;
  for (std::size_t i = 0; i + sizeof(Sample) <= bytes.size(); i += sizeof(Sample)) {
    Sample sample{};
    std::memcpy(&sample, bytes.data() + i, sizeof sample);
    most = std::max(most, std::abs(static_cast<double>(sample)) / fullScale);
  }
  return most;
}

double playOnce(const SDL_AudioSpec& device) {
  std::vector<Uint8> bytes(device.size);
  device.callback(device.userdata, bytes.data(), static_cast<int>(bytes.size()));
  return device.format == AUDIO_F32SYS ? loudest<float>(bytes, 1) : loudest<Sint16>(bytes, 32768);
}

}  // namespace

double ratanka::play(int times) {
  double most = 0;
  for (; times > 0; --times) {
    for (const SDL_AudioSpec& device : devices) {
      if (device.callback != nullptr) most = std::max(most, playOnce(device));
    }
  }
  return most;
}

SDL_AudioDeviceID SDL_OpenAudioDevice(const char*, int, const SDL_AudioSpec* wanted,
                                      SDL_AudioSpec* obtained, int) {
  const auto device = std::ranges::find(devices, nullptr, &SDL_AudioSpec::callback);
  if (device == devices.end()) return 0;
  *device = *wanted;
  device->silence = 0;
  device->size = Uint32{device->samples} * device->channels * SDL_AUDIO_BITSIZE(device->format) / 8;
  if (obtained != nullptr) *obtained = *device;
  return kFirst + static_cast<SDL_AudioDeviceID>(device - devices.begin());
}

SDL_AudioStatus SDL_GetAudioDeviceStatus(SDL_AudioDeviceID number) {
  const SDL_AudioSpec* const device = deviceOf(number);
  const bool isOpen = device != nullptr && device->callback != nullptr;
  return isOpen ? SDL_AUDIO_PLAYING : SDL_AUDIO_STOPPED;
}

void SDL_CloseAudioDevice(SDL_AudioDeviceID number) {
  if (SDL_AudioSpec* const device = deviceOf(number)) *device = {};
}

void SDL_PauseAudioDevice(SDL_AudioDeviceID, int) {}
void SDL_LockAudioDevice(SDL_AudioDeviceID) {}
void SDL_UnlockAudioDevice(SDL_AudioDeviceID) {}
