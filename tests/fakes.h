#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/forms/desktop.h"
#include "platform/ports/clock.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/midi_out.h"
#include "platform/ports/random.h"
#include "platform/ports/settings_store.h"
#include "platform/ports/sound.h"
#include "platform/ports/ticks.h"

// Doubles of the services, for tests to steer; each records what it was asked for.
namespace ratanka {

// Chance that gives the told numbers, each from 0 to below 1; 0 after the last.
class FakeRandom : public Random {
 public:
  double next() override {
    ++drawn;
    if (numbers.empty()) return 0;
    const double result = numbers.front();
    numbers.pop_front();
    return result;
  }

  void reseedFromClock() override { ++reseeded; }

  // The next draw that is asked for as one of n numbers gives `number`.
  void draw(int number, int n) { numbers.push_back((number + 0.5) / n); }

  std::deque<double> numbers;
  int drawn = 0;
  int reseeded = 0;
};

// Time that stands still until it is moved on.
class FakeTicks : public Ticks {
 public:
  std::unique_ptr<Source> every(std::chrono::milliseconds interval, Precision precision,
                                std::function<void()> tick) override {
    const int id = ++lastId_;
    sources_[id] = {now_ + interval, interval, precision, std::move(tick)};
    return std::make_unique<FakeSource>(*this, id);
  }

  // Runs all ticks that fall due, in the order of their times. A tick may let more time pass in a
  // loop of its own.
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
  // Of all of them together.
  std::int64_t ticksAMinute() const {
    std::int64_t sum = 0;
    for (const auto& [id, one] : sources_) sum += std::chrono::minutes(1) / one.interval;
    return sum;
  }
  // Those that keep their interval to the millisecond.
  auto runningFine() const {
    return std::ranges::count_if(
        sources_, [](const auto& one) { return one.second.precision == Precision::fine; });
  }

 private:
  struct Running {
    std::chrono::milliseconds due{};
    std::chrono::milliseconds interval{};
    Precision precision = Precision::any;
    std::function<void()> tick;
  };

  class FakeSource : public Source {
   public:
    FakeSource(FakeTicks& ticks, int id) : ticks_(ticks), id_(id) {}
    ~FakeSource() override { ticks_.sources_.erase(id_); }
    FakeSource(const FakeSource&) = delete;
    FakeSource& operator=(const FakeSource&) = delete;

   private:
    FakeTicks& ticks_;
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

// Boxes that answer themselves. One that the test didn't expect is a failure.
class FakeDialogs : public Dialogs {
 public:
  ~FakeDialogs() override { EXPECT_TRUE(expected_.empty()) << "a box didn't come up"; }

  // The next box has this title; `whileOpen` happens before it is answered.
  void expect(const std::string& title, std::function<void()> whileOpen = {},
              Answer answer = Answer::ok) {
    expected_.push_back({title, std::move(whileOpen), answer});
  }

  Answer message(const MessageBox& box) override {
    shown.push_back(box);
    const std::optional<Expected> expected = next(box.title);
    if (expected) return expected->answer;
    return box.buttons == MessageBox::Buttons::yesNo ? Answer::no : Answer::ok;
  }

  // The same of an input box, which is answered by this text, or cancelled.
  void expectInput(const std::string& title, std::optional<std::string> typed,
                   std::function<void()> whileOpen = {}) {
    expected_.push_back({title, std::move(whileOpen), Answer::ok, std::move(typed)});
  }

  std::optional<std::string> input(const std::string& title, const std::string& prompt,
                                   const std::string& preset) override {
    asked.push_back({title, prompt, preset});
    const std::optional<Expected> expected = next(title);
    return expected ? expected->typed : std::nullopt;
  }

  struct Asked {
    std::string title, prompt, preset;
  };

  std::vector<MessageBox> shown;
  std::vector<Asked> asked;

 private:
  struct Expected {
    std::string title;
    std::function<void()> whileOpen;
    Answer answer;
    std::optional<std::string> typed{};
  };

  // What was told of the box that comes up now; it happens meanwhile.
  std::optional<Expected> next(const std::string& title) {
    if (expected_.empty() || expected_.front().title != title) {
      ADD_FAILURE() << "unexpected box: " << title;
      return std::nullopt;
    }
    Expected expected = expected_.front();
    expected_.pop_front();
    if (expected.whileOpen) expected.whileOpen();
    return expected;
  }

  std::deque<Expected> expected_;
};

// A machine with some MIDI devices, which writes down what it is asked for, messages in hex.
class FakeMidi : public MidiOut {
 public:
  int midiOutGetNumDevs() override { return numDevices; }
  std::string midiOutGetDevCapsA(int device) override { return "Zvuk " + std::to_string(device); }
  int midiOutOpen(int device) override {
    calls += "open " + std::to_string(device) + ' ';
    return result;
  }
  void midiOutShortMsg(std::uint32_t message) override {
    char text[16];
    std::snprintf(text, sizeof text, "%06X ", static_cast<unsigned>(message));
    calls += text;
  }
  void midiOutClose() override { calls += "close "; }

  int numDevices = 2;
  int result = 0;
  std::string calls;
};

// Writes down what it is to play: waves by their files, "open", "play" and "close" of the music.
class FakeSound : public Sound {
 public:
  void PlayWave(std::string_view file) override { played.emplace_back(file); }
  void openMusic(std::string_view file) override { played.push_back("open " + std::string(file)); }
  void playMusic() override { played.emplace_back("play"); }
  void closeMusic() override { played.emplace_back("close"); }
  std::vector<std::string> played;
};

class FakeClock : public Clock {
 public:
  TimeOfDay timeOfDay() const override { return now; }
  double secondsSinceMidnight() const override {
    return (now.hour * 60 + now.minute) * 60 + now.second;
  }
  TimeOfDay now;
};

// Settings in memory, each by its "application/section/key".
class FakeSettings : public SettingsStore {
 public:
  std::string read(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view fallback) const override {
    const auto found = values.find(path(application, section, key));
    return found == values.end() ? std::string(fallback) : found->second;
  }
  void write(std::string_view application, std::string_view section, std::string_view key,
             std::string_view value) override {
    values[path(application, section, key)] = value;
  }

  std::map<std::string, std::string> values;

 private:
  static std::string path(std::string_view application, std::string_view section,
                          std::string_view key) {
    return std::string(application).append("/").append(section).append("/").append(key);
  }
};

class FakeDesktop : public Desktop {
 public:
  PixelSize size() const override { return mode; }
  PixelSize mode{1024, 768};
};

}  // namespace ratanka
