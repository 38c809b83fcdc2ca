#pragma once

#include <string>
#include <string_view>

// A target whose inputs are files that the libraries of others read. Where these count no branches,
// nothing leads an input on: each is a whole file that has been damaged.
namespace ratanka {

// These two are the target's: a file as it should be, and how one is tried. The whole one has to be
// heard: the loudest sample is told, 1 being full scale.
std::string wholeFile();
double tryFile(std::string_view content);

}  // namespace ratanka
