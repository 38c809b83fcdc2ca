// A teacher may write anything into the maze's file. Whatever it is, reading it ends with a clear
// message or with a maze that can be walked: the figure stands on its map from the first step to
// the last.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "fuzz/law.h"
#include "maze/rules/maze_file.h"
#include "maze/rules/walk.h"

namespace {

using namespace ratanka::maze;
using ratanka::hold;

void walkThrough(const Maze& maze, std::string_view steps) {
  Walk walk(maze);
  for (const char step : steps) {
    const Cell before = walk.Player();
    const bool wasAtFinish = walk.isAtFinish();
    const bool moved = walk.step(static_cast<Direction>(step & 3));
    hold(maze.Map(walk.Player()));
    hold(moved == (walk.Player() != before));
    hold(!(moved && wasAtFinish));
  }
  hold(!walk.bites().empty() && std::ssize(walk.bites()) <= maze.cells());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const MazeFile file = parseMaze(text);
  if (const MazeError* error = std::get_if<MazeError>(&file)) {
    hold(message(*error).find(kMazeFile) != std::string::npos);
    hold(error->line == 0 || error->line == 1);
    return 0;
  }

  const Maze& maze = std::get<Maze>(file);
  hold(1 <= maze.Rows() && maze.Rows() <= kMaxSize && 1 <= maze.Cols() && maze.Cols() <= kMaxSize);
  hold(maze.Map(maze.Player) && maze.Map(maze.Finish) && maze.Player != maze.Finish);
  walkThrough(maze, text);
  return 0;
}
