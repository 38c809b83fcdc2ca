#include "platform/sound/sound_module.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QStringList>

#include "platform/sound/makers.h"

namespace ratanka {
namespace {

QString findModule() {
  const QDir folder(QCoreApplication::applicationDirPath());
  if (folder.exists(RATANKA_SOUND_MODULE)) return folder.filePath(RATANKA_SOUND_MODULE);
  return QDir::cleanPath(folder.filePath(RATANKA_MODULE_FOLDER "/" RATANKA_SOUND_MODULE));
}

// The system's own choice first, then fonts by name, small ones before those that load slowly.
QString findSoundFont() {
  const QStringList folders = {"/usr/share/sounds/sf2/", "/usr/share/sounds/sf3/",
                               "/usr/share/soundfonts/"};
  for (const char* name :
       {"default-GM.sf2", "default-GM.sf3", "default.sf2", "default.sf3", "TimGM6mb.sf2",
        "FluidR3Mono_GM.sf3", "FluidR3_GM.sf2", "GeneralUser.sf2"}) {
    for (const QString& folder : folders) {
      if (QFile::exists(folder + name)) return folder + name;
    }
  }
  return {};
}

template <typename Maker>
auto make(const SoundModule& module, const char* name) {
  QLibrary library(module.file);
  // Its threads and tables would outlive it.
  library.setLoadHints(QLibrary::PreventUnloadHint);
  const auto maker = reinterpret_cast<Maker*>(library.resolve(name));
  return maker == nullptr ? nullptr : maker(QFile::encodeName(module.soundFont).constData());
}

}  // namespace

SoundModule installedSoundModule() { return {findModule(), findSoundFont()}; }

std::unique_ptr<Sound> loadSound(const SoundModule& module) {
  return std::unique_ptr<Sound>(make<decltype(ratankaMakeSound)>(module, "ratankaMakeSound"));
}

std::unique_ptr<MidiOut> loadMidiOut(const SoundModule& module) {
  return std::unique_ptr<MidiOut>(make<decltype(ratankaMakeMidiOut)>(module, "ratankaMakeMidiOut"));
}

}  // namespace ratanka
