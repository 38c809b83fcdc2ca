#pragma once

#include <string>
#include <string_view>

// What the sound libraries are given to read. They take many kinds of files, and their word for
// each size and rate; a damaged file could cost them all the memory there is.
namespace ratanka {

// A file's bytes; none where it isn't there, is no file of its own or is longer than sounds of
// ours.
std::string readSoundFile(const std::string& path);

// The same wave in a file of its samples alone. Empty unless these are plain, of 8 or 16 bits, for
// one or two sides, at 8000 to 48000 Hz, and all there.
std::string plainWave(std::string_view file);

}  // namespace ratanka
