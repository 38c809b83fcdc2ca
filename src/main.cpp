#include "platform/base/data_files.h"
#include "platform/base/text.h"
#include "platform/forms/application.h"
#include "platform/forms/end_requests.h"
#include "platform/forms/qt_dialogs.h"
#include "platform/forms/qt_ticks.h"
#include "platform/forms/system_clock.h"
#include "platform/plain/twister_random.h"
#include "platform/settings/ini_settings_store.h"
#include "platform/sound/lazy_midi_out.h"
#include "platform/sound/lazy_sound.h"
#include "program.h"
#include "shell/names.h"

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
  const Program program(
      forms, {.dialogs = dialogs,
              .desktop = desktop,
              .clock = time,
              .settings = settings,
              .random = random,
              .sound = sound,
              .midiOut = midiOut,
              .mazeFile = dataFile("bludisko.txt"),
              .settingsFile = IniSettingsStore::usersFolder() + '/' + text(blocks::kSettingsFile)});
  const EndRequests endRequests([&] { forms.endProgram(); });
  return application.run([&] { forms.show(names::frmSplash); });
}
