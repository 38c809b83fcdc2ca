#include <algorithm>

#include "blocks/rules/kockovka.h"

// How a game waits: the one place beside its beginning where the child's keys reach it.
namespace ratanka::blocks {
namespace {

constexpr std::string_view kCaption = "Rátanka - hra Tetris";
constexpr std::string_view kPauseCaption = "Rátanka - hra Tetris : Pauza";

constexpr double kMusicRestart = 150;  // seconds
constexpr double kDay = 86400;         // seconds

}  // namespace

void Kockovka::Wait(double Seconds) {
  if (FastDrop_) return;
  const double start = clock_.secondsSinceMidnight();
  Stage::WindowState shown = stage_.windowState();
  while (true) {
    const double now = clock_.secondsSinceMidnight();
    const double passed = now - start;  // negative after midnight, which ends the wait
    if ((passed < 0 || passed >= Seconds) && !Paused_) break;
    keepMusicGoing(now);
    if (GameOver_ || FastDrop_) return;
    if (Paused_) {
      showPause(true);
      if (stage_.windowState() != shown) stage_.repaintBoard();
      shown = stage_.windowState();
    }
    stage_.awaitEvents(secondsToSleep(now, Seconds - passed));
  }
  showPause(false);
}

// Until something is due: the end of the wait, of which so many seconds are left, the music, or
// midnight, when the clock starts anew and both are to be looked at.
double Kockovka::secondsToSleep(double now, double left) const {
  double seconds = kDay - now;
  if (!Paused_) seconds = std::min(seconds, left);
  if (options_.playsSounds()) seconds = std::min(seconds, kMusicRestart - (now - MusicStarted_));
  return seconds;
}

// Sounds may be switched on and off in mid-game.
void Kockovka::keepMusicGoing(double now) {
  if (!options_.playsSounds()) return closeMusic();
  const double played = now - MusicStarted_;  // negative after midnight
  if (isMusicOn_ && played >= 0 && played < kMusicRestart) return;
  isMusicOn_ = true;
  stage_.MusicPlay();
  MusicStarted_ = now;
}

void Kockovka::closeMusic() {
  if (isMusicOn_) stage_.MusicClose();
  isMusicOn_ = false;
}

void Kockovka::showPause(bool isPaused) {
  if (isPauseShown_ == isPaused) return;
  isPauseShown_ = isPaused;
  stage_.setCaption(isPaused ? kPauseCaption : kCaption);
}

}  // namespace ratanka::blocks
