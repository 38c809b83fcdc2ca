#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <thread>

#include "note_text.h"
#include "platform/base/data_files.h"
#include "platform/recording.h"
#include "platform/sound/lazy_midi_out.h"
#include "platform/sound/lazy_sound.h"
#include "tune.h"

namespace ratanka {
namespace {

constexpr double kEighth = 30 / kTempo;  // seconds

class SoundTest : public RecordingTest {
 protected:
  SoundTest() : RecordingTest(2 * sizeof(std::int16_t)) {}

  // The wave files have one side: as it sounds from both.
  static Recording waveFile(const char* name) {
    constexpr int kHeader = 44;
    QFile file(dataFile(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll().mid(kHeader);
    QByteArray twice;
    for (qsizetype i = 0; i + 1 < bytes.size(); i += 2) twice += bytes.mid(i, 2) + bytes.mid(i, 2);
    return recordingOf<std::int16_t>(twice, 32768);
  }

  Recording soFar() const { return recordingOf<std::int16_t>(recorded(), 32768); }

  // All that was played, once the device is closed.
  Recording recording() {
    sound.reset();
    return soFar();
  }

  std::string file(const char* name, const QByteArray& content) const {
    QFile created(folder_.filePath(name));
    EXPECT_TRUE(created.open(QIODevice::WriteOnly));
    created.write(content);
    return created.fileName().toStdString();
  }

  static QByteArray content(const char* name) {
    QFile whole(dataFile(name));
    EXPECT_TRUE(whole.open(QIODevice::ReadOnly));
    return whole.readAll();
  }

  // Whether the tune's first notes are what sounds most at that time.
  static bool beginsAt(const Recording& recording, double start) {
    const std::vector<Note> notes =
        readNotes(kTune.front().lines.front().notes, kTune.front().lines.front().octave).notes;
    return std::all_of(notes.begin(), notes.begin() + 8, [&](const Note& note) {
      const double begin = start + kEighth * note.start / (kTicksPerQuarter / 2.0);
      int loudest = 0;
      double most = 0;
      for (int pitch = 70; pitch <= 84; ++pitch) {
        // What an earlier note leaves behind doesn't count.
        const double now = recording.strength(frequency(pitch), begin + 0.03, 0.2) -
                           recording.strength(frequency(pitch), begin - 0.2, 0.2);
        if (now > most) loudest = pitch;
        most = std::max(most, now);
      }
      return loudest == note.pitch;
    });
  }

  std::unique_ptr<Sound> sound = std::make_unique<LazySound>();
};

TEST_F(SoundTest, WavesAreAsLoudAsTheirFiles) {
  for (const char* name : {"Tetris2.wav", "Tetris3.wav", "Pucle2.wav"}) {
    const Recording file = waveFile(name);
    sound = std::make_unique<LazySound>();
    sound->PlayWave(name);
    hear(file.length() + 0.1);
    const Recording played = recording();
    EXPECT_NEAR(played.loudest(), file.loudest(), 0.3) << name;
    EXPECT_NEAR(played.peak, file.peak, 0.02) << name;
    EXPECT_LT(played.loudest(played.onset() + file.length()), -90) << name << " goes on";
  }
}

TEST_F(SoundTest, AFourfoldRisesInFourNotes) {
  sound->PlayWave("Tetris7.wav");
  hear(1);
  const Recording played = recording();
  double start = played.onset();
  for (const int note : {72, 76, 79, 84}) {
    const double before = played.strength(frequency(note), start - 0.08, 0.08);
    EXPECT_GT(played.strength(frequency(note), start, 0.08), 0.02 + 3 * before) << note;
    start += 0.09;
  }
}

TEST_F(SoundTest, StepsDontCutAFanfareOff) {
  constexpr double kLastNote = 1046.5;  // Hz; no step has it
  setSpeed(1);
  const Recording file = waveFile("Pucle2.wav");
  sound->PlayWave("Pucle2.wav");
  for (int i = 0; i < 3; ++i) {
    hear(0.2);
    sound->PlayWave("Tetris3.wav");
  }
  hear(file.length());
  const Recording played = recording();
  EXPECT_NEAR(played.strength(kLastNote, played.onset() + 1, 0.4),
              file.strength(kLastNote, file.onset() + 1, 0.4), 0.002);
  EXPECT_GT(file.strength(kLastNote, file.onset() + 1, 0.4), 0.01);
  EXPECT_GT(played.loudest(), file.loudest() + 1) << "no step is heard";
}

TEST_F(SoundTest, TheWholeMusicPlaysBeneathTheWaves) {
  double length = 0;
  for (const Section& section : kTune) {
    const Line& line = section.lines.front();
    length += readNotes(line.notes, line.octave).length * 60 / section.tempo / kTicksPerQuarter;
  }
  EXPECT_NEAR(length, 144.5, 1.5) << "the game begins it anew every 150 s";
  setSpeed(100);
  sound->openMusic("Tetris.mid");
  sound->playMusic();
  for (Recording early = soFar(); early.onset() == early.length(); early = soFar()) hear(5);
  hear(length + 5);
  sound->closeMusic();
  const Recording played = recording();
  EXPECT_TRUE(beginsAt(played, played.onset()));
  EXPECT_GT(played.loudest(played.onset() + length - 5), -50) << "the end is missing";
  EXPECT_LT(played.loudest(played.onset() + length + 2), -80) << "it goes on";
  EXPECT_NEAR(played.loudest(), waveFile("Tetris2.wav").loudest() - 7, 2);
  EXPECT_LT(played.peak, 0.4) << "the waves need their room";
}

TEST_F(SoundTest, MusicBeginsAnewAndEndsWhenItIsClosed) {
  sound->openMusic("Tetris.mid");
  sound->playMusic();
  hear(3);
  sound->playMusic();
  hear(6);
  sound->closeMusic();
  sound->playMusic();
  hear(3);
  const Recording played = recording();
  const double first = played.onset();
  EXPECT_TRUE(beginsAt(played, first));
  int beginnings = 0;
  for (double start = first + 1; start < played.length() - 8 * kEighth && beginnings == 0;
       start += 0.02) {
    if (beginsAt(played, start)) ++beginnings;
  }
  EXPECT_EQ(beginnings, 1);
  EXPECT_LT(played.loudest(played.length() - 1), -90);
}

TEST_F(SoundTest, WhatCannotBePlayedIsSilentAndHarmless) {
  const QByteArray wave = content("Tetris7.wav");
  const QByteArray music = content("Tetris.mid");
  QByteArray slow = wave;  // at 1 Hz, it would take hours and gigabytes
  slow.replace(24, 4, QByteArray("\1\0\0\0", 4));
  QByteArray many = wave;  // for as many sides
  many[22] = '\7';
  const QByteArray garbage = QByteArray("\x00\xff\x7f\x80RIFF", 8).repeated(200);
  sound = loadSound(installedSoundModule());
  for (const std::string& bad :
       {std::string("/nowhere/at/all"), std::string(), folder_.path().toStdString(),
        file("empty", {}), file("garbage", garbage), file("header.wav", wave.left(44)),
        file("head.wav", wave.left(20)), file("cut.wav", wave.left(30000)), file("slow.wav", slow),
        file("many.wav", many), file("head.mid", music.left(30))}) {
    sound->PlayWave(bad);
    sound->playMusic();
    sound->openMusic(bad);
    sound->playMusic();
    sound->playMusic();
    sound->closeMusic();
    sound->closeMusic();
  }
  hear(1);
  const double silence = soFar().length();
  sound->PlayWave(file("half.wav", wave.left(wave.size() / 2)));
  sound->openMusic(file("half.mid", music.left(music.size() / 2)));
  sound->playMusic();
  hear(1);
  sound->closeMusic();
  std::this_thread::sleep_for(std::chrono::seconds(1));  // or a busy worker drops the wave
  sound->PlayWave(dataFile("Tetris7.wav").toStdString());
  hear(2);
  const Recording played = recording();
  EXPECT_GE(played.onset(), silence - 0.05);
  EXPECT_NEAR(played.loudest(played.length() - 2), waveFile("Tetris7.wav").loudest(), 1);
}

TEST_F(SoundTest, WithoutASoundFontOnlyTheMusicIsSilent) {
  for (const QString& font : {QString(), QString("/nowhere.sf2"), dataFile("Tetris.mid")}) {
    sound = loadSound({installedSoundModule().file, font});
    sound->PlayWave(dataFile("Tetris2.wav").toStdString());
    sound->openMusic(dataFile("Tetris.mid").toStdString());
    sound->playMusic();
    hear(2);
    const Recording played = recording();
    EXPECT_NEAR(played.loudest(), waveFile("Tetris2.wav").loudest(), 0.3);
    EXPECT_LT(played.loudest(played.onset() + 0.3), -90);
  }
}

TEST_F(SoundTest, EndsAtOnceInMidMusicAndLeavesNothingOpen) {
  setSpeed(1);
  std::pair<std::ptrdiff_t, std::ptrdiff_t> before;
  qint64 fastest = 1000;  // ms
  for (int i = 0; i < 3; ++i) {
    sound = std::make_unique<LazySound>();
    sound->openMusic("Tetris.mid");
    sound->playMusic();
    sound->PlayWave("Pucle2.wav");
    hear(0.2);
    QElapsedTimer time;
    time.start();
    sound.reset();
    fastest = std::min(fastest, time.elapsed());
    // What the libraries keep for good is there after the first time.
    if (i == 0) before = belongings();
  }
  EXPECT_EQ(belongings(), before);
  EXPECT_LT(fastest, 100);
}

TEST_F(SoundTest, GivesTheDeviceBackInALongSilence) {
  sound->PlayWave("Tetris2.wav");
  hear(0.5);
  const auto playing = belongings();
  for (int i = 0; i < 150 && belongings() == playing; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
  }
  EXPECT_EQ(belongings().first, playing.first - 1);
  EXPECT_EQ(belongings().second, playing.second - 1);
  eraseRecording();
  sound->PlayWave("Tetris2.wav");
  hear(0.5);
  EXPECT_NEAR(recording().loudest(), waveFile("Tetris2.wav").loudest(), 0.3);
}

// Plays all there is, for a moment, in a fresh process; exits with 0 if the synthesiser can't be
// opened either.
[[noreturn]] void playEverything(const SoundModule& module) {
  {
    LazySound sound(module);
    LazyMidiOut piano(module);
    sound.PlayWave("Tetris2.wav");
    sound.openMusic("Tetris.mid");
    sound.playMusic();
    sound.PlayWave("Tetris2.wav");
    const bool isOpen = piano.midiOutOpen(MidiOut::kMidiMapper) == 0;
    piano.midiOutShortMsg(0x7f3c90);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    sound.closeMusic();
    piano.midiOutClose();
    if (isOpen || piano.midiOutGetNumDevs() < 0) std::_Exit(1);
  }
  std::exit(0);
}

TEST(SilenceTest, WithoutADeviceOrTheModuleNothingIsHeardOrSaid) {
  const auto exits = testing::ExitedWithCode(0);
  EXPECT_EXIT((qputenv("SDL_AUDIODRIVER", "nonsense"), playEverything(installedSoundModule())),
              exits, "^$");
  EXPECT_EXIT(
      (qputenv("SDL_DISKAUDIOFILE", "/nowhere/recording"), playEverything(installedSoundModule())),
      exits, "^$");
  const QString font = installedSoundModule().soundFont;
  EXPECT_EXIT(playEverything({"/nowhere/ratanka_sound.so", font}), exits, "^$");
  EXPECT_EXIT(playEverything({dataFile("Tetris1.wav"), font}), exits, "^$");
}

}  // namespace
}  // namespace ratanka
