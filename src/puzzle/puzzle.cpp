#include "puzzle/puzzle.h"

#include "platform/base/text.h"
#include "platform/controls/controls.h"
#include "platform/controls/menus.h"
#include "platform/forms/forms.h"
#include "platform/forms/timer.h"
#include "shell/names.h"

namespace ratanka::puzzle {
namespace {

constexpr Rgb kPaleYellow{255, 255, 192};

// The colour of the row that a tile belongs to: rows are seen to grow together.
constexpr std::array<Rgb, kMaxSize> kRowColours{{{0xff, 0xc9, 0x3c},
                                                 {0x8f, 0xd6, 0xa0},
                                                 {0xa8, 0xcf, 0xe8},
                                                 {0xf7, 0xb3, 0xa4},
                                                 {0xc9, 0xa9, 0xe0},
                                                 {0xff, 0xe3, 0x9a},
                                                 {0xd6, 0xa8, 0x78}}};

constexpr auto kList = "Výsledková listina";

}  // namespace

frmPuzzle::frmPuzzle(Forms& forms, Dialogs& dialogs, Random& random, Sound& sound,
                     SettingsStore& settings)
    : Form(forms, {.name = names::frmPuzzle,
                   .caption = "Rátanka - hra Pucle",
                   .width = 4170,
                   .height = 5040,
                   .back = kPaleYellow,
                   .hasMenu = true,
                   .opening = Opening::besideControls}),
      dialogs_(dialogs),
      random_(random),
      sound_(sound),
      records_(settings) {}

void frmPuzzle::build() {
  buildBoard();
  buildChoice();
  buildMenu();
  timer1_ = timer("Timer1", 1000, [this] { Timer1_Timer(); });
  timer1_->setImpatient();  // no time to think under the list
}

void frmPuzzle::buildBoard() {
  for (int index = 0; index < kButtons; ++index) {
    Button* const tile =
        addButton(client(), {.name = indexed("cmdButton", index), .place = {}, .visible = false});
    on(tile, &Button::wentDown, [this, index] { cmdButton_MouseDown(index); });
    cmdButton_.at(index) = tile;
  }
}

void frmPuzzle::buildChoice() {
  addLabel(client(), {.name = "lblSize",
                      .place = {525, 4395, 480, 300},
                      .caption = "Hra",
                      .type = {.points = 9.75, .bold = true}});
  cmbSize_ = addComboBox(client(), {.name = "cmbSize",
                                    .place = {1020, 4320, 855, 390},
                                    .items = {"3", "4", "5", "6", "7"},
                                    .chosen = 1,
                                    .accessibleName = "Počet kameňov v rade"});
  cmdShuffle_ = addButton(client(), {.name = "cmdShuffle",
                                     .place = {2130, 4275, 1515, 465},
                                     .type = {.points = 9.75, .bold = true}});
  on(cmbSize_, &QComboBox::currentIndexChanged, [this] { cmbSize_Click(); });
  on(cmdShuffle_, &Button::clicked, [this] { cmdShuffle_Click(); });
}

void frmPuzzle::buildMenu() {
  QMenu& menu = *addMenu(menuBar(), "mnuGame", "&Pucle");
  QAction* const highScore =
      addMenuItem(menu, {.name = "mnuHighScore", .caption = "&Výsledky", .shortcut = Qt::Key_F2});
  mnuSound_ = addMenuItem(menu, {.name = "mnuSound",
                                 .caption = "&Zvuk",
                                 .shortcut = Qt::Key_F3,
                                 .checkable = true,
                                 .checked = true});
  QAction* const leave =
      addMenuItem(menu, {.name = "mnuExit", .caption = "&Koniec", .shortcut = Qt::Key_F4});
  on(highScore, &QAction::triggered, [this] { mnuHighScore_Click(); });
  on(leave, &QAction::triggered, [this] { mnuExit_Click(); });
}

void frmPuzzle::Form_Load() {
  random_.reseedFromClock();
  game_ = {};
  refresh();
}

void frmPuzzle::Form_Resize() {
  cmdShuffle_->setFocus();
  game_.setMinimised(isMinimised());
  refresh();
}

void frmPuzzle::cmdButton_MouseDown(int index) {
  const Game::Press press = game_.press(index);
  refresh();
  if (press.movedTo) {
    cmdButton_.at(*press.movedTo)->setFocus();
    play("Pucle1.wav");
  }
  if (press.time) end(*press.time);
  if (game_.Solved()) cmdShuffle_->setFocus();
}

// A game ended in order.
void frmPuzzle::end(int seconds) {
  play("Pucle2.wav");
  const int size = game_.board().Size();
  if (!records_.CheckBestTime(size, seconds)) return;
  records_.storeName(size, dialogs_.input(kList, "Zapíš svoje Meno!", "").value_or(""));
}

void frmPuzzle::cmdShuffle_Click() {
  game_.shuffleOrReset(random_);
  refresh();
  play("Pucle3.wav");
}

void frmPuzzle::cmbSize_Click() {
  game_.chooseSize(cmbSize_->currentText().toInt());
  refresh();
}

void frmPuzzle::Timer1_Timer() {
  game_.tick();
  refresh();
}

void frmPuzzle::mnuHighScore_Click() {
  dialogs_.message({.title = kList, .text = records_.list(), .icon = MessageBox::Icon::none});
}

void frmPuzzle::mnuExit_Click() { forms().drop(names::frmPuzzle); }

void frmPuzzle::play(std::string_view wave) {
  if (mnuSound_->isChecked()) sound_.PlayWave(wave);
}

void frmPuzzle::refresh() {
  window().setWindowTitle(ratanka::text(game_.caption()));
  cmdShuffle_->setText(ratanka::text(game_.shuffleCaption()));
  for (int index = 0; index < kButtons; ++index) refreshTile(index);
  timer1_->setEnabled(game_.isClockOn());
}

void frmPuzzle::refreshTile(int index) {
  constexpr double kPointsOfSide = 0.3;  // figures take two fifths of a tile
  const Board& board = game_.board();
  Button& tile = *cmdButton_.at(index);
  tile.setText(ratanka::text(board.caption(index)));
  tile.setVisible(board.isVisible(index));
  if (!board.isVisible(index)) return;
  const TileArea area = tileArea(board.Size(), index);
  if (tile.width() != area.side) {
    tile.setFont(font({.points = kPointsOfSide * area.side, .bold = true}));
  }
  tile.setGeometry(area.left, area.top, area.side, area.side);
  const int row = (board.number(index) - 1) / board.Size();
  setFace(tile, kRowColours.at(row));
}

}  // namespace ratanka::puzzle
