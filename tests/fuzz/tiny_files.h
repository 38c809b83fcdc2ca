#pragma once

#include <string>
#include <vector>

#include "midi_file.h"
#include "wave_file.h"

namespace ratanka {

inline std::string tinyWave() {
  Wave wave(132);
  for (std::size_t i = 0; i < wave.size(); ++i) wave[i] = i % 2 == 0 ? 0.5 : -0.5;
  return riff(wave);
}

// A little of everything within the first twentieth of a second.
inline std::string tinyMusic() {
  std::vector<MidiTrack> tracks(2);
  tracks[0].name("tiny");
  tracks[0].timeSignature(4, 2);
  tracks[0].tempo(0, 120);
  tracks[0].tempo(24, 240);
  tracks[1].program(0, 0);
  tracks[1].control(0, 7, 127);
  for (const int pitch : {60, 64, 67}) tracks[1].note(0, 0, 24, pitch, 127);
  tracks[1].note(1, 24, 24, 72, 100);
  tracks[1].note(9, 24, 24, 38, 100);
  return midiFile(tracks, 48);
}

}  // namespace ratanka
