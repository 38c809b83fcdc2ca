#pragma once

#include <QTemporaryDir>

#include "blocks/kockovka_form.h"
#include "blocks/options_form.h"
#include "clock/hodiny.h"
#include "form_driver.h"
#include "maze/bludisko.h"
#include "piano/klavir.h"
#include "piskorky/piskorky.h"
#include "platform/data_files.h"
#include "puzzle/puzzle.h"
#include "report/vysvedcenie.h"
#include "sheets/exercise_sheet.h"
#include "sheets/sheets.h"
#include "shell/names.h"
#include "shell/uvod.h"
#include "soccer/player1.h"
#include "soccer/player2.h"
#include "soccer/select_player.h"
#include "soccer/start_up.h"

namespace ratanka {

// The whole program but for its start, on steered services.
class AllFormsTest : public FormTest {
 protected:
  AllFormsTest() {
    using std::make_shared;
    forms.setMaker(names::Úvod, [this] { return make_shared<Úvod>(forms); });
    forms.setMaker(names::Vysvedčenie,
                   [this] { return make_shared<report::Vysvedčenie>(forms, premenné); });
    forms.setMaker(names::Hodiny,
                   [this] { return make_shared<clock::Hodiny>(forms, dialogs, clock, settings); });
    forms.setMaker(names::Bludisko, [this] {
      return make_shared<maze::Bludisko>(forms, dialogs, clock,
                                         dataFile("bludisko.txt").toStdString());
    });
    forms.setMaker(names::Piškôrky,
                   [this] { return make_shared<piskorky::Piškôrky>(forms, dialogs, random); });
    forms.setMaker(names::Klavír,
                   [this] { return make_shared<piano::Klavír>(forms, dialogs, midi); });
    forms.setMaker(names::frmPuzzle, [this] {
      return make_shared<puzzle::frmPuzzle>(forms, dialogs, random, sound, settings);
    });
    forms.setMaker(names::frmKockovka, [this] {
      return make_shared<blocks::frmKockovka>(forms, clock, random, sound, options);
    });
    forms.setMaker(names::frmOptions, [this] {
      return make_shared<blocks::frmOptions>(forms, dialogs, options,
                                             folder.filePath("Kockovka32.ini"));
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

  ~AllFormsTest() override {
    for (const FormName name : allNames()) forms.drop(name);
    settle();
  }

  static std::vector<FormName> allNames() {
    std::vector<FormName> all{names::Úvod,       names::Vysvedčenie,     names::Hodiny,
                              names::Bludisko,   names::Piškôrky,        names::Klavír,
                              names::frmPuzzle,  names::frmKockovka,     names::frmOptions,
                              names::frmStartUp, names::frmSelectPlayer, names::frmPlayer1,
                              names::frmPlayer2};
    for (const sheets::SheetDesign& design : sheets::allSheets()) all.push_back(design.name);
    return all;
  }

  FakeRandom random;
  FakeClock clock;
  FakeSettings settings;
  FakeSound sound;
  FakeMidi midi;
  Premenné premenné;
  blocks::Options options;
  soccer::Declarations declarations{.OpponentIndex = 1};
  sheets::SheetServices services{forms, dialogs, random, premenné};
  const QTemporaryDir folder;
};

}  // namespace ratanka
