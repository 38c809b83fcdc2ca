// make_music FILE: writes the music of the blocks game as a Standard MIDI file for the General MIDI
// set of instruments. What is played stands in tune.h; how it is played stands here.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <numbers>
#include <string>
#include <vector>

#include "midi_file.h"
#include "note_text.h"
#include "output_file.h"
#include "tune.h"

namespace {

struct Player {
  Voice voice;
  const char* name;
  int channel;
  int program;      // of General MIDI, from 0
  int volume;       // of the channel, up to 127
  int place;        // 0 left, 64 middle, 127 right
  double sounding;  // the part of a note's length that sounds
};

constexpr int kDrumChannel = 9;

constexpr Player kPlayers[] = {
    {Voice::flute, "Flute", 0, 73, 118, 72, 0.92},
    {Voice::clarinet, "Clarinet", 1, 71, 124, 50, 0.92},
    {Voice::bells, "Vibraphone", 2, 11, 118, 84, 0.98},
    {Voice::guitar, "Guitar", 3, 24, 118, 40, 0.7},
    {Voice::bass, "Bass", 4, 32, 114, 64, 0.85},
    {Voice::drums, "Drums", kDrumChannel, 0, 110, 64, 0.5},
};

Passage read(const Line& line, int sectionLength) {
  switch (line.voice) {
    case Voice::guitar:
      return readChords(line.notes);
    case Voice::drums:
      return readDrums(line.notes, sectionLength);
    default:
      return readNotes(line.notes, line.octave);
  }
}

// As its first line is; the others must agree.
int lengthOf(const Section& section) {
  int length = 0;
  for (const Line& line : section.lines) {
    const int own = read(line, length).length;
    if (length == 0) length = own;
    require(own == length, "a line is longer or shorter than the first", section.name);
  }
  return length;
}

// A player leans on the first beat of a bar, takes the notes between the beats lightly, and swells
// a little towards the middle of a section.
int strength(const Note& note, int written, int sectionLength) {
  const double arc = std::sin(std::numbers::pi * note.start / sectionLength);
  int strength = written + static_cast<int>(std::lround(8 * arc)) - 4;
  if (note.start % kBar == 0) strength += 5;
  if (note.start % kTicksPerQuarter != 0) strength -= 3;
  return std::clamp(strength, 1, 127);
}

void play(MidiTrack& track, const Player& player, const Section& section, int start) {
  const int length = lengthOf(section);
  for (const Line& line : section.lines) {
    if (line.voice != player.voice) continue;
    const int shift = line.voice == Voice::drums ? 0 : section.transpose;
    for (const Note& note : read(line, length).notes) {
      track.note(player.channel, start + note.start,
                 static_cast<int>(note.length * player.sounding), note.pitch + shift,
                 strength(note, line.strength, length));
    }
  }
}

MidiTrack conductor() {
  MidiTrack track;
  track.name("Tancuj, tancuj, vykrúcaj; Mačka lezie dierou");
  track.timeSignature(2, 2);
  int start = 0;
  for (const Section& section : kTune) {
    track.tempo(start, section.tempo);
    start += lengthOf(section);
  }
  return track;
}

MidiTrack partOf(const Player& player) {
  constexpr int kVolume = 7;
  constexpr int kPlace = 10;
  constexpr int kReverb = 91;
  MidiTrack track;
  track.name(player.name);
  track.program(player.channel, player.program);
  track.control(player.channel, kVolume, player.volume);
  track.control(player.channel, kPlace, player.place);
  track.control(player.channel, kReverb, 40);
  int start = 0;
  for (const Section& section : kTune) {
    play(track, player, section, start);
    start += lengthOf(section);
  }
  return track;
}

std::string music() {
  int end = 0;
  for (const Section& section : kTune) end += lengthOf(section);
  std::vector<MidiTrack> tracks = {conductor()};
  for (const Player& player : kPlayers) tracks.push_back(partOf(player));
  return midiFile(tracks, end);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: make_music FILE\n", stderr);
    return 2;
  }
  try {
    if (writeFile(argv[1], music())) return 0;
    std::fprintf(stderr, "make_music: %s: can't be written\n", argv[1]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_music: %s\n", error.what());
  }
  return 1;
}
