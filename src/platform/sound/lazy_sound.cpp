#include "platform/sound/lazy_sound.h"

#include <QFile>

#include "platform/base/data_files.h"
#include "platform/base/text.h"

namespace ratanka {
namespace {

std::string pathOf(std::string_view file) {
  return QFile::encodeName(dataFile(text(file))).toStdString();
}

}  // namespace

Sound* LazySound::sound() {
  if (!isLoaded_) sound_ = loadSound(module_);
  isLoaded_ = true;
  return sound_.get();
}

void LazySound::PlayWave(std::string_view file) {
  if (Sound* const loaded = sound()) loaded->PlayWave(pathOf(file));
}

void LazySound::openMusic(std::string_view file) {
  if (Sound* const loaded = sound()) loaded->openMusic(pathOf(file));
}

// Without an open music there is nothing to play or to close.
void LazySound::playMusic() {
  if (sound_) sound_->playMusic();
}

void LazySound::closeMusic() {
  if (sound_) sound_->closeMusic();
}

}  // namespace ratanka
