#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <numbers>
#include <random>

#include "wave_file.h"

// A resonance: it rings at its frequency and fades to 1/e in `decay` seconds.
struct Mode {
  double frequency;
  double share;
  double decay;
};

class Noise {
 public:
  explicit Noise(unsigned seed) : engine_(seed) {}

  double between(double low, double high) {
    const auto part = static_cast<double>(engine_()) / static_cast<double>(engine_.max());
    return low + (high - low) * part;
  }
  double sample() { return between(-1, 1); }

 private:
  std::minstd_rand engine_;
};

// Lets pass what is near a frequency that may move.
class BandPass {
 public:
  explicit BandPass(double sharpness) : damping_(1 / sharpness) {}

  double pass(double sample, double frequency) {
    const double step = 2 * std::sin(std::numbers::pi * frequency / kSampleRate);
    low_ += step * band_;
    const double high = sample - low_ - damping_ * band_;
    band_ += step * high;
    return damping_ * band_;
  }

 private:
  double damping_;
  double low_ = 0;
  double band_ = 0;
};

inline double timeOf(std::size_t sample) { return static_cast<double>(sample) / kSampleRate; }

// From 0 to 1 in `length` seconds, without a corner at either end.
inline double rise(double time, double length) {
  if (time >= length) return 1;
  return 0.5 - 0.5 * std::cos(std::numbers::pi * time / length);
}

inline void mix(Wave& wave, double start, const Wave& sound, double strength = 1) {
  const std::size_t first = samples(start);
  wave.resize(std::max(wave.size(), first + sound.size()));
  for (std::size_t i = 0; i < sound.size(); ++i) wave[first + i] += strength * sound[i];
}

inline Wave ringing(std::initializer_list<Mode> modes, double attack, double length) {
  Wave wave(samples(length));
  for (std::size_t i = 0; i < wave.size(); ++i) {
    const double time = timeOf(i);
    for (const Mode& mode : modes) {
      wave[i] += mode.share * std::exp(-time / mode.decay) *
                 std::sin(2 * std::numbers::pi * mode.frequency * time);
    }
    wave[i] *= rise(time, attack);
  }
  return wave;
}

// The air and the felt of a blow: a breath of noise around a frequency.
inline Wave thump(Noise noise, double frequency, double decay, double length) {
  Wave wave(samples(length));
  BandPass filter(1.2);
  for (std::size_t i = 0; i < wave.size(); ++i) {
    const double time = timeOf(i);
    wave[i] = rise(time, 0.003) * std::exp(-time / decay) * filter.pass(noise.sample(), frequency);
  }
  return wave;
}

// A bar tuned as a marimba's are, its overtones far above the note and soon gone.
inline Wave bar(double frequency, double length) {
  Wave wave = ringing(
      {{frequency, 1, 0.13}, {3.93 * frequency, 0.16, 0.045}, {9.2 * frequency, 0.04, 0.015}},
      0.004, length);
  mix(wave, 0, thump(Noise(7), 700, 0.008, 0.05), 0.25);
  return wave;
}

// A little wind band: few overtones, which come later than the note itself and go sooner.
inline Wave horn(double frequency, double length) {
  Wave wave(samples(length));
  for (std::size_t i = 0; i < wave.size(); ++i) {
    const double time = timeOf(i);
    for (int k = 1; k <= 6; ++k) {
      const double warmth = std::exp(-0.75 * (k - 1)) * rise(time, 0.015 + 0.008 * k);
      wave[i] += warmth * std::exp(-time * (0.9 + 0.5 * k)) *
                 std::sin(2 * std::numbers::pi * k * frequency * time);
    }
    wave[i] *= rise(length - time, 0.06);
  }
  return wave;
}
