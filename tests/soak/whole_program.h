#pragma once

#include <QString>

#include "blocks/kockovka_form.h"
#include "blocks/options_form.h"
#include "clock/hodiny.h"
#include "fakes.h"
#include "maze/bludisko.h"
#include "piano/klavir.h"
#include "piskorky/piskorky.h"
#include "platform/forms.h"
#include "platform/qt_dialogs.h"
#include "puzzle/puzzle.h"
#include "report/vysvedcenie.h"
#include "sheets/exercise_sheet.h"
#include "sheets/sheets.h"
#include "shell/names.h"
#include "shell/splash.h"
#include "shell/uvod.h"
#include "soak/steered_services.h"
#include "soccer/player1.h"
#include "soccer/player2.h"
#include "soccer/select_player.h"
#include "soccer/start_up.h"

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
        midi(given.midiDevices) {
    using std::make_shared;
    desktop.mode = given.screen;
    forms.setMaker(names::frmSplash, [this] {
      ++starts;
      return make_shared<frmSplash>(forms, dialogs, desktop, premenné);
    });
    forms.setMaker(names::Úvod, [this] { return make_shared<Úvod>(forms); });
    forms.setMaker(names::Vysvedčenie,
                   [this] { return make_shared<report::Vysvedčenie>(forms, premenné); });
    forms.setMaker(names::Hodiny,
                   [this] { return make_shared<clock::Hodiny>(forms, dialogs, clock, settings); });
    forms.setMaker(names::Bludisko, [this, file = given.mazeFile] {
      return make_shared<maze::Bludisko>(forms, dialogs, clock, file.toStdString());
    });
    forms.setMaker(names::Piškôrky,
                   [this] { return make_shared<piskorky::Piškôrky>(forms, dialogs, random); });
    forms.setMaker(names::Klavír,
                   [this] { return make_shared<piano::Klavír>(forms, dialogs, midi); });
    forms.setMaker(names::frmPuzzle, [this] {
      return make_shared<puzzle::frmPuzzle>(forms, dialogs, shuffling, sound, settings);
    });
    forms.setMaker(names::frmKockovka, [this] {
      return make_shared<blocks::frmKockovka>(forms, clock, random, sound, options);
    });
    forms.setMaker(names::frmOptions, [this, file = given.optionsFile] {
      return make_shared<blocks::frmOptions>(forms, dialogs, options, file);
    });
    forms.setMaker(names::frmStartUp, [this] { return make_shared<soccer::frmStartUp>(forms); });
    forms.setMaker(names::frmSelectPlayer,
                   [this] { return make_shared<soccer::frmSelectPlayer>(forms, declarations); });
    forms.setMaker(names::frmPlayer1, [this] {
      return make_shared<soccer::frmPlayer1>(forms, dialogs, random, declarations);
    });
    forms.setMaker(names::frmPlayer2, [this] {
      return make_shared<soccer::frmPlayer2>(forms, dialogs, declarations);
    });
    for (const sheets::SheetDesign& design : sheets::allSheets()) {
      forms.setMaker(design.name, [this, design] {
        return make_shared<sheets::ExerciseSheet>(services, design);
      });
    }
  }

  // All that are ever seen.
  static const std::vector<FormName>& allNames() {
    static const std::vector<FormName> kAll = [] {
      std::vector<FormName> all{names::Úvod,       names::Vysvedčenie,     names::Hodiny,
                                names::Bludisko,   names::Piškôrky,        names::Klavír,
                                names::frmPuzzle,  names::frmKockovka,     names::frmOptions,
                                names::frmStartUp, names::frmSelectPlayer, names::frmPlayer1,
                                names::frmPlayer2};
      for (const sheets::SheetDesign& design : sheets::allSheets()) all.push_back(design.name);
      return all;
    }();
    return kAll;
  }

  SteeredTicks ticks;
  Forms forms{ticks};
  QtDialogs dialogs{forms};
  SteeredClock clock;
  SeededRandom random;
  EasyRandom shuffling;
  QuietSound sound;
  QuietMidi midi;
  FakeSettings settings;
  FakeDesktop desktop;
  Premenné premenné;
  blocks::Options options;
  soccer::Declarations declarations;
  sheets::SheetServices services{forms, dialogs, random, premenné};
  int starts = 0;
};

}  // namespace ratanka::soak
