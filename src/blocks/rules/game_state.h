#pragma once

#include <array>
#include <cstdint>

namespace ratanka::blocks {

inline constexpr int kColumns = 10;
inline constexpr int kRows = 18;
inline constexpr int kKinds = 7;

// What the blocks fall into. Columns count from the left and rows from the top, both from 1. A cell
// is 0 while it is empty, else the kind of the piece that its block belongs to, 1 to kKinds. The
// falling piece stands in it too.
class Well {
 public:
  using Row = std::array<int, kColumns>;

  static constexpr bool has(int column, int row) {
    return 1 <= column && column <= kColumns && 1 <= row && row <= kRows;
  }

  int at(int column, int row) const { return rows_[row - 1][column - 1]; }
  int& at(int column, int row) { return rows_[row - 1][column - 1]; }
  const Row& row(int row) const { return rows_[row - 1]; }
  Row& row(int row) { return rows_[row - 1]; }

  friend bool operator==(const Well&, const Well&) = default;

 private:
  std::array<Row, kRows> rows_{};
};

// A game as it stands.
struct GameState {
  Well Board{};
  int Lines = 0;      // rows cleared
  int Piece = 0;      // kind of the falling piece; 0 before the first one
  int NextPiece = 0;  // kind of the one after it
  int X = 0;          // column of the falling piece's pivot
  int Y = 0;          // and its row
  int Rotation = 0;   // the falling piece's orientation, from 1
  std::int64_t Score = 0;
  int Level = 0;        // goes on rising past 9
  bool Active = false;  // from the start of a game to its end
};

}  // namespace ratanka::blocks
