#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <tuple>

#include "platform/base/data_files.h"
#include "platform/recording.h"
#include "platform/sound/lazy_midi_out.h"

namespace ratanka {
namespace {

constexpr int kLoudest = 127;

class MidiTest : public RecordingTest {
 protected:
  MidiTest() : RecordingTest(2 * sizeof(float)) {}

  void SetUp() override { ASSERT_EQ(output->midiOutOpen(MidiOut::kMidiMapper), 0); }

  void noteOn(unsigned note, unsigned velocity = kLoudest, unsigned channel = 0) {
    output->midiOutShortMsg(0x90 | channel | note << 8 | velocity << 16);
  }
  void noteOff(unsigned note, unsigned channel = 0) {
    output->midiOutShortMsg(0x80 | channel | note << 8);
  }

  // All that was played, once the device is closed.
  Recording recording() {
    output.reset();
    return recordingOf<float>(recorded(), 1);
  }

  // As far as it is recorded.
  double now() const { return recordingOf<float>(recorded(), 1).length(); }

  std::unique_ptr<MidiOut> output = std::make_unique<LazyMidiOut>();
};

// The strongest frequency within an octave around the note is its own, and none lies an octave
// below.
void expectPitch(const Recording& played, double hertz, double start) {
  const double pitch = played.pitch(hertz / 1.4, hertz * 1.4, start, 0.5);
  EXPECT_NEAR(pitch, hertz, 0.01 * hertz);
  EXPECT_GT(played.strength(pitch, start, 0.5), 0.005);
  EXPECT_LT(played.strength(hertz / 2, start, 0.5), 0.1 * played.strength(pitch, start, 0.5));
}

TEST_F(MidiTest, KeysHaveTheirPitches) {
  noteOn(60);
  hear(1);
  noteOff(60);
  hear(3);
  noteOn(76);
  hear(1);
  const Recording played = recording();
  const double first = played.onset();
  const double second = played.onset(played.pause(first));
  expectPitch(played, 261.6, first + 0.1);
  expectPitch(played, 659.3, second + 0.1);
}

TEST_F(MidiTest, ANoteLastsUntilItsNoteOffOnItsChannel) {
  noteOn(60, kLoudest, 3);
  hear(0.5);
  noteOff(60, 2);
  noteOff(61, 3);
  hear(1);
  const double released = now();
  noteOff(60, 3);
  hear(3);
  const Recording played = recording();
  EXPECT_GT(played.strength(frequency(60), released - 0.5, 0.5), 0.005);
  EXPECT_LT(played.loudest(played.length() - 1), -80);
}

TEST_F(MidiTest, VelocityIsForceAndZeroIsSilence) {
  noteOn(60, 0);
  hear(0.5);
  const double silent = now();
  noteOn(60, 40);
  hear(1);
  noteOn(60, 0);
  hear(3);
  noteOn(60, kLoudest);
  hear(1);
  const Recording played = recording();
  const double soft = played.onset();
  const double loud = played.onset(played.pause(soft));
  EXPECT_GE(soft, silent - 0.05);
  EXPECT_GT(played.strength(frequency(60), loud, 0.4),
            3 * played.strength(frequency(60), soft, 0.4));
}

TEST_F(MidiTest, EightKeysAtOnceAreLoudButNotCutOff) {
  for (const unsigned base : {0U, 36U, 60U, 84U, 111U}) {
    for (unsigned key = 0; key < 8; ++key) noteOn(base + key);
    hear(1);
    for (unsigned key = 0; key < 8; ++key) noteOff(base + key);
    hear(2);
  }
  const Recording played = recording();
  EXPECT_LT(played.peak, 1);
  EXPECT_GT(played.loudest(), -15);
}

TEST_F(MidiTest, OtherMessagesComeToTheSynthesiserToo) {
  output->midiOutShortMsg(0x6000e0);  // the wheel half way up: a half tone
  noteOn(60);
  hear(1);
  const Recording played = recording();
  expectPitch(played, frequency(61), played.onset() + 0.1);
}

TEST_F(MidiTest, WhatDoesNotExistCannotBeOpened) {
  output->midiOutClose();
  output->midiOutClose();
  noteOn(60);
  const int devices = output->midiOutGetNumDevs();
  EXPECT_GE(devices, 0);
  EXPECT_NE(output->midiOutOpen(devices), 0);
  EXPECT_NE(output->midiOutOpen(-2), 0);
  EXPECT_EQ(output->midiOutGetDevCapsA(devices), "");
  noteOn(60);
  for (const QString& font : {QString(), QString("/nowhere.sf2"), dataFile("Tetris.mid")}) {
    LazyMidiOut dumb({installedSoundModule().file, font});
    EXPECT_NE(dumb.midiOutOpen(MidiOut::kMidiMapper), 0) << font.toStdString();
    dumb.midiOutShortMsg(0x7f3c90);
  }
  EXPECT_EQ(output->midiOutOpen(MidiOut::kMidiMapper), 0);
  noteOn(60);
  hear(0.5);
  EXPECT_GT(recording().loudest(), -40);
}

TEST_F(MidiTest, ADamagedSoundFontIsNone) {
  QFile file(installedSoundModule().soundFont);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray whole = file.readAll();
  const auto canBeOpened = [&](const QByteArray& font) {
    QFile damaged(folder_.filePath("damaged.sf2"));
    EXPECT_TRUE(damaged.open(QIODevice::WriteOnly) && damaged.write(font) == font.size());
    damaged.close();
    LazyMidiOut dumb({installedSoundModule().file, damaged.fileName()});
    return dumb.midiOutOpen(MidiOut::kMidiMapper) == 0;
  };
  output->midiOutClose();
  EXPECT_TRUE(canBeOpened(whole));
  testing::internal::CaptureStderr();  // a library that a font gets to has a lot to say about it
  for (const qsizetype size : {qsizetype{0}, qsizetype{11}, qsizetype{100}, whole.size() / 2,
                               whole.size() - 50, whole.size() - 1}) {
    EXPECT_FALSE(canBeOpened(whole.left(size))) << size;
  }
  EXPECT_FALSE(canBeOpened(whole + "and more"));
  // Seen from a part's name: its size; where what a zone, an instrument (the first, the last), a
  // modulator and a sample name is.
  const std::tuple<const char*, qsizetype, const char*> places[] = {
      {"phdr", 4, "\x7f\x7f\x7f\x7f"}, {"pbag", 8, "\x7f\x7f"},  {"inst", 28, "\xff\x01"},
      {"ibag", -2, "\x7f\x7f"},        {"imod", 10, "\x7f\x7f"}, {"shdr", 32, "\x7f\x7f\x7f\x7f"}};
  for (const auto& [part, place, bytes] : places) {
    QByteArray font = whole;
    const qsizetype start = whole.indexOf(part, whole.indexOf("pdta"));
    font.replace(start + place, static_cast<qsizetype>(std::strlen(bytes)), bytes);
    EXPECT_FALSE(canBeOpened(font)) << part << ' ' << place;
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(MidiTest, LeavesNothingOpenAlsoWhenAKeyIsHeld) {
  output = std::make_unique<LazyMidiOut>();
  const auto before = belongings();
  for (int i = 0; i < 2; ++i) {
    ASSERT_EQ(output->midiOutOpen(MidiOut::kMidiMapper), 0);
    noteOn(60);
    hear(0.2);
    EXPECT_NE(belongings(), before);
    // By its close or by its end.
    if (i == 0) output->midiOutClose();
    if (i == 1) output = std::make_unique<LazyMidiOut>();
    for (int time = 0; time < 100 && belongings() != before; ++time) {
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_EQ(belongings(), before);
  }
}

}  // namespace
}  // namespace ratanka
