#include "blocks/rules/tiles.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "blocks/rules/pieces.h"
#include "platform/ports/colours.h"

namespace ratanka::blocks {
namespace {

constexpr int kLast = kTileSize - 1;

struct Pixel {
  int x;
  int y;
};

// The upper left quarters of the figures' lines; the other quarters mirror them.
constexpr Pixel kDiamond[] = {{3, 7}, {4, 6}, {5, 5}, {6, 4}, {7, 3}};
constexpr Pixel kOctagon[] = {{3, 7}, {3, 6}, {4, 5}, {5, 4}, {6, 3}, {7, 3}};
constexpr Pixel kSquare[] = {{4, 7}, {4, 6}, {4, 5}, {4, 4}, {5, 4}, {6, 4}, {7, 4}};

struct Design {
  std::span<const Pixel> figure;
  Rgb main;
  Rgb light;
  Rgb dark;
  bool isRaised;
};

constexpr Design kDesigns[] = {
    {{}, {213, 43, 43}, {234, 149, 149}, {159, 32, 32}, true},  // its figure is kRings
    {kDiamond, {213, 43, 43}, {234, 149, 149}, {159, 32, 32}, true},
    {kOctagon, {213, 128, 43}, {234, 191, 149}, {159, 96, 32}, true},
    {kSquare, {213, 213, 43}, {234, 234, 149}, {155, 155, 36}, true},
    {kOctagon, {43, 213, 43}, {149, 234, 149}, {32, 159, 32}, false},
    {kDiamond, {43, 43, 213}, {149, 149, 234}, {32, 32, 159}, false},
    {kSquare, {170, 43, 213}, {213, 149, 234}, {128, 32, 159}, false},
};

constexpr int kRingsKind = 1;
constexpr Rgb kRings[] = {{213, 43, 43}, {213, 128, 43}, {213, 213, 43},
                          {43, 213, 43}, {43, 43, 213},  {170, 43, 213}};  // inward

// A square that leaves so many pixels free on each side.
Stroke square(int margin, const Rgb& colour) {
  const int side = kTileSize - 2 * margin;
  return {margin, margin, side, side, colour};
}

// Black, then the bevel's dark edge and over it the light one, then the middle.
std::vector<Stroke> bevelled(const Design& design) {
  return {square(0, kBlack),
          square(1, design.dark),
          {1, 1, kTileSize - 3, kTileSize - 3, design.light},
          square(2, design.main)};
}

// The light comes from the upper left. The diagonal between light and dark lies in the shade, as
// the corners of the bevel do.
void addFigure(std::vector<Stroke>& strokes, const Design& design) {
  const auto add = [&](int x, int y) {
    const bool isFacingLight = x + y < kLast;
    const Rgb& colour = isFacingLight == design.isRaised ? design.light : design.dark;
    strokes.push_back({x, y, 1, 1, colour});
  };
  for (const Pixel& pixel : design.figure) {
    add(pixel.x, pixel.y);
    add(kLast - pixel.x, pixel.y);
    add(pixel.x, kLast - pixel.y);
    add(kLast - pixel.x, kLast - pixel.y);
  }
}

void addRings(std::vector<Stroke>& strokes) {
  int margin = 2;
  for (const Rgb& colour : kRings) strokes.push_back(square(margin++, colour));
}

}  // namespace

std::vector<Stroke> tile(int kind) {
  if (kind == 0) return {square(0, kBackColour)};
  const Design& design = kDesigns[kind - 1];
  std::vector<Stroke> strokes = bevelled(design);
  if (kind == kRingsKind) {
    addRings(strokes);
  } else {
    addFigure(strokes, design);
  }
  return strokes;
}

std::array<ScreenPoint, 4> previewTiles(int kind) {
  const Cells cells = cellsOf(kind, 1, 0, 0);
  const auto [left, right] = std::ranges::minmax(cells, {}, &Cell::column);
  const auto [top, bottom] = std::ranges::minmax(cells, {}, &Cell::row);
  const int x = centred(kPreviewSize.width, (right.column - left.column + 1) * kTileSize);
  const int y = centred(kPreviewSize.height, (bottom.row - top.row + 1) * kTileSize);
  std::array<ScreenPoint, 4> tiles;
  std::ranges::transform(cells, tiles.begin(),
                         [&, firstColumn = left.column, firstRow = top.row](const Cell& cell) {
                           return ScreenPoint{x + (cell.column - firstColumn) * kTileSize,
                                              y + (cell.row - firstRow) * kTileSize};
                         });
  return tiles;
}

}  // namespace ratanka::blocks
