#pragma once

#include <bitset>
#include <string>
#include <string_view>
#include <vector>

#include "piano/rules/keys.h"
#include "platform/ports/midi_out.h"

namespace ratanka::piano {

// The list of devices ends with the tenth, however many there are.
inline constexpr int kMaxDevices = 10;
inline constexpr int kChannels = 16;
inline constexpr int kMaxVolume = 127;

// The piano of one opening: its settings, the keys that are down, and what it sends for them. Every
// message is made of the settings of its moment: a key that is let go after a change of channel or
// base note ends the note that it would play now.
class Piano {
 public:
  explicit Piano(MidiOut& out) : out_(out) {}

  // All as at first: no key down, the devices listed anew, the mapper opened. Whether it opened.
  [[nodiscard]] bool load();
  void unload() { out_.midiOutClose(); }

  // 0 is the mapper, then the devices. Closes the output in use and opens this one. Whether it
  // opened; if not, it is in use all the same, and nothing is heard. Keys that are down stay down.
  [[nodiscard]] bool chooseDevice(int Index);
  void setChannel(int channel) { now_.channel = channel; }  // 0 to 15
  void setVolume(int volume) { now_.volume = volume; }      // 0 to 127, for the notes to come
  // Takes over what the child has written if it is a base note, 0 to kMaxBaseNote.
  void answerBaseNote(std::string_view answer);

  // Key i goes down, and sounds if it wasn't down already. -1 is no key.
  void NoteOn(int i);
  // Key i comes up, and its note ends, also of a key that wasn't down. -1 is no key.
  void NoteOff(int i);
  // All keys that are down come up: for when something takes the keyboard away and the real release
  // won't be seen.
  void releaseAll();

  // What the menu lists: the mapper and the devices, 1 to 1 + kMaxDevices names.
  const std::vector<std::string>& deviceNames() const { return deviceNames_; }
  int curDevice() const { return now_.curDevice; }  // -1 is the mapper
  int channel() const { return now_.channel; }
  int volume() const { return now_.volume; }
  int baseNote() const { return now_.baseNote; }
  bool isPressed(int i) const { return now_.pressed.test(i); }

 private:
  struct State {
    int curDevice = MidiOut::kMidiMapper;
    int channel = 0;
    int volume = kMaxVolume;
    int baseNote = 60;
    std::bitset<kKeys> pressed;
  };

  MidiOut& out_;
  std::vector<std::string> deviceNames_;
  State now_;
};

}  // namespace ratanka::piano
