#include "soccer/match_form.h"

#include <algorithm>

#include "platform/base/text.h"
#include "platform/controls/menus.h"
#include "platform/controls/shapes.h"
#include "platform/forms/forms.h"
#include "platform/forms/timer.h"
#include "platform/keyboard/keys.h"
#include "shell/names.h"

namespace ratanka::soccer {
namespace {

constexpr Rgb kGrass{0, 128, 0};
constexpr int kLineWidth = 2;
constexpr int kGoalWidth = 6;

struct PitchLine {
  const char* name;
  int x1, y1, x2, y2;  // twips
  Rgb colour = kWhite;
  int width = kLineWidth;
};
constexpr PitchLine kLines[] = {{"Line4", 120, 120, 11760, 120},
                                {"Line3", 120, 8160, 11760, 8160},
                                {"Line13", 120, 120, 120, 3000},
                                {"Line6", 120, 3000, 120, 5280, kRed, kGoalWidth},
                                {"Line12", 120, 5280, 120, 8160},
                                {"Line7", 11760, 120, 11760, 3000},
                                {"Line9", 11760, 3000, 11760, 5280, kRed, kGoalWidth},
                                {"Line8", 11760, 5280, 11760, 8160},
                                {"Line5", 5880, 120, 5880, 8160},
                                {"Line1", 120, 2430, 1480, 2430},
                                {"Line2", 1480, 2436, 1480, 5800},
                                {"Line10", 120, 5800, 1480, 5800},
                                {"Line15", 10400, 2430, 11760, 2430},
                                {"Line14", 10400, 2430, 10400, 5800},
                                {"Line11", 10400, 5800, 11760, 5800}};

constexpr int kFirstWait = 2000;  // ms: the first second of a match lasts two
constexpr int kSecond = 1000;

constexpr auto kPause = "&Pauza";
constexpr auto kGoOn = "&Pokračovať";

Place place(const Piece& piece) { return {piece.Left, piece.Top, piece.Width, piece.Height}; }

void put(QWidget& widget, const Piece& piece) {
  widget.move(pixels(piece.Left), pixels(piece.Top));
}

constexpr int kScoreWidth = 696;

// Makes room for all digits of a score: the left one grows to the right, the right one to the left.
void showScore(QLabel& label, int goals, bool growsLeft) {
  label.setNum(goals);
  const int width = std::max(pixels(kScoreWidth), label.sizeHint().width());
  if (width == label.width()) return;
  const int left = growsLeft ? label.x() + label.width() - width : label.x();
  label.setGeometry(left, label.y(), width, label.height());
}

}  // namespace

MatchForm::MatchForm(Forms& forms, Dialogs& dialogs, Declarations& declarations,
                     const MatchDesign& design)
    : Form(forms, {.name = design.name,
                   .caption = design.caption,
                   .width = design.width,
                   .height = design.height,
                   .back = kGrass,
                   .hasMenu = true}),
      dialogs_(dialogs),
      declarations_(declarations),
      name_(design.name),
      clockLeft_(design.clockLeft),
      keys_(design.keys) {}

void MatchForm::build() {
  buildPitch();
  buildLabels();
  buildPieces();
  buildMenu();
  buildTimers();
}

void MatchForm::buildPitch() {
  for (const PitchLine& line : kLines) {
    addLine(client(), {.name = line.name,
                       .x1 = line.x1,
                       .y1 = line.y1,
                       .x2 = line.x2,
                       .y2 = line.y2,
                       .width = line.width,
                       .colour = line.colour});
  }
  addOval(client(), {.name = "Shape1",
                     .place = {4800, 3000, 2172, 2304},
                     .outline = kWhite,
                     .width = kLineWidth});
}

void MatchForm::buildLabels() {
  const auto score = [this](const char* name, int left, const Rgb& fore) {
    return addLabel(client(), {.name = name,
                               .place = {left, 120, kScoreWidth, 1020},
                               .caption = "0",
                               .type = {.family = "Comic Sans MS", .points = 48, .bold = true},
                               .fore = fore,
                               .rim = kWhite,
                               .align = Qt::AlignCenter});
  };
  redGoals_ = score("RedGoals", 240, kRed);
  blueGoals_ = score("BlueGoals", 11064, kBlue);
  lblTime_ = addLabel(client(), {.name = "lblTime",
                                 .place = {clockLeft_, 7770, 1920, 360},
                                 .type = {.family = "Comic Sans MS", .points = 12, .bold = true},
                                 .fore = kWhite});
}

void MatchForm::buildPieces() {
  red_ = addOval(client(), {.name = "Red", .place = place(kRedStart), .fill = kRed});
  blue_ = addOval(client(), {.name = "Blue", .place = place(kBlueStart), .fill = kBlue});
  ball_ =
      addImage(client(), {.name = "Ball", .place = place(kBallStart), .picture = "soccer-ball"});
}

void MatchForm::buildMenu() {
  QMenu& game = *addMenu(menuBar(), "mnuFIle", "&Hra");
  const auto item = [&](const char* name, const char* caption, Qt::Key shortcut) {
    return addMenuItem(game, {.name = name, .caption = caption, .shortcut = shortcut});
  };
  QAction* const mnuNewGame = item("mnuNewGame", "&Nová hra", Qt::Key_F1);
  mnuPause_ = item("mnuPause", kPause, Qt::Key_F2);
  item("mnuSeperator", "-", Qt::Key_unknown);
  QAction* const mnuExit = item("mnuExit", "M&enu", Qt::Key_unknown);
  on(mnuNewGame, &QAction::triggered, [this] { mnuNewGame_Click(); });
  on(mnuPause_, &QAction::triggered, [this] { mnuPause_Click(); });
  on(mnuExit, &QAction::triggered, [this] { mnuExit_Click(); });
}

void MatchForm::buildTimers() {
  timer("tmrMovePlayers", 10, [this] { tmrMovePlayers_Timer(); })->setEnabled(true);
  Timer* const moveBall = timer("tmrMoveBall", 40, [this] { tmrMoveBall_Timer(); });
  moveBall->setPrecise();
  moveBall->setEnabled(true);
  timer("tmrBallTap", 1, [this] { match_.tmrBallTap(); })->setEnabled(true);
  tmrCountdown_ = timer("tmrCountdown", kFirstWait, [this] { tmrCountdown_Timer(); });
  tmrCountdown_->setPrecise();
}

void MatchForm::Form_Load() {
  match_.StartMatch(declarations_);
  startCountdown();
  refresh();
}

void MatchForm::Form_KeyDown(int keyCode) {
  hold(keyCode, true);
  if (keyCode == key::kEscape) mnuExit_Click();
}

void MatchForm::Form_KeyUp(int keyCode) { hold(keyCode, false); }

void MatchForm::keyboardLeaves() {
  for (const PlayerKey& key : keys_) hold(key.code, false);
}

void MatchForm::hold(int keyCode, bool isDown) {
  for (const PlayerKey& key : keys_) {
    if (key.code == keyCode) match_.*key.player.*key.direction = isDown;
  }
}

void MatchForm::tmrMovePlayers_Timer() {
  match_.movePlayersAndTap();
  refreshPieces();
}

void MatchForm::tmrMoveBall_Timer() {
  const bool isGoal = match_.moveBallAndTap();
  refreshPieces();
  if (!isGoal) return;
  kickedOff();
  refresh();
}

void MatchForm::tmrCountdown_Timer() {
  if (match_.isPaused) return;
  const bool isOver = match_.tmrCountdown(declarations_);
  tmrCountdown_->setInterval(kSecond);
  refresh();
  if (!isOver) return;
  dialogs_.message(result());
  match_.isPaused = false;
  tmrCountdown_->setEnabled(false);
  mnuExit_Click();
}

void MatchForm::mnuNewGame_Click() {
  StartMatch();
  refresh();
}

void MatchForm::mnuPause_Click() {
  match_.isPaused = mnuPause_->text() == kPause;
  mnuPause_->setText(match_.isPaused ? kGoOn : kPause);
}

// Back to the title. The window is only hidden: a fresh match stands there, frozen.
void MatchForm::mnuExit_Click() {
  forms().show(names::frmStartUp);
  StartMatch();
  match_.isPaused = true;
  refresh();
  forms().hide(name_);
}

void MatchForm::StartMatch() {
  match_.StartMatch(declarations_);
  startCountdown();
}

void MatchForm::startCountdown() {
  tmrCountdown_->setEnabled(false);
  tmrCountdown_->setInterval(kFirstWait);
  tmrCountdown_->setEnabled(true);
}

void MatchForm::refreshPieces() {
  put(*red_, match_.Red);
  put(*blue_, match_.Blue);
  put(*ball_, match_.Ball);
}

void MatchForm::refresh() {
  refreshPieces();
  showScore(*redGoals_, match_.RedGoals, false);
  showScore(*blueGoals_, match_.BlueGoals, true);
  lblTime_->setText(ratanka::text(clockText()));
}

}  // namespace ratanka::soccer
