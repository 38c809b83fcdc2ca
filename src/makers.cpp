#include "makers.h"

#include "blocks/kockovka_form.h"
#include "blocks/options_form.h"
#include "clock/hodiny.h"
#include "maze/bludisko.h"
#include "piano/klavir.h"
#include "piskorky/piskorky.h"
#include "puzzle/puzzle.h"
#include "report/vysvedcenie.h"
#include "sheets/exercise_sheet.h"
#include "sheets/sheets.h"
#include "shell/names.h"
#include "shell/splash.h"
#include "shell/uvod.h"
#include "soccer/player1.h"
#include "soccer/player2.h"
#include "soccer/select_player.h"
#include "soccer/start_up.h"

namespace ratanka {

void setMakers(const Services& s) {
  using std::make_shared;
  Forms& forms = s.forms;
  forms.setMaker(names::frmSplash,
                 [s] { return make_shared<frmSplash>(s.forms, s.dialogs, s.desktop, s.premenné); });
  forms.setMaker(names::Úvod, [s] { return make_shared<Úvod>(s.forms); });
  forms.setMaker(names::Vysvedčenie,
                 [s] { return make_shared<report::Vysvedčenie>(s.forms, s.premenné); });
  forms.setMaker(names::Hodiny, [s] {
    return make_shared<clock::Hodiny>(s.forms, s.dialogs, s.clock, s.settings);
  });
  for (const sheets::SheetDesign& design : sheets::allSheets()) {
    forms.setMaker(design.name, [s, design] {
      return make_shared<sheets::ExerciseSheet>(
          sheets::SheetServices{s.forms, s.dialogs, s.random, s.premenné}, design);
    });
  }

  forms.setMaker(names::Bludisko, [s] {
    return make_shared<maze::Bludisko>(s.forms, s.dialogs, s.clock, s.mazeFile.toStdString());
  });
  forms.setMaker(names::Piškôrky,
                 [s] { return make_shared<piskorky::Piškôrky>(s.forms, s.dialogs, s.random); });
  forms.setMaker(names::Klavír,
                 [s] { return make_shared<piano::Klavír>(s.forms, s.dialogs, s.midiOut); });
  forms.setMaker(names::frmPuzzle, [s] {
    return make_shared<puzzle::frmPuzzle>(s.forms, s.dialogs, s.random, s.sound, s.settings);
  });
  forms.setMaker(names::frmKockovka, [s] {
    return make_shared<blocks::frmKockovka>(s.forms, s.clock, s.random, s.sound, s.options);
  });
  forms.setMaker(names::frmOptions, [s] {
    return make_shared<blocks::frmOptions>(s.forms, s.dialogs, s.options, s.settingsFile);
  });
  forms.setMaker(names::frmStartUp, [s] { return make_shared<soccer::frmStartUp>(s.forms); });
  forms.setMaker(names::frmSelectPlayer,
                 [s] { return make_shared<soccer::frmSelectPlayer>(s.forms, s.declarations); });
  forms.setMaker(names::frmPlayer1, [s] {
    return make_shared<soccer::frmPlayer1>(s.forms, s.dialogs, s.random, s.declarations);
  });
  forms.setMaker(names::frmPlayer2, [s] {
    return make_shared<soccer::frmPlayer2>(s.forms, s.dialogs, s.declarations);
  });
}

}  // namespace ratanka
