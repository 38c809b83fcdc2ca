#pragma once

#include <QString>
#include <memory>

#include "platform/ports/midi_out.h"
#include "platform/ports/sound.h"

namespace ratanka {

// The part of the program that makes sound: a library of its own, since what it needs takes longer
// to load than all the rest of the program. Once loaded it stays.
struct SoundModule {
  QString file;       // the library
  QString soundFont;  // instruments of General MIDI; empty where the machine has none
};

// As built or installed with the program, with the machine's sound font.
SoundModule installedSoundModule();

// A null pointer if the library can't be loaded. The sound names its files by their full paths.
std::unique_ptr<Sound> loadSound(const SoundModule& module);
std::unique_ptr<MidiOut> loadMidiOut(const SoundModule& module);

}  // namespace ratanka
