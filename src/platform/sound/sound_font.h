#pragma once

#include <string>

namespace ratanka {

// Whether a file is a sound font in which everything that is named is there: the synthesiser takes
// a font's word for it and reads, and writes, where a damaged one leads it. Its sounds may be wrong
// all the same.
bool isSoundFont(const std::string& path);

}  // namespace ratanka
