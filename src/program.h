#pragma once

#include <QString>

#include "blocks/rules/options.h"
#include "platform/forms/desktop.h"
#include "platform/forms/forms.h"
#include "platform/ports/clock.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/midi_out.h"
#include "platform/ports/random.h"
#include "platform/ports/settings_store.h"
#include "platform/ports/sound.h"
#include "shell/rules/premenne.h"
#include "soccer/rules/declarations.h"

namespace ratanka {

// What the program lives on: the machine's own, or a test's.
struct Services {
  Dialogs& dialogs;
  const Desktop& desktop;
  const Clock& clock;
  SettingsStore& settings;
  Random& random;
  Sound& sound;
  MidiOut& midiOut;
  QString mazeFile;      // is read
  QString settingsFile;  // of the blocks game: is written
};

// The program, put together: gives every form its maker, and keeps what the forms share. Lives, as
// its services do, as long as the forms are used.
class Program {
 public:
  Program(Forms& forms, Services services);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Premenné premenné;
  soccer::Declarations declarations;
  blocks::Options options;

 private:
  void setMakers();

  Forms& forms_;
  const Services services_;
};

}  // namespace ratanka
