#pragma once

#include <memory>

#include "platform/ports/midi_out.h"
#include "platform/sound/sound_module.h"

namespace ratanka {

// The program's MIDI output, whose mapper is a built-in synthesiser. Loads the sound module when it
// is first asked for anything; if that fails, there are no devices and nothing can be opened.
class LazyMidiOut : public MidiOut {
 public:
  explicit LazyMidiOut(SoundModule module = installedSoundModule()) : module_(std::move(module)) {}

  int midiOutGetNumDevs() override;
  std::string midiOutGetDevCapsA(int device) override;
  int midiOutOpen(int device) override;
  void midiOutShortMsg(std::uint32_t message) override;
  void midiOutClose() override;

 private:
  SoundModule module_;
  bool isLoaded_ = false;  // or has failed to
  std::unique_ptr<MidiOut> output_;

  MidiOut* output();
};

}  // namespace ratanka
