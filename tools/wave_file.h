#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// A mono sound, sample by sample, full scale 1.
using Wave = std::vector<double>;

constexpr int kSampleRate = 44100;

inline std::size_t samples(double seconds) {
  return static_cast<std::size_t>(std::lround(seconds * kSampleRate));
}

inline double peak(const Wave& wave) {
  double most = 0;
  for (const double sample : wave) most = std::max(most, std::abs(sample));
  return most;
}

// The root mean square of the loudest stretch of that many seconds. What a short sound lacks of it
// counts as silence.
inline double loudest(const Wave& wave, double seconds) {
  const std::size_t window = samples(seconds);
  double sum = 0;
  double most = 0;
  for (std::size_t i = 0; i < wave.size(); ++i) {
    sum += wave[i] * wave[i];
    if (i >= window) sum -= wave[i - window] * wave[i - window];
    most = std::max(most, sum);
  }
  return std::sqrt(most / static_cast<double>(window));
}

inline void putNumber(std::string& out, std::size_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out += static_cast<char>(value >> 8 * i & 0xff);
}

inline void putChunk(std::string& out, std::string_view tag, std::string_view data) {
  out += tag;
  putNumber(out, data.size(), 4);
  out += data;
}

// The wave as a RIFF file of 16 bits a sample.
inline std::string riff(const Wave& wave) {
  const std::size_t sampleSize = 2;
  std::string format;
  putNumber(format, 1, 2);  // plain samples
  putNumber(format, 1, 2);  // mono
  putNumber(format, kSampleRate, 4);
  putNumber(format, kSampleRate * sampleSize, 4);
  putNumber(format, sampleSize, 2);
  putNumber(format, 8 * sampleSize, 2);
  std::string data;
  for (const double sample : wave) {
    const auto level =
        static_cast<std::int16_t>(std::lround(std::clamp(sample, -1.0, 1.0) * 32767));
    putNumber(data, static_cast<std::uint16_t>(level), 2);
  }
  std::string body = "WAVE";
  putChunk(body, "fmt ", format);
  putChunk(body, "data", data);
  std::string out;
  putChunk(out, "RIFF", body);
  return out;
}
