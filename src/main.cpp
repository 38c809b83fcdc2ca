#include "blocks/kockovka_form.h"
#include "blocks/options_form.h"
#include "clock/hodiny.h"
#include "maze/bludisko.h"
#include "piano/klavir.h"
#include "piskorky/piskorky.h"
#include "platform/application.h"
#include "platform/data_files.h"
#include "platform/desktop.h"
#include "platform/forms.h"
#include "platform/ini_settings_store.h"
#include "platform/lazy_midi_out.h"
#include "platform/lazy_sound.h"
#include "platform/qt_dialogs.h"
#include "platform/qt_ticks.h"
#include "platform/system_clock.h"
#include "platform/text.h"
#include "platform/twister_random.h"
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

int main(int, char** arguments) {
  using namespace ratanka;

  Application application(arguments[0]);
  QtTicks ticks;
  Forms forms(ticks);
  QtDialogs dialogs(forms);
  const PrimaryScreen desktop;
  const SystemClock time;
  IniSettingsStore settings(IniSettingsStore::usersFolder());
  TwisterRandom random;
  LazySound sound;
  LazyMidiOut midiOut;
  Premenné premenné;
  soccer::Declarations declarations;
  blocks::Options options;
  const sheets::SheetServices services{forms, dialogs, random, premenné};

  forms.setMaker(names::frmSplash,
                 [&] { return std::make_shared<frmSplash>(forms, dialogs, desktop, premenné); });
  forms.setMaker(names::Úvod, [&] { return std::make_shared<Úvod>(forms); });
  forms.setMaker(names::Vysvedčenie,
                 [&] { return std::make_shared<report::Vysvedčenie>(forms, premenné); });
  forms.setMaker(names::Hodiny,
                 [&] { return std::make_shared<clock::Hodiny>(forms, dialogs, time, settings); });
  forms.setMaker(names::Bludisko, [&] {
    return std::make_shared<maze::Bludisko>(forms, dialogs, time,
                                            dataFile("bludisko.txt").toStdString());
  });
  forms.setMaker(names::Piškôrky,
                 [&] { return std::make_shared<piskorky::Piškôrky>(forms, dialogs, random); });
  forms.setMaker(names::Klavír,
                 [&] { return std::make_shared<piano::Klavír>(forms, dialogs, midiOut); });
  forms.setMaker(names::frmPuzzle, [&] {
    return std::make_shared<puzzle::frmPuzzle>(forms, dialogs, random, sound, settings);
  });
  forms.setMaker(names::frmKockovka, [&] {
    return std::make_shared<blocks::frmKockovka>(forms, time, random, sound, options);
  });
  forms.setMaker(names::frmOptions, [&] {
    return std::make_shared<blocks::frmOptions>(
        forms, dialogs, options,
        IniSettingsStore::usersFolder() + '/' + text(blocks::kSettingsFile));
  });
  forms.setMaker(names::frmStartUp, [&] { return std::make_shared<soccer::frmStartUp>(forms); });
  forms.setMaker(names::frmSelectPlayer,
                 [&] { return std::make_shared<soccer::frmSelectPlayer>(forms, declarations); });
  forms.setMaker(names::frmPlayer1, [&] {
    return std::make_shared<soccer::frmPlayer1>(forms, dialogs, random, declarations);
  });
  forms.setMaker(names::frmPlayer2, [&] {
    return std::make_shared<soccer::frmPlayer2>(forms, dialogs, declarations);
  });
  for (const sheets::SheetDesign& design : sheets::allSheets()) {
    forms.setMaker(design.name, [&services, design] {
      return std::make_shared<sheets::ExerciseSheet>(services, design);
    });
  }

  return application.run([&] { forms.show(names::frmSplash); });
}
