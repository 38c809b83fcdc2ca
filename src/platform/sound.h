#pragma once

#include <string_view>

namespace ratanka {

// Waves from the program's own data files, each named by its file alone. Every call returns at
// once; what is missing or can't be played is silent.
class Sound {
 public:
  virtual ~Sound() = default;
  virtual void PlayWave(std::string_view file) = 0;
};

}  // namespace ratanka
