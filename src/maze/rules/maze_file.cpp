#include "maze/rules/maze_file.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "platform/plain/plain_text.h"

namespace ratanka::maze {
namespace {

using What = MazeError::What;

// Takes the next line off the text, without its end.
std::string_view takeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end);
  text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(text.size(), 1));
  return line;
}

void skipBlanks(std::string_view& text) { text = trimmedLeft(text, " \t"); }

// Takes a whole number off the text; one that is too great for an int is as good as any that is too
// great for a maze.
std::optional<int> takeNumber(std::string_view& text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc::invalid_argument) return std::nullopt;
  text.remove_prefix(end - text.data());
  return error == std::errc::result_out_of_range ? kMaxSize + 1 : number;
}

MazeFile emptyMaze(std::string_view line) {
  const MazeError notTwoNumbers{What::notTwoNumbers, 1};
  skipBlanks(line);
  const std::optional<int> Rows = takeNumber(line);
  const std::size_t before = line.size();
  skipBlanks(line);
  if (line.starts_with(',')) line.remove_prefix(1);
  skipBlanks(line);
  if (line.size() == before) return notTwoNumbers;  // nothing between them, as in 5-7
  const std::optional<int> Cols = takeNumber(line);
  skipBlanks(line);
  if (!Rows || !Cols || !line.empty()) return notTwoNumbers;

  const auto fits = [](int size) { return 1 <= size && size <= kMaxSize; };
  if (!fits(*Rows) || !fits(*Cols)) return MazeError{What::wrongSize, 1};
  return Maze(*Rows, *Cols);
}

void readRow(Maze& maze, int Row, std::string_view line) {
  for (Cell cell{Row, 1}; cell.Col <= maze.Cols() && !line.empty(); ++cell.Col) {
    const char sign = line.front();
    if (sign == '#') maze.buildWall(cell);
    if (sign == 's' || sign == 'S') maze.Player = cell;
    if (sign == 'f' || sign == 'F') maze.Finish = cell;
    takeCharacter(line);
  }
}

}  // namespace

MazeFile parseMaze(std::string_view text) {
  if (text.size() > kMaxFileBytes) return MazeError{What::tooLong};
  if (constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF"; text.starts_with(kByteOrderMark))
    text.remove_prefix(kByteOrderMark.size());

  MazeFile file = emptyMaze(takeLine(text));
  Maze* maze = std::get_if<Maze>(&file);
  if (!maze) return file;
  for (int Row = 1; Row <= maze->Rows(); ++Row) readRow(*maze, Row, takeLine(text));
  if (!maze->isOnMap(maze->Player)) return MazeError{What::noStart};
  if (!maze->isOnMap(maze->Finish)) return MazeError{What::noFinish};
  return file;
}

std::string message(const MazeError& error) {
  std::string text = "Súbor " + std::string(kMazeFile);
  if (error.line > 0) text += ": v riadku " + std::to_string(error.line);
  switch (error.what) {
    case What::unreadable:
      return text + " chýba alebo sa nedá prečítať. Má byť v priečinku s programom.";
    case What::tooLong:
      return text + " je na bludisko príliš dlhý.";
    case What::notTwoNumbers:
      return text + " majú byť dve čísla, počet riadkov a počet stĺpcov bludiska.";
    case What::wrongSize:
      return text + " má byť počet riadkov a počet stĺpcov bludiska, každý od 1 do " +
             std::to_string(kMaxSize) + ".";
    case What::noStart:
      return text + ": v bludisku chýba štart. Označte ho písmenom s.";
    case What::noFinish:
      return text + ": v bludisku chýba cieľ. Označte ho písmenom f.";
  }
  return text;
}

}  // namespace ratanka::maze
