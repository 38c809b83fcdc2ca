#pragma once

#include <algorithm>
#include <cmath>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/midi_out.h"
#include "platform/random.h"
#include "platform/sound.h"
#include "platform/ticks.h"

// Services for a long day that passes in minutes: time goes by when it is told to, chance comes
// from a seed, and nothing that is asked for is kept.
namespace ratanka::soak {

class SteeredTicks : public Ticks {
 public:
  std::unique_ptr<Source> every(std::chrono::milliseconds interval, Precision,
                                std::function<void()> tick) override {
    const int id = ++lastId_;
    sources_[id] = {now_ + interval, interval, std::move(tick)};
    return std::make_unique<SteeredSource>(*this, id);
  }

  // Every tick that falls due, in the order of their times. A tick may let more time pass in a loop
  // of its own.
  void advance(std::chrono::milliseconds duration) {
    const std::chrono::milliseconds end = now_ + duration;
    while (true) {
      const auto next = std::min_element(
          sources_.begin(), sources_.end(),
          [](const auto& a, const auto& b) { return a.second.due < b.second.due; });
      if (next == sources_.end() || next->second.due > end) break;
      now_ = std::max(now_, next->second.due);
      next->second.due += next->second.interval;
      tick(next->first);
    }
    now_ = std::max(now_, end);
  }

  // The same of a computer that slept meanwhile: of each source one tick is left.
  void sleep(std::chrono::milliseconds duration) {
    now_ += duration;
    std::vector<int> due;
    for (auto& [id, source] : sources_) {
      if (source.due > now_) continue;
      source.due = now_ + source.interval;
      due.push_back(id);
    }
    for (const int id : due) tick(id);
  }

  std::chrono::milliseconds now() const { return now_; }
  std::size_t running() const { return sources_.size(); }

 private:
  struct Running {
    std::chrono::milliseconds due{};
    std::chrono::milliseconds interval{};
    std::function<void()> tick;
  };

  class SteeredSource : public Source {
   public:
    SteeredSource(SteeredTicks& ticks, int id) : ticks_(ticks), id_(id) {}
    ~SteeredSource() override { ticks_.sources_.erase(id_); }
    SteeredSource(const SteeredSource&) = delete;
    SteeredSource& operator=(const SteeredSource&) = delete;

   private:
    SteeredTicks& ticks_;
    int id_;
  };

  void tick(int id) {
    const auto source = sources_.find(id);
    if (source == sources_.end()) return;
    const std::function<void()> handler = source->second.tick;  // the source may end in its tick
    handler();
  }

  std::chrono::milliseconds now_{0};
  std::map<int, Running> sources_;
  int lastId_ = 0;
};

// The time of day of these ticks.
class SteeredClock : public Clock {
 public:
  SteeredClock(const SteeredTicks& ticks, double secondsAtStart)
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
  const SteeredTicks& ticks_;
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
