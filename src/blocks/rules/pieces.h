#pragma once

#include <array>

namespace ratanka::blocks {

struct Cell {
  int column = 0;
  int row = 0;
};
using Cells = std::array<Cell, 4>;

// How many orientations a kind of piece has, 1 to 4. Kinds are from 1 to 7:
//
//   1 bar   2 hook   3 hook   4 step   5 step   6 tee   7 square
//   ####    #          #      ##        ##       #      ##
//           ###      ###       ##      ##       ###     ##
int orientations(int kind);

// The orientation that a turn leads to: a quarter clockwise, and after the last one the first.
int nextRotation(int kind, int Rotation);

// The cells of a piece whose pivot stands in that column and row; rows grow downwards. Rotation is
// from 1 to orientations(kind). The cells may lie off the board.
Cells cellsOf(int kind, int Rotation, int X, int Y);

}  // namespace ratanka::blocks
