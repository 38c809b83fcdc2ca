#pragma once

#include <cstddef>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "midi_file.h"

// Music written as text. Bars are set apart by |; a bar has two quarters, or reading fails.
//
//   notes   c d e f g a b, then # or b for a half tone up or down, then ' or , for each octave
//           above or below the line's own, then the length: 1 a whole, 4 a quarter, 8 an eighth ...
//           with a dot for half as much again. What has no length is as long as the one before it.
//           r is a rest. `g8 g a a | g f e4`
//   chords  one or two to a bar, struck after the beat: `C F | C`
//   drums   the signs of one bar, all equally long, again and again: s the shaker, t the
//           tambourine, . neither

struct Note {
  int start;   // ticks
  int length;  // ticks
  int pitch;   // 60 is the middle C
};

struct Passage {
  std::vector<Note> notes;
  int length = 0;  // ticks
};

constexpr int kBar = 2 * kTicksPerQuarter;

inline void require(bool good, std::string_view what, std::string_view where) {
  if (!good) throw std::runtime_error(std::string(what) + " at \"" + std::string(where) + '"');
}

// 0 for what isn't the length of a note.
inline int lengthNumber(std::string_view digits) {
  for (const int part : {1, 2, 4, 8, 16, 32}) {
    if (digits == std::to_string(part)) return part;
  }
  return 0;
}

// Reads `g#'8.` into a note that begins at `start`; keeps `length` where none is written.
inline Note readNote(std::string_view word, int octave, int start, int length) {
  static constexpr std::string_view kNames = "c d ef g a b";  // by half tones
  const std::size_t step = kNames.find(word.front());
  require(step != std::string_view::npos || word.front() == 'r', "no such note", word);
  int pitch = 12 * (octave + 1) + static_cast<int>(step);
  std::size_t i = 1;
  for (; i < word.size() && std::string_view("#b',").find(word[i]) != std::string_view::npos; ++i) {
    if (word[i] == '#') ++pitch;
    if (word[i] == 'b') --pitch;
    if (word[i] == '\'') pitch += 12;
    if (word[i] == ',') pitch -= 12;
  }
  if (i < word.size()) {
    const bool dotted = word.back() == '.';
    const int part = lengthNumber(word.substr(i, word.size() - i - (dotted ? 1 : 0)));
    require(part > 0, "no such length", word);
    length = 4 * kTicksPerQuarter / part;
    if (dotted) length += length / 2;
  }
  return {start, length, word.front() == 'r' ? -1 : pitch};
}

inline Passage readNotes(const std::string& text, int octave) {
  Passage passage;
  int length = kTicksPerQuarter;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    if (word == "|") {
      require(passage.length % kBar == 0, "a bar isn't full before the bar sign", text);
      continue;
    }
    const Note note = readNote(word, octave, passage.length, length);
    length = note.length;
    passage.length += length;
    if (note.pitch >= 0) passage.notes.push_back(note);
  }
  require(passage.length % kBar == 0, "the last bar isn't full", text);
  return passage;
}

// How the guitar takes each chord.
inline const std::string& chordNotes(const std::string& chord) {
  static const std::map<std::string, std::string> kChords = {
      {"C", "g c' e'"}, {"C7", "g bb e'"}, {"Dm", "a d' f'"}, {"Em", "g b e'"},  {"E7", "g# b d'"},
      {"F", "a c' f'"}, {"G", "g b d'"},   {"G7", "f b d'"},  {"Am", "a c' e'"},
  };
  const auto found = kChords.find(chord);
  require(found != kChords.end(), "no such chord", chord);
  return found->second;
}

inline void strike(Passage& passage, const std::string& chord, int start) {
  std::istringstream strings(chordNotes(chord));
  for (std::string string; strings >> string;) {
    passage.notes.push_back(readNote(string, 3, start, kTicksPerQuarter / 2));
  }
}

inline Passage readChords(const std::string& text) {
  Passage passage;
  std::istringstream bars(text);
  for (std::string bar; std::getline(bars, bar, '|');) {
    std::istringstream words(bar);
    std::string first;
    std::string second;
    words >> first;
    if (!(words >> second)) second = first;
    require(!(words >> bar), "more than two chords", bar);
    strike(passage, first, passage.length + kTicksPerQuarter / 2);
    strike(passage, second, passage.length + kTicksPerQuarter * 3 / 2);
    passage.length += kBar;
  }
  return passage;
}

inline Passage readDrums(std::string_view bar, int length) {
  constexpr int kShaker = 70;
  constexpr int kTambourine = 54;
  Passage passage{{}, length};
  require(!bar.empty() && kBar % bar.size() == 0, "no even beats", bar);
  const int step = kBar / static_cast<int>(bar.size());
  for (int start = 0; start < length; start += step) {
    const char sign = bar[static_cast<std::size_t>(start / step) % bar.size()];
    if (sign == '.') continue;
    require(sign == 's' || sign == 't', "no such drum", bar);
    passage.notes.push_back({start, step, sign == 's' ? kShaker : kTambourine});
  }
  return passage;
}
