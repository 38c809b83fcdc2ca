#pragma once

#include <vector>

#include "maze/rules/maze.h"

namespace ratanka::maze {

enum class Direction { left, up, right, down };

// One round: the figure walks from the start, a cell a step, until it is at the finish. A new round
// is a new walk.
class Walk {
 public:
  // The maze's start is on its map.
  explicit Walk(Maze maze);

  // Whether the figure moved. A wall and the map's edge stop it, and at the finish the round is
  // over.
  bool step(Direction direction);

  const Maze& maze() const { return maze_; }
  Cell Player() const { return player_; }
  bool isAtFinish() const { return player_ == maze_.Finish; }

  // The cells that the figure took its white bite from, each of them once, in the order of the
  // first bite. It bites where it leaves, and once at the start, where it is put down.
  const std::vector<Cell>& bites() const { return bites_; }

 private:
  void MoveTo(Cell cell);

  Maze maze_;
  Cell player_;
  std::vector<Cell> bites_;
  std::vector<bool> isBitten_;
};

// Whole seconds from one reading of the clock to a later one, rounded down. Both are seconds since
// midnight, from 0 to below 86400; if the later one is less, a midnight lies between them.
int elapsedSeconds(double StartTime, double now);

}  // namespace ratanka::maze
