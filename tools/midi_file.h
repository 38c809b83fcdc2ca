#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

constexpr int kTicksPerQuarter = 480;

inline void putBigEndian(std::string& out, std::uint32_t value, int bytes) {
  for (int i = bytes - 1; i >= 0; --i) out += static_cast<char>(value >> 8 * i & 0xff);
}

// One track of a Standard MIDI file. Events may be told in any order; those of one tick keep the
// order they were told in, but a note always ends before another begins.
class MidiTrack {
 public:
  void name(std::string_view text) { meta(0, 0x03, text); }

  void timeSignature(int beats, int quarterShift) {
    const std::array bytes = {static_cast<char>(beats), static_cast<char>(quarterShift), '\x18',
                              '\x08'};
    meta(0, 0x58, {bytes.data(), bytes.size()});
  }

  void tempo(int tick, double quartersAMinute) {
    std::string microseconds;
    putBigEndian(microseconds, static_cast<std::uint32_t>(std::lround(60e6 / quartersAMinute)), 3);
    meta(tick, 0x51, microseconds);
  }

  void program(int channel, int instrument) { add(0, 1, {0xc0 | channel, instrument}); }

  void control(int channel, int controller, int value) {
    add(0, 1, {0xb0 | channel, controller, value});
  }

  void note(int channel, int start, int length, int pitch, int velocity) {
    add(start, 2, {0x90 | channel, pitch, velocity});
    add(start + length, 0, {0x80 | channel, pitch, 64});
  }

  // The track as it stands in the file, ended at that tick.
  std::string chunk(int end) {
    std::stable_sort(events_.begin(), events_.end(), [](const Event& a, const Event& b) {
      return std::pair(a.tick, a.order) < std::pair(b.tick, b.order);
    });
    std::string data;
    int now = 0;
    for (const Event& event : events_) {
      putDelay(data, event.tick - now);
      data += event.bytes;
      now = event.tick;
    }
    putDelay(data, end - now);
    data += std::string("\xff\x2f\0", 3);
    std::string out = "MTrk";
    putBigEndian(out, static_cast<std::uint32_t>(data.size()), 4);
    return out + data;
  }

 private:
  struct Event {
    int tick;
    int order;  // among the events of one tick
    std::string bytes;
  };

  void add(int tick, int order, const std::vector<int>& bytes) {
    std::string text;
    for (const int byte : bytes) text += static_cast<char>(byte);
    events_.push_back({tick, order, std::move(text)});
  }

  void meta(int tick, int kind, std::string_view text) {
    std::string bytes = {'\xff', static_cast<char>(kind), static_cast<char>(text.size())};
    events_.push_back({tick, 1, bytes.append(text)});
  }

  // Seven bits a byte, all but the last with the top bit set.
  static void putDelay(std::string& out, int ticks) {
    for (int shift = 21; shift > 0; shift -= 7) {
      if (ticks >> shift) out += static_cast<char>((ticks >> shift & 0x7f) | 0x80);
    }
    out += static_cast<char>(ticks & 0x7f);
  }

  std::vector<Event> events_;
};

// A file of format 1: the tracks play together and end together.
inline std::string midiFile(std::vector<MidiTrack>& tracks, int end) {
  std::string out = "MThd";
  putBigEndian(out, 6, 4);
  putBigEndian(out, 1, 2);
  putBigEndian(out, static_cast<std::uint32_t>(tracks.size()), 2);
  putBigEndian(out, kTicksPerQuarter, 2);
  for (MidiTrack& track : tracks) out += track.chunk(end);
  return out;
}
