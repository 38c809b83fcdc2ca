#include "maze/rules/maze.h"

namespace ratanka::maze {

Maze::Maze(int Rows, int Cols)
    : rows_(Rows),
      cols_(Cols),
      map_(static_cast<std::size_t>(Rows) * static_cast<std::size_t>(Cols), true) {}

bool Maze::isOnMap(Cell cell) const {
  return 1 <= cell.Row && cell.Row <= rows_ && 1 <= cell.Col && cell.Col <= cols_;
}

std::size_t Maze::index(Cell cell) const {
  return static_cast<std::size_t>(cell.Row - 1) * static_cast<std::size_t>(cols_) +
         static_cast<std::size_t>(cell.Col - 1);
}

}  // namespace ratanka::maze
