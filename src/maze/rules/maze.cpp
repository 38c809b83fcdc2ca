#include "maze/rules/maze.h"

namespace ratanka::maze {

Maze::Maze(int Rows, int Cols) : rows_(Rows), cols_(Cols), map_(cells(), true) {}

bool Maze::isOnMap(Cell cell) const {
  return 1 <= cell.Row && cell.Row <= rows_ && 1 <= cell.Col && cell.Col <= cols_;
}

int Maze::index(Cell cell) const { return (cell.Row - 1) * cols_ + cell.Col - 1; }

}  // namespace ratanka::maze
