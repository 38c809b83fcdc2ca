#include "platform/sound/lazy_midi_out.h"

namespace ratanka {

MidiOut* LazyMidiOut::output() {
  if (!isLoaded_) output_ = loadMidiOut(module_);
  isLoaded_ = true;
  return output_.get();
}

int LazyMidiOut::midiOutGetNumDevs() {
  MidiOut* const loaded = output();
  return loaded == nullptr ? 0 : loaded->midiOutGetNumDevs();
}

std::string LazyMidiOut::midiOutGetDevCapsA(int device) {
  MidiOut* const loaded = output();
  return loaded == nullptr ? std::string() : loaded->midiOutGetDevCapsA(device);
}

int LazyMidiOut::midiOutOpen(int device) {
  MidiOut* const loaded = output();
  return loaded == nullptr ? 1 : loaded->midiOutOpen(device);
}

void LazyMidiOut::midiOutShortMsg(std::uint32_t message) {
  if (output_) output_->midiOutShortMsg(message);
}

void LazyMidiOut::midiOutClose() {
  if (output_) output_->midiOutClose();
}

}  // namespace ratanka
