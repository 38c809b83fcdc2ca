#pragma once

#include <optional>
#include <string>

namespace ratanka {

// The start's advice on a display mode of that many pixels; none on a screen of the advised width.
// Its line break is a carriage return and a line feed.
std::optional<std::string> screenAdvice(int width, int height);

}  // namespace ratanka
