#include "maze/rules/walk.h"

#include <cmath>
#include <utility>

namespace ratanka::maze {
namespace {

Cell neighbour(Cell cell, Direction direction) {
  switch (direction) {
    case Direction::left:
      return {cell.Row, cell.Col - 1};
    case Direction::up:
      return {cell.Row - 1, cell.Col};
    case Direction::right:
      return {cell.Row, cell.Col + 1};
    case Direction::down:
      return {cell.Row + 1, cell.Col};
  }
  return cell;
}

}  // namespace

Walk::Walk(Maze maze) : maze_(std::move(maze)), player_(maze_.Player), isBitten_(maze_.cells()) {
  MoveTo(player_);
}

bool Walk::step(Direction direction) {
  const Cell next = neighbour(player_, direction);
  if (isAtFinish() || !maze_.Map(next)) return false;
  MoveTo(next);
  return true;
}

void Walk::MoveTo(Cell cell) {
  if (const int left = maze_.index(player_); !isBitten_[left]) {
    isBitten_[left] = true;
    bites_.push_back(player_);
  }
  player_ = cell;
}

int elapsedSeconds(double StartTime, double now) {
  constexpr double kDay = 86400;
  // Far below what a clock tells apart, and far above what the subtraction loses.
  constexpr double kHair = 1e-6;
  const double seconds = now < StartTime ? now + kDay - StartTime : now - StartTime;
  return static_cast<int>(std::floor(seconds + kHair));
}

}  // namespace ratanka::maze
