#pragma once

#include <string>
#include <vector>

// The music of the blocks game. Two old tunes that children here sing: "Tancuj, tancuj,
// vykrúcaj" and "Mačka lezie dierou", with a beginning, a refrain, two bridges and an end of our
// own. It grows and gets a little faster, it rains in A minor, the sun comes out, everybody dances,
// at last in D. As the game begins it anew every 150 s, it leaves about 5 s of silence.
// note_text.h tells how notes are written.

enum class Voice { flute, clarinet, bells, guitar, bass, drums };

struct Line {
  Voice voice;
  int octave;    // of the notes without a mark
  int strength;  // 1 to 127
  std::string notes;
};

// All lines of a section are equally long, but for drums: they go on until the section ends.
struct Section {
  std::string name;
  double tempo;   // quarters a minute
  int transpose;  // half tones up
  std::vector<Line> lines;
};

constexpr double kTempo = 104;
constexpr int kInC = 0;
constexpr int kInD = 2;
constexpr int kInF = 5;

// Tancuj, tancuj, vykrúcaj, vykrúcaj, len mi piecku nezrúcaj, nezrúcaj.
inline const std::string kDance = "g8 g a a | g f e4 | f8 e d4 | f8 f g g | f e d4 | e8 d c4";
inline const std::string kDanceThirds =
    "e8 e f f | e d c4 | d8 c b,4 | d8 d e e | d c b,4 | c8 b, c4";
inline const std::string kDanceSixths =
    "e8 e c c | b, a, g,4 | a,8 g, f,4 | a,8 a, b, b, | a, g, f,4 | g,8 f, e,4";
inline const std::string kDanceRun =
    "g16 a b g a b c' a | g8 f16 g e4 | f16 g f e d8 g, | f16 e f g g8 g16 a | "
    "f8 e16 f d8 g, | e16 f e d c4";
inline const std::string kDanceRunOn =
    "g8 c' a c' | g16 a g f e8 c | f16 e f g d8 a | f16 g a f g a b g | "
    "f16 a g f d8 b, | c16 e d b, c4";
inline const std::string kDanceBells = "r2 | r4 c'8 e' | r4 d'8 b | r2 | r4 b8 d' | r4 c'8 g";
inline const std::string kDanceChords = "C F | C | G7 | G7 | G7 | C";
inline const std::string kDanceBass = "c4 f | c g, | g, d | g, b, | g, a,8 b, | c4 g,";
// The same tune over richer chords, for its second line.
inline const std::string kOtherChords = "C F | Em C | Dm | Dm G7 | Dm G7 | C";
inline const std::string kOtherBass = "c4 f | e c | d a, | d g, | d8 c b, g, | c g, c4";

// A refrain for it, in its manner: tralalala, tralala, tralala, ...
inline const std::string kRefrain = "g8 c' c' c' | b a g4 | a8 g f4 | f8 f a a | g f e4 | d8 b, c4";
inline const std::string kRefrainBelow =
    "e8 e e e | g f e4 | f8 e c4 | d8 d f f | e d c4 | b,8 g, e,4";
inline const std::string kRefrainAgainst = "e4 g | d8 f e4 | c a, | a,8 a, d f | e d c4 | f8 d e4";
inline const std::string kRefrainBells =
    "c8 g e g | d r c g | f r c' a | d f a f | e r c g | r b, c4";
inline const std::string kRefrainRipple =
    "c'16 g e g c' g e g | b g d8 c'16 g e g | c' a c8 c'16 a f a | d' a f a d' a f a | "
    "c' g b8 c'16 g e g | b d b d c'4";
inline const std::string kRefrainChords = "C | G C | F | Dm | C | G7 C";
inline const std::string kRefrainBass = "c4 g, | g, c | f c | d a, | c e | g, c";

// Mačka lezie dierou, pes oknom, pes oknom, ak nebude pršať, nezmoknem, ...
inline const std::string kCat =
    "c8 d e f | g4 g | a8 a g4 | a8 a g4 | f8 f f f | e4 e | d8 d g4 | "
    "f8 f f f | e4 e | d8 d c4";
inline const std::string kCatBelow =
    "e,8 f, g, a, | c4 e | f8 f e4 | f8 f e4 | a,8 a, a, a, | g,4 g, | b,8 b, b,4 | "
    "a,8 a, a, a, | g,4 g, | f,8 f, e,4";
inline const std::string kCatLong = "g2 | e4 c' | c' c' | c' c' | a2 | g | b | a | g4 c' | b c'";
inline const std::string kCatBells =
    "r2 | r4 g8 e | r4 r8 c' | r4 r8 c' | r2 | r4 e8 g | r4 b8 d' | "
    "r2 | r4 g8 c' | r4 e8 c";
inline const std::string kCatRipple =
    "c8 e g e | g c' e' c' | f a g e | f a g e | f a c' a | e g c' g | d g b g | "
    "f a c' a | e g c' g | d g c'4";
inline const std::string kCatChords = "C | C | F C | F C | F | C | G7 | F | C | G7 C";
inline const std::string kCatBass =
    "c4 g, | c e | f e | f c | f a, | c g, | d g, | f a, | e c | g, c";

// A keď bude pršať, zmokneme, zmokneme, na slniečku zase uschneme: it rains, but the sun is near.
inline const std::string kCatInRain =
    "a,8 b, c d | e4 e | f8 f e4 | f8 f e4 | d8 d d d | c4 c | b,8 b, a,4";
inline const std::string kCatInRainBelow = "e2 | c' | a4 c' | d' c' | b2 | e | g#4 a";
inline const std::string kRainDrops =
    "r8 e r8. c'16 | r8. a16 r8 e | r8 f r8. c'16 | r8. a16 r8 e | r8 d r8. b16 | "
    "r8. g16 r8 e | r8 g# r8. a16";

inline const std::vector<Section> kTune = {
    {"beginning",
     kTempo,
     kInC,
     {{Voice::bells, 5, 60, "c8 e g e | f a g f | d g f d | e4 c"},
      {Voice::guitar, 3, 48, "C | F | G7 | C"},
      {Voice::bass, 2, 54, "c4 g, | f a, | g, b, | c g,"}}},

    {"dance, alone",
     kTempo,
     kInC,
     {{Voice::flute, 5, 72, kDance},
      {Voice::guitar, 3, 50, kDanceChords},
      {Voice::bass, 2, 64, kDanceBass}}},
    {"dance, alone, second line",
     kTempo + 2,
     kInC,
     {{Voice::flute, 5, 76, kDance},
      {Voice::bells, 5, 44, kDanceBells},
      {Voice::guitar, 3, 50, kOtherChords},
      {Voice::bass, 2, 64, kOtherBass}}},

    {"dance for two",
     kTempo + 4,
     kInC,
     {{Voice::flute, 5, 78, kDance},
      {Voice::clarinet, 5, 62, kDanceThirds},
      {Voice::guitar, 3, 52, kDanceChords},
      {Voice::bass, 2, 66, kDanceBass},
      {Voice::drums, 0, 62, ".s.s"}}},
    {"dance for two, second line",
     kTempo + 6,
     kInC,
     {{Voice::flute, 5, 80, kDance},
      {Voice::clarinet, 5, 64, kDanceSixths},
      {Voice::guitar, 3, 52, kOtherChords},
      {Voice::bass, 2, 66, kOtherBass},
      {Voice::drums, 0, 64, ".s.s"}}},

    {"refrain",
     kTempo + 6,
     kInC,
     {{Voice::flute, 5, 78, kRefrain},
      {Voice::clarinet, 5, 64, kRefrainBelow},
      {Voice::bells, 5, 46, kRefrainBells},
      {Voice::guitar, 3, 52, kRefrainChords},
      {Voice::bass, 2, 66, kRefrainBass},
      {Voice::drums, 0, 64, ".s.t"}}},

    {"bridge to F",
     kTempo + 4,
     kInC,
     {{Voice::bells, 5, 64, "d8 f a f | g f d b, | c e g bb | c'4 r"},
      {Voice::clarinet, 4, 64, "a4 f | g f | e g | bb a8 g"},
      {Voice::guitar, 3, 50, "Dm | G7 | C7 | C7"},
      {Voice::bass, 2, 60, "d4 a, | g, b, | c e | c8 g, c4"}}},

    {"cat",
     kTempo + 6,
     kInF,
     {{Voice::clarinet, 4, 78, kCat},
      {Voice::bells, 5, 50, kCatBells},
      {Voice::guitar, 3, 50, kCatChords},
      {Voice::bass, 2, 64, kCatBass},
      {Voice::drums, 0, 62, "..s.t.s."}}},
    {"cat for two",
     kTempo + 6,
     kInF,
     {{Voice::flute, 5, 72, kCat},
      {Voice::clarinet, 5, 64, kCatBelow},
      {Voice::guitar, 3, 52, kCatChords},
      {Voice::bass, 2, 66, kCatBass},
      {Voice::drums, 0, 64, "..s.t.s."}}},

    {"bridge to A minor",
     kTempo - 2,
     kInC,
     {{Voice::flute, 5, 66, "a4 f | d f | e2 | r2"},
      {Voice::bells, 4, 54, "f8 a c' a | d f a f | e g# b g# | e' b g# e"},
      {Voice::guitar, 3, 46, "F | Dm | E7 | E7"},
      {Voice::bass, 2, 58, "f4 c | d a, | e b, | e e"}}},

    // It rains on the cat, then on the dance.
    {"cat in the rain",
     kTempo - 4,
     kInC,
     {{Voice::flute, 5, 72, kCatInRain},
      {Voice::clarinet, 4, 58, kCatInRainBelow},
      {Voice::bells, 5, 46, kRainDrops},
      {Voice::guitar, 3, 46, "Am | Am | Dm Am | Dm Am | G | C | E7 Am"},
      {Voice::bass, 2, 60, "a,4 e | a, c | d a, | d a, | g, b, | c e | e a,"},
      {Voice::drums, 0, 34, "ssssssss"}}},
    {"dance in A minor",
     kTempo - 4,
     kInC,
     {{Voice::clarinet, 5, 70, "e8 e f f | e d c4 | d8 c b,4 | d8 d e e | d c b,4 | c8 b, a,4"},
      {Voice::bells, 4, 50,
       "a8 c' f' d' | e' c' a c' | b g# e g# | b d' e' d' | b g# e b | a e c4"},
      {Voice::bass, 2, 60, "a,4 d | a, e | e b, | e g# | e e | a, e,"}}},
    {"the sun comes out",
     kTempo + 2,
     kInC,
     {{Voice::clarinet, 5, 70, "e8 e f f | e d c4 | d8 c b,4 | d8 d e e | d c b,4 | c8 d e f"},
      {Voice::flute, 5, 56, "g4 a | c' a | b g | b c' | d' b | c' b"},
      {Voice::bells, 4, 50, "e8 g a f | a c' e' c' | d' b g b | d' b c' e' | d' b g b | c' g b d'"},
      {Voice::guitar, 3, 48, "C F | Am | G7 | G7 C | G7 | C G7"},
      {Voice::bass, 2, 62, "c4 f | a, e | g, d | g, c | g, b, | c g,"}}},

    {"dance with runs",
     kTempo + 8,
     kInC,
     {{Voice::flute, 5, 76, kDanceRun},
      {Voice::clarinet, 5, 62, kDanceThirds},
      {Voice::guitar, 3, 50, kDanceChords},
      {Voice::bass, 2, 66, kDanceBass},
      {Voice::drums, 0, 62, ".s.s"}}},
    {"dance with runs, second line",
     kTempo + 8,
     kInC,
     {{Voice::flute, 5, 78, kDanceRunOn},
      {Voice::clarinet, 5, 62, kDanceSixths},
      {Voice::guitar, 3, 52, kOtherChords},
      {Voice::bass, 2, 66, kOtherBass},
      {Voice::drums, 0, 64, ".s.s"}}},

    {"cat at home",
     kTempo + 8,
     kInC,
     {{Voice::flute, 5, 76, kCat},
      {Voice::clarinet, 4, 58, kCatLong},
      {Voice::bells, 4, 44, kCatRipple},
      {Voice::guitar, 3, 48, kCatChords},
      {Voice::bass, 2, 66, kCatBass},
      {Voice::drums, 0, 62, "..s.t.s."}}},

    {"everybody dances",
     kTempo + 10,
     kInC,
     {{Voice::flute, 5, 82, kDance},
      {Voice::clarinet, 5, 66, kDanceThirds},
      {Voice::bells, 5, 50, kDanceBells},
      {Voice::guitar, 3, 54, kDanceChords},
      {Voice::bass, 2, 68, kDanceBass},
      {Voice::drums, 0, 66, "..s.t.s."}}},
    {"everybody dances, second line",
     kTempo + 10,
     kInC,
     {{Voice::flute, 5, 84, kDance},
      {Voice::clarinet, 5, 68, kDanceSixths},
      {Voice::bells, 5, 50, "r2 | r4 c'8 g | r4 f8 a | r4 b8 d' | r4 b8 d' | r4 c'8 a"},
      {Voice::guitar, 3, 54, "C F | Em C | Dm | Dm G7 | Dm G7 | C Am"},
      {Voice::bass, 2, 68, "c4 f | e c | d a, | d g, | d8 c b, g, | c g, a,4"},
      {Voice::drums, 0, 66, "..s.t.s."}}},
    {"everybody's refrain, a tone higher",
     kTempo + 10,
     kInD,
     {{Voice::flute, 5, 84, kRefrain},
      {Voice::clarinet, 5, 68, kRefrainAgainst},
      {Voice::bells, 5, 44, kRefrainRipple},
      {Voice::guitar, 3, 54, kRefrainChords},
      {Voice::bass, 2, 68, kRefrainBass},
      {Voice::drums, 0, 66, "s.s.t.ss"}}},

    {"end: nezrúcaj, nezrúcaj",
     kTempo,
     kInD,
     {{Voice::flute, 5, 80, "f8 e d4 | e8 d c4 | r2 | r2"},
      {Voice::clarinet, 4, 76, "r2 | r2 | f8 e d4 | e8 d c4"},
      {Voice::guitar, 3, 54, "G7 | C | G7 | C"},
      {Voice::bass, 2, 66, "g,4 b, | c g, | g, b, | c g,"}}},
    {"end, slower",
     kTempo - 12,
     kInD,
     {{Voice::bells, 5, 66, "f8 e d4 | e8 d c4"},
      {Voice::guitar, 3, 50, "G7 | C"},
      {Voice::bass, 2, 58, "g,4 d | c g,"}}},
    {"end, still slower",
     kTempo - 24,
     kInD,
     {{Voice::flute, 5, 58, "r2 | g | r"},
      {Voice::clarinet, 4, 54, "r2 | e' | r"},
      {Voice::bells, 5, 52, "g,8 c e g | c'2 | r"},
      {Voice::bass, 2, 56, "c2 | c | r"}}},
};
