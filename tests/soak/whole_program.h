#pragma once

#include <QString>

#include "all_forms.h"
#include "platform/forms/end_requests.h"
#include "platform/forms/qt_dialogs.h"
#include "puzzle/puzzle.h"
#include "shell/splash.h"
#include "soak/steered_services.h"

namespace ratanka::soak {

// One run of the program with its real boxes, as main() puts it together, on steered services.
class WholeProgram {
 public:
  struct Circumstances {
    std::uint64_t seed = 0;
    double secondsAtStart = 0;  // since midnight
    int midiDevices = 0;
    PixelSize screen{};
    QString mazeFile;
    QString optionsFile;
  };

  explicit WholeProgram(const Circumstances& given)
      : clock(ticks, given.secondsAtStart),
        random(given.seed),
        shuffling(given.seed),
        midi(given.midiDevices),
        program(forms, {.dialogs = dialogs,
                        .desktop = desktop,
                        .clock = clock,
                        .settings = settings,
                        .random = random,
                        .sound = sound,
                        .midiOut = midi,
                        .mazeFile = given.mazeFile,
                        .settingsFile = given.optionsFile}) {
    desktop.mode = given.screen;
    forms.setMaker(names::frmSplash, [this] {
      ++starts;
      return std::make_shared<frmSplash>(forms, dialogs, desktop, premenné);
    });
    forms.setMaker(names::frmPuzzle, [this] {
      return std::make_shared<puzzle::frmPuzzle>(forms, dialogs, shuffling, sound, settings);
    });
  }

  FakeTicks ticks;
  Forms forms{ticks};
  QtDialogs dialogs{forms};
  SteeredClock clock;
  SeededRandom random;
  EasyRandom shuffling;
  QuietSound sound;
  QuietMidi midi;
  FakeSettings settings;
  FakeDesktop desktop;
  Program program;
  Premenné& premenné = program.premenné;
  soccer::Declarations& declarations = program.declarations;
  int starts = 0;
  const EndRequests endRequests{[this] { forms.endProgram(); }};
};

}  // namespace ratanka::soak
