#pragma once

#include "platform/ports/midi_out.h"
#include "platform/ports/sound.h"

// What the sound module gives to those who load it. The maker's result belongs to the caller, who
// deletes it; `soundFont` is the path of a font, or empty.
extern "C" {
[[gnu::visibility("default")]] ratanka::Sound* ratankaMakeSound(const char* soundFont);
[[gnu::visibility("default")]] ratanka::MidiOut* ratankaMakeMidiOut(const char* soundFont);
}
