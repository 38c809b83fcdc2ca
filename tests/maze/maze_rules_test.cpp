#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <iterator>
#include <string>
#include <variant>
#include <vector>

#include "maze/rules/maze_file.h"
#include "maze/rules/walk.h"

namespace ratanka::maze {
namespace {

using What = MazeError::What;
using enum Direction;

constexpr std::array kDirections = {left, up, right, down};

Direction opposite(Direction direction) {
  return kDirections[(static_cast<std::size_t>(direction) + 2) % kDirections.size()];
}

// A maze as one reads it: S and F where they count, # and . elsewhere.
std::string drawn(const MazeFile& file) {
  const Maze* maze = std::get_if<Maze>(&file);
  if (!maze) return "error: " + message(std::get<MazeError>(file));
  std::string text;
  for (int Row = 1; Row <= maze->Rows(); ++Row) {
    for (int Col = 1; Col <= maze->Cols(); ++Col) {
      const Cell cell{Row, Col};
      const char open = cell == maze->Player ? 'S' : cell == maze->Finish ? 'F' : '.';
      text += maze->Map(cell) ? open : '#';
    }
    text += '/';
  }
  return text;
}

std::string read(const std::string& text) { return drawn(parseMaze(text)); }

Maze mazeOf(const std::string& text) { return std::get<Maze>(parseMaze(text)); }

TEST(MazeFileTest, TwoNumbersMayBeApartByACommaOrBlanksOrBoth) {
  for (const char* first : {"2,3", "2 3", "2\t3", "2, 3", "  2 , 3  ", "2 ,3", "02 003",
                            "\xEF\xBB\xBF"
                            "2,3"})
    EXPECT_EQ(read(std::string(first) + "\ns##\n#.f\n"), "S##/#.F/") << first;
}

TEST(MazeFileTest, LinesEndAsOnAnySystemAndTheLastOneNeedsNoEnd) {
  for (const char* text : {"3,2\ns#\n\n#f", "3,2\r\ns#\r\n\r\n#f\r\n", "3,2\rs#\r\r#f\r"})
    EXPECT_EQ(read(text), "S#/../#F/");
}

TEST(MazeFileTest, WhatIsMissingIsWalkableAndWhatIsTooMuchIsIgnored) {
  EXPECT_EQ(read("3,4\nSF\n##"), "SF../##../..../");
  EXPECT_EQ(read("1,2\nsf###sf\n#s\nf\n"), "SF/");
  EXPECT_EQ(read(std::string("1,5\ns X\0f", 9)), "S...F/");
}

TEST(MazeFileTest, TheLastStartAndTheLastFinishInReadingOrderCount) {
  EXPECT_EQ(read("2,4\nfSsF\ns.f."), "..../S.F./");
  EXPECT_EQ(read("2,4\nf.Ss\n#.##"), "F..S/#.##/");
}

TEST(MazeFileTest, AColumnIsOneCharacter) {
  EXPECT_EQ(read("1,6\nsľ#€#f"), "S.#.#F/");
  EXPECT_EQ(read("1,4\ns\U0001F600#f"), "S.#F/");
  EXPECT_EQ(read("1,4\nsf#\xE2\x82"), "SF#./");
  // Bytes of no character: of an older encoding, cut short, overlong, half of a pair, too great.
  for (const std::string bytes :
       {"\xBE", "\xE2", "\xE2\x82", "\xC0\xA3", "\xE0\x80\xA3", "\xF0\x80\x80\xA3", "\xED\xA0\x80",
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80"})
    EXPECT_EQ(read("1,8\ns" + bytes + "#f"), "S" + std::string(bytes.size(), '.') + "#F" +
                                                 std::string(5 - bytes.size(), '.') + '/');
}

TEST(MazeFileTest, ABrokenFileTellsWhatIsWrongAndWhere) {
  const auto isTold = [](const std::string& text, What what, int line) {
    const MazeFile file = parseMaze(text);
    const MazeError* error = std::get_if<MazeError>(&file);
    if (!error || error->what != what || error->line != line) return false;
    const std::string beginning = line ? "Súbor bludisko.txt: v riadku 1 " : "Súbor bludisko.txt";
    return message(*error).starts_with(beginning);
  };
  for (const char* first : {"", "\n2,2", "#####\n#s.f#\n#####", "5\n5", "5,\n5", ",5", "5,,5",
                            "5-5", "5x5", "2.5 5", "5,5,5", "5,5 riadkov"})
    EXPECT_TRUE(isTold(std::string(first) + "\nsf", What::notTwoNumbers, 1)) << first;
  for (const char* first : {"0,5", "5,0", "5,-5", "501,5", "5,501", "5,99999999999999999999"})
    EXPECT_TRUE(isTold(std::string(first) + "\nsf", What::wrongSize, 1)) << first;
  EXPECT_TRUE(isTold("2,2\n.f\n..\ns", What::noStart, 0));
  EXPECT_TRUE(isTold("2,2\ns.f\n..", What::noFinish, 0));
  EXPECT_TRUE(isTold("1,2\nsf" + std::string(kMaxFileBytes, '.'), What::tooLong, 0));
}

TEST(MazeFileTest, TheGreatestMazeFitsEvenInCharactersOfFourBytes) {
  std::string text = "500,500\r\n";
  for (int Row = 1; Row <= kMaxSize; ++Row) {
    for (int Col = 1; Col < kMaxSize; ++Col) text += "\U0001F600";
    text += Row == 1 ? "s\r\n" : Row == kMaxSize ? "f\r\n" : "#\r\n";
  }
  const Maze maze = mazeOf(text);
  EXPECT_EQ(maze.Player, (Cell{1, 500}));
  EXPECT_EQ(maze.Finish, (Cell{500, 500}));
  EXPECT_TRUE(maze.Map({250, 499}));
  EXPECT_FALSE(maze.Map({250, 500}));
}

TEST(WalkTest, WallsAndTheMapsEdgeStopTheFigure) {
  const Maze maze = mazeOf("2,3\ns#f\n...");
  for (const Cell off : {Cell{0, 1}, Cell{3, 1}, Cell{1, 0}, Cell{1, 4}})
    EXPECT_FALSE(maze.isOnMap(off)) << off.Row << ' ' << off.Col;
  Walk walk(maze);
  for (const Direction blocked : {left, up, right}) EXPECT_FALSE(walk.step(blocked));
  EXPECT_EQ(walk.Player(), (Cell{1, 1}));
  EXPECT_TRUE(walk.step(down));
  EXPECT_FALSE(walk.step(down));
  EXPECT_TRUE(walk.step(right));
  EXPECT_FALSE(walk.step(up));
  EXPECT_TRUE(walk.step(right));
  EXPECT_FALSE(walk.step(right));  // not around to the other side
  EXPECT_EQ(walk.Player(), (Cell{2, 3}));
}

TEST(WalkTest, TheRoundEndsAtTheFinishThatCounts) {
  Walk walk(mazeOf("1,4\nsf.F"));
  walk.step(right);
  EXPECT_FALSE(walk.isAtFinish());  // a later one counts
  walk.step(right);
  walk.step(right);
  EXPECT_TRUE(walk.isAtFinish());
  EXPECT_FALSE(walk.step(left));
  EXPECT_EQ(walk.Player(), (Cell{1, 4}));
}

TEST(WalkTest, BitesLieAtTheStartAndWhereverTheFigureLeft) {
  const Maze maze = mazeOf("2,3\ns..\n##f");
  Walk walk(maze);
  using Cells = std::vector<Cell>;
  EXPECT_EQ(walk.bites(), (Cells{{1, 1}}));
  walk.step(down);  // a wall
  walk.step(right);
  EXPECT_EQ(walk.bites(), (Cells{{1, 1}}));
  for (const Direction direction : {left, right, right, left, right, down}) walk.step(direction);
  EXPECT_TRUE(walk.isAtFinish());
  EXPECT_EQ(walk.bites(), (Cells{{1, 1}, {1, 2}, {1, 3}}));

  walk = Walk(maze);
  EXPECT_EQ(walk.bites(), (Cells{{1, 1}}));
}

TEST(ElapsedSecondsTest, RoundsDownAlsoAcrossMidnight) {
  EXPECT_EQ(elapsedSeconds(100, 107.9), 7);
  EXPECT_EQ(elapsedSeconds(0, 86399.999), 86399);
  EXPECT_EQ(elapsedSeconds(86399.5, 0), 0);
  EXPECT_EQ(elapsedSeconds(86399.5, 0.5), 1);
  EXPECT_EQ(elapsedSeconds(86390.25, 55.125), 64);
}

TEST(ElapsedSecondsTest, AWholeNumberOfSecondsIsNeverOneLess) {
  const auto clock = [](int milliseconds) { return milliseconds % 86400000 / 1000.0; };
  for (int start = 0; start < 86400000; start += 997) {
    ASSERT_EQ(elapsedSeconds(clock(start), clock(start + 7000)), 7) << start;
    ASSERT_EQ(elapsedSeconds(clock(start), clock(start + 6999)), 6) << start;
    ASSERT_EQ(elapsedSeconds(clock(start), clock(start)), 0) << start;
  }
}

class OurMazeTest : public testing::Test {
 protected:
  static Maze load() {
    std::ifstream file(RATANKA_MAZE_FILE, std::ios::binary);
    return mazeOf(std::string(std::istreambuf_iterator<char>(file), {}));
  }

  // The cells that the figure comes to from where it is, and back again; it must not be let onto
  // the finish, where it would stay.
  static int tour(Walk& walk, std::vector<bool>& seen) {
    seen[walk.maze().index(walk.Player())] = true;
    int cells = 1;
    for (const Direction direction : kDirections) {
      if (!walk.step(direction)) continue;
      if (!seen[walk.maze().index(walk.Player())]) cells += tour(walk, seen);
      EXPECT_TRUE(walk.step(opposite(direction)));
    }
    return cells;
  }

  const Maze maze = load();
};

TEST_F(OurMazeTest, IsClosedAllRoundAndFitsASmallScreen) {
  EXPECT_LE(maze.Rows(), 33);
  EXPECT_LE(maze.Cols(), 49);
  for (int Row = 1; Row <= maze.Rows(); ++Row) {
    for (const int Col : {1, maze.Cols()}) EXPECT_FALSE(maze.Map({Row, Col})) << Row;
  }
  for (int Col = 1; Col <= maze.Cols(); ++Col) {
    for (const int Row : {1, maze.Rows()}) EXPECT_FALSE(maze.Map({Row, Col})) << Col;
  }
}

TEST_F(OurMazeTest, EveryPlaceIsReachedAndThereIsOneWayToEach) {
  int places = 0;
  int passages = 0;
  for (int Row = 1; Row <= maze.Rows(); ++Row) {
    for (int Col = 1; Col <= maze.Cols(); ++Col) {
      if (!maze.Map({Row, Col})) continue;
      ++places;
      passages += maze.Map({Row, Col + 1}) + maze.Map({Row + 1, Col});
    }
  }
  EXPECT_EQ(passages, places - 1);

  Maze endless = maze;
  endless.Finish = {};
  Walk walk(endless);
  std::vector<bool> seen(maze.cells());
  EXPECT_EQ(tour(walk, seen), places);
  EXPECT_TRUE(seen[maze.index(maze.Finish)]);
  EXPECT_EQ(walk.Player(), maze.Player);
}

// The hand on the wall leads out of a maze without loops, by more than the straight way.
TEST_F(OurMazeTest, AChildWhoKeepsToTheWallComesToTheFinish) {
  Walk walk(maze);
  std::size_t heading = 0;
  int steps = 0;
  for (; !walk.isAtFinish() && steps < 4 * maze.cells(); ++steps) {
    heading = (heading + 3) % 4;  // first to the left hand
    for (int turn = 0; turn < 4 && !walk.step(kDirections[heading]); ++turn)
      heading = (heading + 1) % 4;
  }
  EXPECT_TRUE(walk.isAtFinish());
  EXPECT_GT(steps, 100);
}

}  // namespace
}  // namespace ratanka::maze
