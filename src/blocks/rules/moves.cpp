#include "blocks/rules/moves.h"

#include <algorithm>

#include "blocks/rules/pieces.h"

namespace ratanka::blocks {
namespace {

bool isFree(const Well& well, const Cells& cells) {
  return std::ranges::all_of(cells, [&](const Cell& cell) {
    return Well::has(cell.column, cell.row) && well.at(cell.column, cell.row) == 0;
  });
}

void fill(Well& well, const Cells& cells, int value) {
  for (const Cell& cell : cells) well.at(cell.column, cell.row) = value;
}

}  // namespace

bool tryMove(GameState& game, int X, int Y, int Rotation) {
  const Cells from = cellsOf(game.Piece, game.Rotation, game.X, game.Y);
  const Cells to = cellsOf(game.Piece, Rotation, X, Y);
  fill(game.Board, from, 0);  // it doesn't stand in its own way
  const bool fits = isFree(game.Board, to);
  fill(game.Board, fits ? to : from, game.Piece);
  if (!fits) return false;
  game.X = X;
  game.Y = Y;
  game.Rotation = Rotation;
  return true;
}

bool putNewPiece(GameState& game) {
  const Cells cells = cellsOf(game.Piece, game.Rotation, game.X, game.Y);
  const bool wasFree = isFree(game.Board, cells);
  fill(game.Board, cells, game.Piece);
  return wasFree;
}

}  // namespace ratanka::blocks
