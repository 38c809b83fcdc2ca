#pragma once

#include "blocks/rules/game_state.h"

namespace ratanka::blocks {

// Puts the falling piece to another place or orientation if all its cells there are on the board
// and empty or its own; else nothing changes. Returns whether it moved. Nothing nudges a piece off
// a wall, and row 1 is one to a turn.
bool tryMove(GameState& game, int X, int Y, int Rotation);

// Puts the new piece on the board where the game says that it is, whatever lies there. Returns
// whether its place was free.
bool putNewPiece(GameState& game);

}  // namespace ratanka::blocks
