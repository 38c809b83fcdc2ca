#pragma once

namespace ratanka::soccer {

// Where a thing lies on the form, in twips from its upper left corner; y grows downwards.
struct Piece {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
  bool operator==(const Piece&) const = default;
};

// The direction from the centre of one thing to that of another, in sixteenths of the circle
// clockwise from 1, straight up: 5 is right, 9 down, 13 left; 0 where the centres coincide. The odd
// points stand for exactly eight directions, the even ones for all that lies between two of them.
//
// Below the first thing left and right are told by the `Left` values, elsewhere by the centres;
// with two sizes on a pitch that decides which points can occur at all.
int GetDirection(const Piece& from, const Piece& to);

// The horizontal band of the pitch in which a thing stands: 1 (upper), 2 (the goals') or 3.
int Section(const Piece& playerOrBall);

// How far the two centres are apart, each first rounded to whole twips, halves to the even one.
float GetDistance(const Piece& one, const Piece& other);

}  // namespace ratanka::soccer
