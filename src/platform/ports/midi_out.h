#pragma once

#include <cstdint>
#include <string>

namespace ratanka {

// The machine's MIDI outputs, of which one at a time is open. Devices are numbered from 0 as the
// system numbers them; kMidiMapper is the output that is always there to be tried. No call takes a
// second: what couldn't be done by then has failed, and what couldn't be closed is left behind.
class MidiOut {
 public:
  static constexpr int kMidiMapper = -1;

  virtual ~MidiOut() = default;

  // The number of devices, without the mapper.
  virtual int midiOutGetNumDevs() = 0;
  // The product name of a device, 0 and up: UTF-8, at most 31 characters; empty if it has vanished.
  virtual std::string midiOutGetDevCapsA(int device) = 0;

  // Opens a device or the mapper, for the messages that follow. 0 is success; after any other
  // number nothing is open. What was open before must have been closed.
  virtual int midiOutOpen(int device) = 0;
  // Sends one short message, packed with the status in the lowest byte and the data bytes above it.
  // Without an open output it is lost.
  virtual void midiOutShortMsg(std::uint32_t message) = 0;
  // Does nothing if nothing is open. Returns at once; the device may be given back a moment later.
  virtual void midiOutClose() = 0;
};

}  // namespace ratanka
