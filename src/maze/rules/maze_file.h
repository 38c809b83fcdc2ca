#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

#include "maze/rules/maze.h"

namespace ratanka::maze {

// The maze's file beside the program, which a teacher may write anew with any text editor:
//
//   5,7          the number of rows, then of columns, apart by a comma or blanks or both
//   #######
//   #s..#.#      # is a wall, s or S the start, f or F the finish,
//   #.#...#      any other sign a place to walk
//   #.###f#
//   #######
//
// A column is one character of UTF-8; a byte that belongs to none, as in older encodings, is one
// too. A byte order mark at the beginning is passed over. Lines end in \n, \r\n or \r. What a line
// or the file lacks is walkable, what is too much is ignored. Of several starts the last one in
// reading order counts, and so it is with the finish.
inline constexpr std::string_view kMazeFile = "bludisko.txt";

// Rows and columns are from 1 to kMaxSize each.
inline constexpr int kMaxSize = 500;

// More than the greatest maze needs. A longer file is refused without a look at it, so that nobody
// has to read more than kMaxFileBytes + 1.
inline constexpr std::size_t kMaxFileBytes = std::size_t{1} << 20;

struct MazeError {
  enum class What { unreadable, tooLong, notTwoNumbers, wrongSize, noStart, noFinish };
  What what = What::unreadable;
  int line = 0;  // from 1; 0 where the file as a whole is meant
};

using MazeFile = std::variant<Maze, MazeError>;

// Never answers `unreadable`: that is for the one who opens the file.
MazeFile parseMaze(std::string_view text);

// What is wrong, in Slovak, for the one who can mend it.
std::string message(const MazeError& error);

}  // namespace ratanka::maze
