#pragma once

#include <cstdint>
#include <optional>

namespace ratanka {

// What outlives a single form for one run of the program.
struct Premenné {
  // The result of each sheet's last visit that had a right answer, above 0 and at most 100; 0 where
  // there is none yet. Nothing clears one.
  double PercentoDelenie = 0;
  double PercentoMalá = 0;
  double PercentoNásobilka = 0;
  double PercentoVeľká = 0;
  double PercentoVeľkéčísla = 0;
  double PercentoZátvorky = 0;
  double PercentoHádanka = 0;  // whole

  // Which of its sets the division sheet shows next, 0 to 3.
  std::int16_t DelenieKolo = 0;

  // Size of the desktop at the start, in pixels.
  std::optional<int> ŠírkaObrazovky{};
  std::optional<int> VýškaObrazovky{};
};

}  // namespace ratanka
