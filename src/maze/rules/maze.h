#pragma once

#include <vector>

namespace ratanka::maze {

// A place in a maze. Rows count from the top, columns from the left, both from 1.
struct Cell {
  int Row = 0;
  int Col = 0;
  friend bool operator==(const Cell&, const Cell&) = default;
};

// A maze as it stands in its file: where one can walk, where the walk starts and what is its goal.
class Maze {
 public:
  // All cells are walkable at first. Rows and Cols are 1 or more.
  Maze(int Rows, int Cols);

  int Rows() const { return rows_; }
  int Cols() const { return cols_; }
  int cells() const { return rows_ * cols_; }

  // Whether the figure can walk there: not on a wall, and nowhere off the map.
  bool Map(Cell cell) const { return isOnMap(cell) && map_[index(cell)]; }
  bool isOnMap(Cell cell) const;

  // Where a cell of the map stands in reading order, from 0 to below cells().
  int index(Cell cell) const;

  void buildWall(Cell cell) { map_[index(cell)] = false; }

  Cell Player;  // where the figure starts
  Cell Finish;

 private:
  int rows_;
  int cols_;
  std::vector<bool> map_;
};

}  // namespace ratanka::maze
