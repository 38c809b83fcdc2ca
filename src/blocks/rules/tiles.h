#pragma once

#include <array>
#include <vector>

#include "platform/ports/units.h"

namespace ratanka::blocks {

// The tiles that the well and the previews are laid with, drawn so that they can be painted sharp
// at any pixel ratio.

inline constexpr int kTileSize = 16;  // pixels a side

inline constexpr Rgb kBackColour{192, 192, 192};  // of the empty cell and the preview

// A filled rectangle of one colour, in pixels of a tile, 0 to kTileSize. A painter scales its
// edges, not its size, so that neighbours go on meeting where a pixel isn't a whole one.
struct Stroke {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  Rgb colour{};
};

// A tile, to be painted in this order, one over another; the first stroke covers all of it. Kind 0
// is the empty cell, 1 to 7 are the pieces' kinds. In a coloured tile a black rim of a pixel goes
// around a bevel of a pixel, light on the top and left and dark on the bottom and right; in the
// middle lies a figure: rings of one pixel for kind 1, else a line that is lit as the bevel if it
// is raised, or the other way round if it is sunken.
std::vector<Stroke> tile(int kind);

inline constexpr PixelSize kPreviewSize{96, 64};

// Where the four tiles of the preview of a kind stand, by their upper left corners, in pixels of
// the preview: the piece in its first orientation, in the middle.
std::array<ScreenPoint, 4> previewTiles(int kind);

}  // namespace ratanka::blocks
