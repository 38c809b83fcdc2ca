#pragma once

class QPainter;

namespace ratanka::blocks {

// The pictures of the game: tiles and previews, painted anew at every size, so that they are sharp
// at every pixel ratio.

// The tile of a kind (0 is the empty cell) with its upper left corner at that place, in logical
// pixels of the painter.
void paintTile(QPainter& painter, int kind, int left, int top);

// The preview of a piece, kinds 1 to 7, with its upper left corner there. 0 is an empty one.
void paintNext(QPainter& painter, int kind, int left, int top);

}  // namespace ratanka::blocks
