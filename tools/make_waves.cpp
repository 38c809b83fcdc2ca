// make_waves FOLDER: makes the sounds of the blocks game and of the puzzle, sample by sample.
//
// Notes are struck bars of wood, as on a marimba; knocks are pieces of wood, a few resonances woken
// by a soft blow; what slides is filtered noise. All notes belong to the five-note scale on C,
// which is at home in both keys of the music. Chance is seeded, so each run writes the same bytes.

#include <cmath>
#include <cstddef>
#include <cstdio>
#include <initializer_list>
#include <numbers>
#include <string>
#include <vector>

#include "instruments.h"
#include "output_file.h"
#include "wave_file.h"

namespace {

// Everything is as loud as the rest: the loudest 50 ms, about what an ear takes for one moment,
// have this root mean square. Peaks are left to fall where they may, within the headroom.
constexpr double kMoment = 0.05;       // seconds
constexpr double kLoudness = 0.1;      // -20 dB
constexpr double kHeadroom = 0.707;    // -3 dB
constexpr double kStepQuieter = 0.91;  // the step comes twice a second: 0.8 dB beneath the rest

constexpr double kC5 = 523.251;
constexpr double kD5 = 587.330;
constexpr double kE5 = 659.255;
constexpr double kG5 = 783.991;
constexpr double kA5 = 880.000;
constexpr double kC6 = 1046.502;

// Notes one after another, `gap` seconds apart; all ring on until `length`.
Wave figure(std::initializer_list<double> notes, double gap, double length) {
  Wave wave;
  double start = 0;
  for (const double note : notes) {
    mix(wave, start, bar(note, length - start));
    start += gap;
  }
  return wave;
}

Wave step() {
  Wave wave = ringing({{640, 1, 0.011}, {1490, 0.22, 0.006}}, 0.004, 0.08);
  mix(wave, 0, thump(Noise(3), 900, 0.006, 0.05), 0.5);
  return wave;
}

Wave landing() {
  Wave wave = ringing({{196, 1, 0.045}, {437, 0.7, 0.028}, {910, 0.12, 0.012}}, 0.004, 0.26);
  mix(wave, 0, thump(Noise(5), 330, 0.018, 0.12), 0.9);
  return wave;
}

// A tile of the puzzle meets its neighbour. Smaller tiles sound higher.
Wave tileKnock(double size, unsigned seed) {
  Wave wave = ringing(
      {{720 / size, 1, 0.016}, {1630 / size, 0.4, 0.010}, {2900 / size, 0.1, 0.005}}, 0.003, 0.1);
  mix(wave, 0, thump(Noise(seed), 1100 / size, 0.007, 0.05), 0.5);
  return wave;
}

// Wood rubs along wood, rougher and brighter as it gains speed, until the tile is stopped.
Wave slide() {
  constexpr double kWay = 0.2;  // seconds
  Wave wave(samples(kWay));
  Noise noise(11);
  BandPass body(2.5);
  BandPass grain(1.0);
  for (std::size_t i = 0; i < wave.size(); ++i) {
    const double part = timeOf(i) / kWay;
    const double speed = std::pow(std::sin(std::numbers::pi * std::pow(part, 0.5)), 2);
    const double rough = 1 + 2.5 * grain.pass(noise.sample(), 60);
    wave[i] = speed * rough * body.pass(noise.sample(), 520 + 520 * part);
  }
  mix(wave, 0.16, tileKnock(1.15, 13), 0.4);
  return wave;
}

// A handful of tiles stirred together: knocks at uneven times, dying away.
Wave rattle() {
  constexpr int kKnocks = 10;
  Noise chance(21);
  Wave wave;
  for (unsigned i = 0; i < kKnocks; ++i) {
    const double start = 0.045 * i + chance.between(0, 0.03);
    const double size = chance.between(0.8, 1.5);
    const double strength = chance.between(0.6, 1.0) * (1 - 0.05 * i);
    mix(wave, start, tileKnock(size, 30 + i), strength);
  }
  return wave;
}

Wave fanfare() {
  struct Call {
    double start;
    double length;
    std::vector<double> chord;
  };
  const Call calls[] = {
      {0.00, 0.16, {kC5}},
      {0.14, 0.16, {kC5}},
      {0.28, 0.30, {kE5, kC5}},
      {0.56, 0.16, {kG5, kE5}},
      {0.70, 0.90, {kE5, kG5, kC6, kC5 / 2}},
  };
  Wave wave;
  for (const Call& call : calls) {
    for (const double note : call.chord) {
      mix(wave, call.start, horn(note, call.length));
      mix(wave, call.start, bar(note, 0.9), 0.35);
    }
  }
  return wave;
}

// Ends in silence, at the common loudness.
Wave finished(Wave wave, double loudness) {
  const double length = timeOf(wave.size() - 1);
  for (std::size_t i = 0; i < wave.size(); ++i) wave[i] *= rise(length - timeOf(i), length / 4);
  const double gain = loudness / loudest(wave, kMoment);
  for (double& sample : wave) sample *= gain;
  return wave;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: make_waves FOLDER\n", stderr);
    return 2;
  }
  struct Sound {
    const char* file;
    Wave wave;
    double loudness = kLoudness;
  };
  const Sound sounds[] = {
      {"Tetris1.wav", figure({kC5, kD5, kE5, kG5, kA5, kC6}, 0.055, 0.58)},
      {"Tetris2.wav", landing()},
      {"Tetris3.wav", step(), kLoudness * kStepQuieter},
      {"Tetris4.wav", figure({kC5}, 0.1, 0.45)},
      {"Tetris5.wav", figure({kC5, kE5}, 0.1, 0.5)},
      {"Tetris6.wav", figure({kC5, kE5, kG5}, 0.1, 0.55)},
      {"Tetris7.wav", figure({kC5, kE5, kG5, kC6}, 0.09, 0.58)},
      {"Pucle1.wav", slide()},
      {"Pucle2.wav", fanfare()},
      {"Pucle3.wav", rattle()},
  };
  for (const Sound& sound : sounds) {
    const Wave wave = finished(sound.wave, sound.loudness);
    const std::string path = std::string(argv[1]) + '/' + sound.file;
    if (peak(wave) > kHeadroom) {
      std::fprintf(stderr, "make_waves: %s: its peaks are too high for its loudness\n", sound.file);
      return 1;
    }
    if (!writeFile(path, riff(wave))) {
      std::fprintf(stderr, "make_waves: %s: can't be written\n", path.c_str());
      return 1;
    }
  }
  return 0;
}
