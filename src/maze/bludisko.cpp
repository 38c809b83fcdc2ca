#include "maze/bludisko.h"

#include <QFile>
#include <QPainter>
#include <QRect>

#include "platform/base/text.h"
#include "platform/controls/controls.h"
#include "platform/controls/pictures.h"
#include "platform/forms/forms.h"
#include "platform/keyboard/keys.h"
#include "shell/names.h"

namespace ratanka::maze {
namespace {

constexpr int kCell = 20;    // logical pixels, as all lengths here
constexpr int kFigure = 32;  // larger than a cell: it reaches into the cells around it
constexpr int kReach = (kFigure - kCell) / 2;

constexpr Rgb kWall{128, 128, 128};
constexpr Rgb kWay = kWhite;
constexpr Rgb kGoal = kYellow;

QRect cellArea(const Cell& cell) {
  return {(cell.Col - 1) * kCell, (cell.Row - 1) * kCell, kCell, kCell};
}

QRect figureArea(const Cell& cell) {
  return cellArea(cell).adjusted(-kReach, -kReach, kReach, kReach);
}

// The white box that a figure leaves: it begins a pixel before it.
QRect biteArea(const Cell& cell) { return figureArea(cell).adjusted(-1, -1, 0, 0); }

std::optional<Direction> directionOf(int keyCode) {
  switch (keyCode) {
    case key::kLeft:
      return Direction::left;
    case key::kUp:
      return Direction::up;
    case key::kRight:
      return Direction::right;
    case key::kDown:
      return Direction::down;
    default:
      return std::nullopt;
  }
}

MazeFile readMaze(const std::string& path) {
  QFile file(text(path));
  if (!file.open(QIODevice::ReadOnly)) return MazeError{};
  const QByteArray bytes = file.read(kMaxFileBytes + 1);
  return parseMaze(std::string_view(bytes.data(), bytes.size()));
}

}  // namespace

Bludisko::Bludisko(Forms& forms, Dialogs& dialogs, const Clock& clock, std::string file)
    : Form(forms, {.name = names::Bludisko,
                   .caption = "Rátanka - hra Bludisko",
                   .width = 4800,
                   .height = 3600,
                   .opening = Opening::besideControls}),
      dialogs_(dialogs),
      clock_(clock),
      file_(std::move(file)) {}

void Bludisko::build() {
  canvas_ = addCanvas(client(), {.name = "picMaze",
                                 .paint = [this](QPainter& painter,
                                                 const QRect& exposed) { paint(painter, exposed); },
                                 .isOpaque = true,
                                 .accessibleName = "Bludisko"});
  addImage(client(), {.name = "picPlayer",
                      .place = {0, 0, twips(kFigure), twips(kFigure)},
                      .picture = "maze-figure",
                      .visible = false});
}

void Bludisko::Form_Load() { LoadMaze(); }

void Bludisko::LoadMaze() {
  MazeFile file = readMaze(file_);
  if (const auto* const error = std::get_if<MazeError>(&file)) {
    dialogs_.message({.title = "Rátanka - hra Bludisko",
                      .text = message(*error),
                      .icon = MessageBox::Icon::exclamation});
    forms().drop(names::Bludisko);
    return;
  }
  walk_.emplace(std::get<Maze>(std::move(file)));
  const PixelSize size{walk_->maze().Cols() * kCell, walk_->maze().Rows() * kCell};
  setClientSize(size);
  canvas_->resize(size.width, size.height);
  canvas_->update();
  StartTime = clock_.secondsSinceMidnight();
}

void Bludisko::Form_KeyDown(int keyCode) {
  const std::optional<Direction> direction = directionOf(keyCode);
  if (!direction || !walk_) return;
  const Cell before = walk_->Player();
  if (!walk_->step(*direction)) return;
  canvas_->update(biteArea(before) | figureArea(walk_->Player()));
  if (walk_->isAtFinish()) finish();
}

void Bludisko::finish() {
  const int seconds = elapsedSeconds(StartTime, clock_.secondsSinceMidnight());
  const Dialogs::Answer answer = dialogs_.message(
      {.title = " Koniec Hry ",
       .text = "Zvíťazil si  za " + std::to_string(seconds) + " sekúnd.\r\nChceš hrať znova?",
       .icon = MessageBox::Icon::none,
       .buttons = MessageBox::Buttons::yesNo});
  if (!isLoaded()) return;
  if (answer == Dialogs::Answer::yes) {
    Form_Load();
  } else {
    forms().drop(names::Bludisko);
  }
}

void Bludisko::paint(QPainter& painter, const QRect& exposed) const {
  if (!walk_) return;
  const Maze& maze = walk_->maze();
  painter.fillRect(exposed, colour(kWay));
  painter.fillRect(cellArea(maze.Finish), colour(kGoal));
  const QColor wall = colour(kWall);
  const int lastCol = exposed.right() / kCell + 1;
  for (int row = exposed.top() / kCell + 1; row <= exposed.bottom() / kCell + 1; ++row) {
    for (int col = exposed.left() / kCell + 1; col <= lastCol; ++col) {
      const int firstOfWall = col;
      while (col <= lastCol && !maze.Map({row, col})) ++col;
      if (col == firstOfWall) continue;
      painter.fillRect(cellArea({row, firstOfWall}) | cellArea({row, col - 1}), wall);
    }
  }
  for (const Cell& cell : walk_->bites()) {
    const QRect bite = biteArea(cell);
    if (bite.intersects(exposed)) painter.fillRect(bite, colour(kWay));
  }
  const QRect figure = figureArea(walk_->Player());
  painter.drawPixmap(figure.topLeft(),
                     picture("maze-figure", figure.size(), painter.device()->devicePixelRatioF()));
}

}  // namespace ratanka::maze
