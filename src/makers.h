#pragma once

#include <QString>

#include "blocks/rules/options.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/forms.h"
#include "platform/midi_out.h"
#include "platform/random.h"
#include "platform/settings_store.h"
#include "platform/sound.h"
#include "shell/rules/premenne.h"
#include "soccer/rules/declarations.h"

namespace ratanka {

// What the forms of the program live on. All of it is used as long as the forms are.
struct Services {
  Forms& forms;
  Dialogs& dialogs;
  const Desktop& desktop;
  const Clock& clock;
  SettingsStore& settings;
  Random& random;
  Sound& sound;
  MidiOut& midiOut;
  Premenné& premenné;
  soccer::Declarations& declarations;
  blocks::Options& options;
  QString mazeFile;      // is read
  QString settingsFile;  // of the blocks game: is written
};

// Gives every form of the program its maker.
void setMakers(const Services& services);

}  // namespace ratanka
