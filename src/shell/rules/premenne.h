#pragma once

#include <cstdint>
#include <map>
#include <optional>

#include "platform/ports/form_name.h"

namespace ratanka {

// What outlives a single form for one run of the program.
struct Premenné {
  // The result of each sheet's last visit that had a right answer, above 0 and at most 100, whole
  // for Hádanka; none before. PercentoMalá is Percento[names::Malá]. Nothing clears one.
  std::map<FormName, double> Percento{};

  // Which of its sets the division sheet shows next, 0 to 3.
  std::int16_t DelenieKolo = 0;

  // Size of the desktop at the start, in pixels.
  std::optional<int> ŠírkaObrazovky{};
  std::optional<int> VýškaObrazovky{};
};

}  // namespace ratanka
