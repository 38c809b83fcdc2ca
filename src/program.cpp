#include "program.h"

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

Program::Program(Forms& forms, Services services) : forms_(forms), services_(std::move(services)) {
  setMakers();
}

void Program::setMakers() {
  using std::make_shared;
  forms_.setMaker(names::frmSplash, [this] {
    return make_shared<frmSplash>(forms_, services_.dialogs, services_.desktop, premenné);
  });
  forms_.setMaker(names::Úvod, [this] { return make_shared<Úvod>(forms_); });
  forms_.setMaker(names::Vysvedčenie,
                  [this] { return make_shared<report::Vysvedčenie>(forms_, premenné); });
  forms_.setMaker(names::Hodiny, [this] {
    return make_shared<clock::Hodiny>(forms_, services_.dialogs, services_.clock,
                                      services_.settings);
  });
  for (const sheets::SheetDesign& design : sheets::allSheets()) {
    forms_.setMaker(design.name, [this, design] {
      return make_shared<sheets::ExerciseSheet>(
          sheets::SheetServices{forms_, services_.dialogs, services_.random, premenné}, design);
    });
  }

  forms_.setMaker(names::Bludisko, [this] {
    return make_shared<maze::Bludisko>(forms_, services_.dialogs, services_.clock,
                                       services_.mazeFile.toStdString());
  });
  forms_.setMaker(names::Piškôrky, [this] {
    return make_shared<piskorky::Piškôrky>(forms_, services_.dialogs, services_.random);
  });
  forms_.setMaker(names::Klavír, [this] {
    return make_shared<piano::Klavír>(forms_, services_.dialogs, services_.midiOut);
  });
  forms_.setMaker(names::frmPuzzle, [this] {
    return make_shared<puzzle::frmPuzzle>(forms_, services_.dialogs, services_.random,
                                          services_.sound, services_.settings);
  });
  forms_.setMaker(names::frmKockovka, [this] {
    return make_shared<blocks::frmKockovka>(forms_, services_.clock, services_.random,
                                            services_.sound, options);
  });
  forms_.setMaker(names::frmOptions, [this] {
    return make_shared<blocks::frmOptions>(forms_, services_.dialogs, options,
                                           services_.settingsFile);
  });
  forms_.setMaker(names::frmStartUp, [this] { return make_shared<soccer::frmStartUp>(forms_); });
  forms_.setMaker(names::frmSelectPlayer,
                  [this] { return make_shared<soccer::frmSelectPlayer>(forms_, declarations); });
  forms_.setMaker(names::frmPlayer1, [this] {
    return make_shared<soccer::frmPlayer1>(forms_, services_.dialogs, services_.random,
                                           declarations);
  });
  forms_.setMaker(names::frmPlayer2, [this] {
    return make_shared<soccer::frmPlayer2>(forms_, services_.dialogs, declarations);
  });
}

}  // namespace ratanka
