#pragma once

#include <cstdint>

// Short MIDI messages as one number, the status in the lowest byte and the data bytes above it.
// A channel is 0 to 15, a note 0 to 127, a volume (how hard a key is struck) 0 to 127.
namespace ratanka::piano {

constexpr std::uint32_t packed(int status, int data1, int data2) {
  return status | data1 << 8 | data2 << 16;
}

constexpr std::uint32_t noteOn(int channel, int note, int volume) {
  return packed(0x90 | channel, note, volume);
}

constexpr std::uint32_t noteOff(int channel, int note) { return packed(0x80 | channel, note, 0); }

}  // namespace ratanka::piano
