#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <utility>

#include "fakes.h"
#include "piano/rules/base_note.h"
#include "piano/rules/piano.h"

namespace ratanka::piano {
namespace {

std::string hex(int message) {
  char text[16];
  std::snprintf(text, sizeof text, "%06X ", static_cast<unsigned>(message));
  return text;
}

class PianoTest : public testing::Test {
 protected:
  PianoTest() {
    EXPECT_TRUE(piano.load());
    EXPECT_EQ(calls(), "close open -1 ");
  }

  // Since the last look.
  std::string calls() { return std::exchange(midi.calls, {}); }

  std::string strike(int i) {
    piano.NoteOn(i);
    piano.NoteOff(i);
    return calls();
  }

  FakeMidi midi;
  Piano piano{midi};
};

TEST_F(PianoTest, HasSeventeenKeysFromCUpward) {
  constexpr int kCodes[kKeys] = {'Z', 'S', 'X', 'D', 'C', 'V', 'G', 'B', 'H',
                                 'N', 'J', 'M', 188, 'L', 190, 186, 191};
  constexpr std::string_view kColours = ".#.#..#.#.#..#.#.";
  constexpr std::string_view kCaptions = "ZSXDCVGBHNJM,L.;/";
  int nextWhite = 360;
  for (int i = 0; i < kKeys; ++i) {
    const auto at = static_cast<std::size_t>(i);
    EXPECT_EQ(KeyIndex(kCodes[i]), i);
    EXPECT_EQ(kKeyboard[at].caption, kCaptions.substr(at, 1));
    EXPECT_EQ(kKeyboard[at].isBlack, kColours[at] == '#');
    EXPECT_EQ(kKeyboard[at].left, kColours[at] == '#' ? nextWhite - 120 : nextWhite);
    if (kColours[at] == '.') nextWhite += 480;
    EXPECT_EQ(strike(i), hex(0x7F3C90 + 0x100 * i) + hex(0x003C80 + 0x100 * i));
  }
  for (const int other : {0, 13, 81, 122, 189}) EXPECT_EQ(KeyIndex(other), -1);
  EXPECT_EQ(strike(-1), "");
}

TEST_F(PianoTest, SendsTheSettingsOfTheMoment) {
  for (int channel = 0; channel < kChannels; ++channel) {
    piano.setChannel(channel);
    EXPECT_EQ(strike(0), hex(0x7F3C90 + channel) + hex(0x003C80 + channel));
  }
  piano.answerBaseNote("111");
  piano.answerBaseNote("112");
  piano.setVolume(0);
  EXPECT_EQ(strike(16), "007F9F 007F8F ");
  piano.NoteOn(3);
  piano.setChannel(2);
  piano.answerBaseNote("0");
  piano.NoteOff(3);
  EXPECT_EQ(calls(), "00729F 000382 ");
}

TEST_F(PianoTest, AHeldKeySoundsOnceAndManySoundAtOnce) {
  for (const int i : {0, 4, 0, 16, 4, 0}) piano.NoteOn(i);
  EXPECT_EQ(calls(), "7F3C90 7F4090 7F4C90 ");
  piano.NoteOff(4);
  piano.NoteOff(5);  // went down elsewhere
  piano.NoteOn(4);
  EXPECT_EQ(calls(), "004080 004180 7F4090 ");
  for (int twice = 0; twice < 2; ++twice) piano.releaseAll();
  EXPECT_EQ(calls(), "003C80 004080 004C80 ");
}

TEST_F(PianoTest, AnotherDeviceTakesOverTheKeysThatAreDown) {
  piano.NoteOn(0);
  EXPECT_TRUE(piano.chooseDevice(2));
  piano.NoteOn(0);
  piano.NoteOff(0);
  EXPECT_EQ(calls(), "7F3C90 close open 1 003C80 ");
  midi.result = 4;
  EXPECT_FALSE(piano.chooseDevice(1));
  EXPECT_EQ(piano.curDevice(), 0);  // in use all the same
  EXPECT_EQ(strike(0), "close open 0 7F3C90 003C80 ");
}

TEST_F(PianoTest, EveryOpeningStartsAfreshWithAtMostTenDevices) {
  piano.setChannel(9);
  piano.setVolume(1);
  piano.answerBaseNote("1");
  piano.NoteOn(0);
  piano.unload();
  EXPECT_EQ(calls(), "010199 close ");
  midi.numDevices = 12;
  EXPECT_TRUE(piano.load());
  EXPECT_EQ(piano.deviceNames().size(), 11u);
  EXPECT_EQ(piano.deviceNames().front(), "MIDI Mapper");
  EXPECT_EQ(piano.deviceNames().back(), "Zvuk 9");
  EXPECT_EQ(strike(0), "close open -1 7F3C90 003C80 ");
}

TEST(BaseNote, IsAWholeNumberInRangeOrNothing) {
  const auto expect = [](std::optional<int> note, std::initializer_list<const char*> answers) {
    for (const char* answer : answers) EXPECT_EQ(baseNoteOf(answer), note) << answer;
  };
  expect(7, {"7", " 7", "7 ", "\t+7 ", "007", "6.5001", "7,4"});
  expect(12, {"12.5", "12,5", "11.5", "1.2e1", "1,2E+1", "120e-1"});
  expect(14, {"13.5", "13,5", "14,"});
  expect(0, {"0", "-0", "0.5", ",5", "-0,5"});
  expect(111, {"111", "111.49"});
  expect({}, {"112", "111,5", "-1", "-0.51", "32768", "4294967356", "1e300", "1e999"});
  expect({}, {"", "   ", "abc", "7a", "a7", "1 2", "- 7", "+-0", "--7", "++7", "1.2.3", "1,2.3"});
  expect({}, {".", ",", "+", "-", "e1", "1e", "0x10", "&H10", "inf", "nan", "\xC2\xBD", "\xFF"});
}

}  // namespace
}  // namespace ratanka::piano
