#include "piano/rules/piano.h"

#include <algorithm>

#include "piano/rules/base_note.h"
#include "piano/rules/messages.h"

namespace ratanka::piano {

bool Piano::load() {
  now_ = {};
  deviceNames_ = {"MIDI Mapper"};
  const int listed = std::min(out_.midiOutGetNumDevs(), kMaxDevices);
  for (int device = 0; device < listed; ++device) {
    deviceNames_.push_back(out_.midiOutGetDevCapsA(device));
  }
  return chooseDevice(0);
}

bool Piano::chooseDevice(int Index) {
  now_.curDevice = Index - 1;
  out_.midiOutClose();
  return out_.midiOutOpen(now_.curDevice) == 0;
}

void Piano::answerBaseNote(std::string_view answer) {
  now_.baseNote = baseNoteOf(answer).value_or(now_.baseNote);
}

void Piano::NoteOn(int i) {
  if (i == -1 || isPressed(i)) return;
  now_.pressed.set(i);
  out_.midiOutShortMsg(noteOn(now_.channel, now_.baseNote + i, now_.volume));
}

void Piano::NoteOff(int i) {
  if (i == -1) return;
  now_.pressed.reset(i);
  out_.midiOutShortMsg(noteOff(now_.channel, now_.baseNote + i));
}

void Piano::releaseAll() {
  for (int i = 0; i < kKeys; ++i) {
    if (isPressed(i)) NoteOff(i);
  }
}

}  // namespace ratanka::piano
