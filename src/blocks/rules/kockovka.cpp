#include "blocks/rules/kockovka.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "blocks/rules/full_rows.h"
#include "blocks/rules/moves.h"
#include "blocks/rules/pieces.h"
#include "platform/keyboard/keys.h"

namespace ratanka::blocks {
namespace {

// All in seconds.
constexpr double kSlowestStep = 0.5;
constexpr double kQuickerByLevel = 0.0472;
constexpr double kCollapse = 0.1;

constexpr int kQuickestLevel = 9;
constexpr int kLinesByLevel = 10;
constexpr int kKeyP = 'P';

constexpr std::string_view kLevelWave = "Tetris1.wav";
constexpr std::string_view kLandingWave = "Tetris2.wav";
constexpr std::string_view kStepWave = "Tetris3.wav";
constexpr std::array<std::string_view, 4> kRowsWaves{"Tetris4.wav", "Tetris5.wav", "Tetris6.wav",
                                                     "Tetris7.wav"};

// The highest place where all of a new piece is on the board.
int firstRow(int kind) {
  constexpr int kBar = 1;
  return kind == kBar ? 1 : 2;
}

}  // namespace

Kockovka::Kockovka(const Options& options, Stage& stage, const Clock& clock, Random& random)
    : options_(options), stage_(stage), clock_(clock), random_(random) {}

void Kockovka::StartGame() {
  if (Game_.Active) return;
  stage_.setMenu(true);
  random_.reseedFromClock();
  keepState();
  clearGame();
  stage_.write(Stage::Label::lblScore, "0");
  stage_.write(Stage::Label::lblLines, "0");
  stage_.write(Stage::Label::lblLevel, options_.startingLevelText());
  if (options_.fillsLines()) FillWell();
  DrawBoard();
  keepState();
  GameLoop();
}

void Kockovka::clearGame() {
  Game_ = {};
  // The nearest whole number, a half to the even neighbour.
  Game_.Level = static_cast<int>(std::nearbyint(options_.startingLevel()));
  Game_.Active = true;
  FastDrop_ = false;
  Paused_ = false;
  DropStartRow_ = 0;
  StepDelay_ = kSlowestStep - options_.startingLevel() * kQuickerByLevel;
}

// The lower half, on the screen cell by cell, thicker with the starting level.
void Kockovka::FillWell() {
  constexpr int kFirstRow = 10;
  constexpr int kChances = 30;
  for (int column = 1; column <= kColumns; ++column) {
    for (int row = kFirstRow; row <= kRows; ++row) {
      if (random_.below(kChances) > options_.startingLevel()) continue;
      Game_.Board.at(column, row) = drawKind();
      DrawBoard();
      keepState();
    }
  }
}

void Kockovka::GameLoop() {
  if (options_.playsSounds()) {
    stage_.MusicOpenAndPlay();
    isMusicOn_ = true;
    MusicStarted_ = clock_.secondsSinceMidnight();
  }
  // Before the first events: one that ends the game must count, and keys must find no piece.
  GameOver_ = false;
  Landed_ = true;
  stage_.letEventsThrough();
  random_.reseedFromClock();
  Game_.NextPiece = drawKind();
  while (!GameOver_) step();
  finishGame();
}

void Kockovka::finishGame() {
  Game_.Active = false;
  closeMusic();
  showPause(false);  // the game may have been ended in a pause
  stage_.setMenu(false);
}

void Kockovka::step() {
  keepState();
  if (Landed_) {
    nextPiece();
  } else {
    FallStep();
  }
  DrawBoard();
  if (Landed_) {
    CheckLines();
    writeScore();
    stage_.write(Stage::Label::lblLevel, std::to_string(Game_.Level));
    stage_.write(Stage::Label::lblLines, std::to_string(Game_.Lines));
    if (FastDrop_) endDrop();
  }
  if (!FastDrop_) Wait(StepDelay_);
}

void Kockovka::nextPiece() {
  Game_.Piece = Game_.NextPiece;
  Game_.NextPiece = drawKind();
  Game_.X = 5;
  Game_.Y = firstRow(Game_.Piece);
  Game_.Rotation = 1;
  SpawnPiece();
  stage_.showNext(Game_.NextPiece);
  Landed_ = false;
}

// A new piece shows even where it finds its place taken.
void Kockovka::SpawnPiece() {
  if (!putNewPiece(Game_)) GameOver_ = true;
}

void Kockovka::FallStep() {
  if (!tryMove(Game_, Game_.X, Game_.Y + 1, Game_.Rotation)) {
    Landed_ = true;
    PlayEffect(kLandingWave);
  } else if (!FastDrop_) {
    PlayEffect(kStepWave);
  }
}

void Kockovka::MoveLeft() {
  keepState();
  tryMove(Game_, Game_.X - 1, Game_.Y, Game_.Rotation);
  DrawBoard();
}

void Kockovka::MoveRight() {
  keepState();
  tryMove(Game_, Game_.X + 1, Game_.Y, Game_.Rotation);
  DrawBoard();
}

void Kockovka::RotatePiece() {
  keepState();
  tryMove(Game_, Game_.X, Game_.Y, nextRotation(Game_.Piece, Game_.Rotation));
  DrawBoard();
}

void Kockovka::CheckLines() {
  keepState();
  FullRows full(Game_.Board);
  DrawBoard();
  Wait(kCollapse);
  const int rows = full.count();
  if (1 <= rows && rows <= 4) PlayEffect(kRowsWaves[rows - 1]);
  while (full.isGapLeft()) {
    keepState();
    full.closeLowestGap();
    Wait(kCollapse);
    DrawBoard();
  }
  countLines(rows);
}

void Kockovka::countLines(int rows) {
  if (Game_.Lines / kLinesByLevel < (Game_.Lines + rows) / kLinesByLevel) {
    PlayEffect(kLevelWave);
    ++Game_.Level;
    if (Game_.Level <= kQuickestLevel) StepDelay_ -= kQuickerByLevel;
  }
  Game_.Lines += rows;
  Game_.Score += points(rows, Game_.Level);
}

// A point for each row that the piece fell after the key.
void Kockovka::endDrop() {
  FastDrop_ = false;
  if (DropStartRow_ == 0) return;
  Game_.Score += Game_.Y - DropStartRow_;
  DropStartRow_ = 0;
  writeScore();
}

void Kockovka::PlayEffect(std::string_view file) {
  if (options_.playsSounds()) stage_.PlayEffect(file);
}

void Kockovka::writeScore() { stage_.write(Stage::Label::lblScore, std::to_string(Game_.Score)); }

void Kockovka::pause() {
  if (Game_.Active) Paused_ = true;
}

void Kockovka::keyDown(int keyCode) {
  if (!Game_.Active) return;
  if (Paused_) {
    if (keyCode == kKeyP) Paused_ = false;
    return;
  }
  if (Landed_) return;
  switch (keyCode) {
    case key::kLeft:
      return MoveLeft();
    case key::kRight:
      return MoveRight();
    case key::kUp:
    case key::kClear:
      return RotatePiece();
    case key::kDown:
      FastDrop_ = true;
      if (DropStartRow_ == 0) DropStartRow_ = Game_.Y;
      return;
    case kKeyP:
      Paused_ = true;
      return;
    default:
      return;
  }
}

}  // namespace ratanka::blocks
