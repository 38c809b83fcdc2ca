#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <numbers>
#include <thread>
#include <utility>
#include <vector>

// What a sound device was told to play, and an ear for it.
namespace ratanka {

constexpr double kRate = 44100;  // Hz

inline double decibels(double amplitude) { return 20 * std::log10(amplitude + 1e-9); }
inline double frequency(int note) { return 440 * std::pow(2, (note - 69) / 12.0); }

struct Recording {
  std::vector<double> samples;  // of both sides together, 1 is full scale
  double peak = 0;              // of either side

  double length() const { return static_cast<double>(samples.size()) / kRate; }

  // Root mean square of the loudest 50 ms from `start` on, in dB of full scale.
  double loudest(double start = 0) const {
    constexpr std::size_t kMoment = 2205;
    double most = 0;
    for (std::size_t i = place(start); i + kMoment <= samples.size(); i += kMoment / 10) {
      double power = 0;
      for (std::size_t j = i; j < i + kMoment; ++j) power += samples[j] * samples[j];
      most = std::max(most, power / kMoment);
    }
    return decibels(std::sqrt(most));
  }

  // Where the first sound from `start` on begins; the recording's end if there is none.
  double onset(double start = 0) const {
    const auto first =
        std::find_if(samples.begin() + static_cast<std::ptrdiff_t>(place(start)), samples.end(),
                     [](double one) { return std::abs(one) > 0.001; });
    return static_cast<double>(first - samples.begin()) / kRate;
  }

  // Where the first silence of 0.2 s from `start` on begins; the recording's end if there is none.
  double pause(double start) const {
    while (start < length() && onset(start) < start + 0.2) start += 0.01;
    return start;
  }

  // How much of one frequency sounds in a span of time (s), as an amplitude.
  double strength(double hertz, double start, double span) const {
    const std::size_t first = place(start);
    const std::size_t count = place(start + span) - first;
    const double turn = 2 * std::numbers::pi / static_cast<double>(std::max<std::size_t>(count, 1));
    double real = 0;
    double imaginary = 0;
    for (std::size_t i = 0; i < count; ++i) {
      const double x = static_cast<double>(i);
      const double sample = samples[first + i] * (1 - std::cos(turn * x));
      const double angle = 2 * std::numbers::pi * hertz * x / kRate;
      real += sample * std::cos(angle);
      imaginary += sample * std::sin(angle);
    }
    return 2 * std::hypot(real, imaginary) / static_cast<double>(std::max<std::size_t>(count, 1));
  }

  // The strongest frequency from `low` up to `high` hertz.
  double pitch(double low, double high, double start, double span) const {
    double best = low;
    double most = 0;
    for (double hertz = low; hertz <= high; hertz *= 1.002) {
      const double now = strength(hertz, start, span);
      if (now > most) {
        most = now;
        best = hertz;
      }
    }
    return best;
  }

 private:
  std::size_t place(double seconds) const {
    return std::min(samples.size(), static_cast<std::size_t>(std::max(0.0, seconds) * kRate));
  }
};

template <typename Sample>
Recording recordingOf(const QByteArray& bytes, double fullScale) {
  const auto size = static_cast<qsizetype>(sizeof(Sample));
  std::vector<Sample> sides;
  for (qsizetype i = 0; i + size <= bytes.size(); i += size) {
    std::memcpy(&sides.emplace_back(), bytes.constData() + i, sizeof(Sample));
  }
  Recording recording;
  for (std::size_t i = 0; i + 1 < sides.size(); i += 2) {
    const double left = sides[i] / fullScale;
    const double right = sides[i + 1] / fullScale;
    recording.samples.push_back((left + right) / 2);
    recording.peak = std::max({recording.peak, std::abs(left), std::abs(right)});
  }
  return recording;
}

// A sound device that writes what it plays into a file. Time runs five times as fast for it.
class RecordingTest : public testing::Test {
 protected:
  // `frame` is the size of what it plays at one moment, in bytes.
  explicit RecordingTest(int frame) : frame_(frame) {
    setSpeed(5);
    qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(file_));
  }

  // From the next opening of the device on.
  static void setSpeed(int factor) {
    qputenv("SDL_DISKAUDIODELAY", QByteArray::number(11 / factor));
  }

  QByteArray recorded() const {
    QFile recording(file_);
    return recording.open(QIODevice::ReadOnly) ? recording.readAll() : QByteArray();
  }

  void eraseRecording() const { QFile::remove(file_); }

  // Waits until the device has played that much more.
  void hear(double seconds) const {
    const qint64 enough = QFile(file_).size() + static_cast<qint64>(seconds * kRate) * frame_;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (QFile(file_).size() < enough) {
      ASSERT_LT(std::chrono::steady_clock::now(), end) << "the device doesn't play";
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  }

  static std::ptrdiff_t entries(const char* folder) {
    return std::distance(std::filesystem::directory_iterator(folder), {});
  }
  // What this process has open and running.
  static std::pair<std::ptrdiff_t, std::ptrdiff_t> belongings() {
    return {entries("/proc/self/fd"), entries("/proc/self/task")};
  }

  const QTemporaryDir folder_;

 private:
  const int frame_;
  const QString file_ = folder_.filePath("recording");
};

}  // namespace ratanka
