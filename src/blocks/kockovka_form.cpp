#include "blocks/kockovka_form.h"

#include <QPainter>

#include "blocks/pics.h"
#include "blocks/rules/tiles.h"
#include "platform/base/text.h"
#include "platform/controls/controls.h"
#include "platform/controls/menus.h"
#include "platform/forms/event_loop.h"
#include "platform/forms/forms.h"
#include "shell/names.h"

namespace ratanka::blocks {
namespace {

constexpr int kFrame = 2;  // round board and preview, in logical pixels

constexpr auto kMusic = "Tetris.mid";

QRect cellArea(int column, int row) {
  return {kFrame + kTileSize * (column - 1), kFrame + kTileSize * (row - 1), kTileSize, kTileSize};
}

}  // namespace

frmKockovka::frmKockovka(Forms& forms, const Clock& clock, Random& random, Sound& sound,
                         const Options& options)
    : Form(forms, {.name = names::frmKockovka,
                   .caption = "Rátanka - hra TETRIS",
                   .width = 4440,
                   .height = 4650,
                   .picture = "blocks-night",
                   .pictureSize = {296, 310},
                   .hasMenu = true,
                   .opening = Opening::besideControls}),
      sound_(sound),
      game_(options, *this, clock, random) {}

void frmKockovka::build() {
  buildBoard();
  buildLabels();
  buildMenu();
}

void frmKockovka::buildBoard() {
  drawn_ = {};
  next_ = 0;
  picBoard_ = addCanvas(
      client(),
      {.name = "picBoard",
       .place = {120, 120, 2460, 4380},
       .paint = [this](QPainter& painter, const QRect& exposed) { paintBoard(painter, exposed); },
       .isOpaque = true,
       .accessibleName = "Hracia plocha"});
  picNext_ = addCanvas(client(), {.name = "picNext",
                                  .place = {2760, 120, 1500, 1020},
                                  .paint =
                                      [this](QPainter& painter, const QRect&) {
                                        painter.fillRect(picNext_->rect(), colour(kInkColour));
                                        paintNext(painter, next_, kFrame, kFrame);
                                      },
                                  .isOpaque = true,
                                  .accessibleName = "Ďalší objekt"});
}

void frmKockovka::paintBoard(QPainter& painter, const QRect& exposed) const {
  const QRect well = cellArea(1, 1) | cellArea(kColumns, kRows);
  if (!well.contains(exposed)) painter.fillRect(exposed, colour(kInkColour));
  for (int column = 1; column <= kColumns; ++column) {
    for (int row = 1; row <= kRows; ++row) {
      const QRect cell = cellArea(column, row);
      if (!cell.intersects(exposed)) continue;
      paintTile(painter, drawn_.at(column, row), cell.left(), cell.top());
    }
  }
}

void frmKockovka::buildLabels() {
  constexpr int kLeft = 2760;  // twips
  constexpr int kWidth = 1500;
  const auto heading = [this](const char* name, int top, const char* caption) {
    addLabel(client(), {.name = name,
                        .place = {kLeft, top, kWidth, 240},
                        .caption = caption,
                        .type = {.points = 9.75, .bold = true},
                        .fore = kWhite});
  };
  const auto number = [this](const char* name, int top) {
    return addLabel(client(), {.name = name,
                               .place = {kLeft, top, kWidth, 300},
                               .caption = "0",
                               .type = {.points = 12, .bold = true},
                               .fore = kBlack,
                               .back = kPaper,
                               .align = Qt::AlignCenter});
  };
  heading("Label1", 1200, "Ďalší objekt");
  heading("Label2", 1575, "Počet bodov ");
  lblScore_ = number("lblScore", 1830);
  heading("Label5", 2205, "Počet riadkov");
  lblLines_ = number("lblLines", 2460);
  heading("Label3", 2835, "Level");
  lblLevel_ = number("lblLevel", 3090);
}

void frmKockovka::buildMenu() {
  QMenu& menu = *addMenu(menuBar(), "mnuFile", "&Menu");
  const auto item = [&](const char* name, const char* caption, Qt::Key shortcut = Qt::Key_unknown) {
    return addMenuItem(menu, {.name = name, .caption = caption, .shortcut = shortcut});
  };
  mnuNewGame_ = item("mnuNewGame", "Nová &Hra", Qt::Key_F2);
  mnuPause_ = item("mnuPause", "&Pauza", Qt::Key_F3);
  mnuEndGame_ = item("mnuEndGame", "&Koniec Hry");
  item("mnuBar1", "-");
  QAction* const mnuOptions = item("mnuOptions", "&Nastavenia...");
  item("mnuBar2", "-");
  QAction* const mnuExit = item("mnuExit", "K&oniec", Qt::Key_F4);
  setMenu(false);
  on(mnuNewGame_, &QAction::triggered, [this] { mnuNewGame_Click(); });
  on(mnuPause_, &QAction::triggered, [this] { game_.togglePause(); });
  on(mnuEndGame_, &QAction::triggered, [this] { game_.endGame(); });
  on(mnuOptions, &QAction::triggered, [this] { mnuOptions_Click(); });
  on(mnuExit, &QAction::triggered, [this] { mnuExit_Click(); });
}

void frmKockovka::Form_Resize() {
  if (!isMinimised()) game_.windowCameBack();
}

void frmKockovka::Form_Unload() {
  game_.endGame();
  sound_.closeMusic();
}

void frmKockovka::mnuOptions_Click() {
  game_.pause();
  forms().showModal(names::frmOptions);
}

void frmKockovka::mnuExit_Click() {
  forms().drop(names::frmOptions);
  forms().drop(names::frmKockovka);
}

void frmKockovka::DrawBoard(const Well& board, const Well& oldBoard) {
  for (int column = 1; column <= kColumns; ++column) {
    for (int row = 1; row <= kRows; ++row) {
      if (board.at(column, row) == oldBoard.at(column, row)) continue;
      drawn_.at(column, row) = board.at(column, row);
      picBoard_->update(cellArea(column, row));
    }
  }
}

void frmKockovka::repaintBoard() { picBoard_->update(); }

void frmKockovka::showNext(int kind) {
  next_ = kind;
  picNext_->update();
}

void frmKockovka::write(Label label, const std::string& text) {
  QLabel* const labels[] = {lblScore_, lblLines_, lblLevel_};  // in the order of their names
  labels[static_cast<int>(label)]->setText(ratanka::text(text));
}

void frmKockovka::setCaption(std::string_view caption) {
  if (isLoaded()) window().setWindowTitle(ratanka::text(caption));
}

void frmKockovka::setMenu(bool isInGame) {
  mnuNewGame_->setEnabled(!isInGame);
  mnuPause_->setEnabled(isInGame);
  mnuEndGame_->setEnabled(isInGame);
}

Stage::WindowState frmKockovka::windowState() const {
  return isMinimised() ? WindowState::minimised : WindowState::normal;
}

void frmKockovka::MusicOpenAndPlay() {
  sound_.openMusic(kMusic);
  sound_.playMusic();
}

void frmKockovka::letEventsThrough() {
  ratanka::letEventsThrough();
  endWithTheProgram();
}

void frmKockovka::awaitEvents(double seconds) {
  ratanka::awaitEvents(seconds);
  endWithTheProgram();
}

// An ended program unloads nothing.
void frmKockovka::endWithTheProgram() {
  if (forms().isEnding()) game_.endGame();
}

}  // namespace ratanka::blocks
