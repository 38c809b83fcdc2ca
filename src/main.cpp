#include "clock/hodiny.h"
#include "maze/bludisko.h"
#include "piskorky/piskorky.h"
#include "platform/application.h"
#include "platform/data_files.h"
#include "platform/desktop.h"
#include "platform/forms.h"
#include "platform/ini_settings_store.h"
#include "platform/qt_dialogs.h"
#include "platform/qt_ticks.h"
#include "platform/system_clock.h"
#include "platform/twister_random.h"
#include "report/vysvedcenie.h"
#include "sheets/exercise_sheet.h"
#include "sheets/sheets.h"
#include "shell/names.h"
#include "shell/splash.h"
#include "shell/uvod.h"

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
  Premenné premenné;
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
  for (const sheets::SheetDesign& design : sheets::allSheets()) {
    forms.setMaker(design.name, [&services, design] {
      return std::make_shared<sheets::ExerciseSheet>(services, design);
    });
  }

  return application.run([&] { forms.show(names::frmSplash); });
}
