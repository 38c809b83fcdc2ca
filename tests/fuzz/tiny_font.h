#pragma once

#include <cmath>
#include <numbers>
#include <string>
#include <string_view>

#include "wave_file.h"

namespace ratanka {

inline std::string record(std::string_view name) {
  std::string bytes(name);
  bytes.resize(20);
  return bytes;
}

template <typename... Numbers>
std::string words(Numbers... numbers) {
  std::string bytes;
  (putNumber(bytes, static_cast<std::size_t>(numbers), 2), ...);
  return bytes;
}

inline std::string chunk(std::string_view tag, const std::string& data) {
  std::string bytes;
  putChunk(bytes, tag, data);
  return bytes;
}

inline std::string samplesChunk() {
  constexpr int kPeriod = 16;
  constexpr std::size_t kSilence = 46;  // points that have to follow a sample
  std::string samples;
  for (int i = 0; i < 4 * kPeriod; ++i) {
    const double wave = std::sin(2 * std::numbers::pi * i / kPeriod);
    samples += words(static_cast<std::int16_t>(std::lround(wave * 30000)));
  }
  return chunk("smpl", samples + std::string(2 * kSilence, '\0'));
}

// A sample: where it is, where it repeats, its rate, its pitch, and that it's for both ears.
inline std::string sampleHeaders() {
  std::string header = record("sine");
  for (const std::size_t number : {0U, 64U, 16U, 48U, 8000U}) putNumber(header, number, 4);
  return chunk("shdr", header + words(60, 0, 1) + record("EOS") + std::string(26, '\0'));
}

// The smallest sound font that has all that one can have: an instrument of one sample, played by
// one preset, with a modulator each.
inline std::string tinyFont() {
  const std::string modulator = words(0x0502, 48, 960, 0, 0);
  const std::string end(10, '\0');
  const std::string rest(12, '\0');
  const std::string presets = chunk("phdr", record("tiny") + words(0, 0, 0) + rest + record("EOP") +
                                                words(0, 0, 1) + rest) +
                              chunk("pbag", words(0, 0, 1, 1)) + chunk("pmod", modulator + end) +
                              chunk("pgen", words(41, 0, 0, 0));
  const std::string instruments =
      chunk("inst", record("tiny") + words(0) + record("EOI") + words(1)) +
      chunk("ibag", words(0, 0, 3, 1)) + chunk("imod", modulator + end) +
      chunk("igen", words(34, -1200, 54, 1, 53, 0, 0, 0));
  return chunk("RIFF", "sfbk" +
                           chunk("LIST", "INFO" + chunk("ifil", words(2, 1)) +
                                             chunk("isng", std::string("EMU8000\0", 8)) +
                                             chunk("INAM", std::string("tiny\0\0", 6))) +
                           chunk("LIST", "sdta" + samplesChunk()) +
                           chunk("LIST", "pdta" + presets + instruments + sampleHeaders()));
}

}  // namespace ratanka
