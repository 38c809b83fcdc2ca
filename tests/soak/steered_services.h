#pragma once

#include <cmath>
#include <random>
#include <string>

#include "fakes.h"
#include "platform/ports/clock.h"
#include "platform/ports/midi_out.h"
#include "platform/ports/random.h"
#include "platform/ports/sound.h"

// Services for a long day that passes in minutes: time goes by when it is told to, chance comes
// from a seed, and nothing that is asked for is kept.
namespace ratanka::soak {

// The time of day of these ticks.
class SteeredClock : public Clock {
 public:
  SteeredClock(const FakeTicks& ticks, double secondsAtStart)
      : ticks_(ticks), secondsAtStart_(secondsAtStart) {}

  TimeOfDay timeOfDay() const override {
    const int seconds = static_cast<int>(secondsSinceMidnight());
    return {seconds / 3600, seconds / 60 % 60, seconds % 60};
  }
  double secondsSinceMidnight() const override {
    constexpr double kDay = 24 * 3600;
    return std::fmod(secondsAtStart_ + static_cast<double>(ticks_.now().count()) / 1000, kDay);
  }

 private:
  const FakeTicks& ticks_;
  const double secondsAtStart_;
};

class SeededRandom : public Random {
 public:
  explicit SeededRandom(std::uint64_t seed) : engine_(seed) {}
  double next() override { return std::generate_canonical<double, 53>(engine_) * 0.999999; }
  void reseedFromClock() override { engine_.seed(engine_()); }

 private:
  std::mt19937_64 engine_;
};

// Mostly up and down in turn: a puzzle that is shuffled by it can be solved by accident.
class EasyRandom : public Random {
 public:
  explicit EasyRandom(std::uint64_t seed) : random_(seed) {}
  double next() override {
    isUp_ = !isUp_;
    if (random_.next() < 0.01) return random_.next();
    return isUp_ ? 0.6 : 0.8;
  }
  void reseedFromClock() override { random_.reseedFromClock(); }

 private:
  SeededRandom random_;
  bool isUp_ = false;
};

class QuietSound : public Sound {
 public:
  void PlayWave(std::string_view) override {}
  void openMusic(std::string_view) override {}
  void playMusic() override {}
  void closeMusic() override {}
};

// Every fifth device doesn't open.
class QuietMidi : public MidiOut {
 public:
  explicit QuietMidi(int devices) : devices_(devices) {}
  int midiOutGetNumDevs() override { return devices_; }
  std::string midiOutGetDevCapsA(int device) override { return "Zvuk & " + std::to_string(device); }
  int midiOutOpen(int) override { return ++opened_ % 5 == 0 ? 1 : 0; }
  void midiOutShortMsg(std::uint32_t) override {}
  void midiOutClose() override {}

 private:
  int devices_;
  int opened_ = 0;
};

}  // namespace ratanka::soak
