#pragma once

#include "blocks/rules/game_state.h"
#include "blocks/rules/options.h"
#include "blocks/rules/stage.h"
#include "platform/ports/clock.h"
#include "platform/ports/random.h"

namespace ratanka::blocks {

// The falling blocks. A game is a loop: StartGame() stays on the stack of the click that called it
// until the game is over. Meanwhile the stage lets events through where the loop waits; their
// handlers may call everything here, and the loop finds what they changed when they have returned.
// The loop never spins: whenever nothing is due it sleeps on the stage.
class Kockovka {
 public:
  // All are used as long as this lives. The options may change at any moment: sounds at once, the
  // rest from the next game on.
  Kockovka(const Options& options, Stage& stage, const Clock& clock, Random& random);

  // Plays a game to its end. Refused in silence while one is on.
  void StartGame();

  // A key of the game window, by the system's code. While a piece falls: 37 and 39 move it, 38 and
  // 12 turn it, 40 drops it, 80 pauses. In a pause only 80 counts, which ends it.
  void keyDown(int keyCode);

  void togglePause() { Paused_ = !Paused_; }

  // The options dialog opens: a game stands still until the child ends the pause.
  void pause();
  // The window is in its normal state again after it was minimised or maximised.
  void windowCameBack() { pause(); }

  // The menu, or the end of the window or of the program. The loop comes back as soon as the
  // handlers have returned.
  void endGame() { GameOver_ = true; }

  const GameState& Game() const { return Game_; }
  bool Paused() const { return Paused_; }
  double StepDelay() const { return StepDelay_; }  // seconds from one falling step to the next

 private:
  void clearGame();
  void FillWell();
  void GameLoop();
  void finishGame();
  void step();
  void nextPiece();
  void SpawnPiece();
  void FallStep();
  void MoveLeft();
  void MoveRight();
  void RotatePiece();
  void CheckLines();
  void countLines(int rows);
  void endDrop();
  void Wait(double Seconds);
  double secondsToSleep(double now, double left) const;
  void keepMusicGoing(double now);
  void closeMusic();
  void showPause(bool isPaused);
  void keepState() { OldGame_ = Game_; }
  void DrawBoard() { stage_.DrawBoard(Game_.Board, OldGame_.Board); }
  void PlayEffect(std::string_view file);
  void writeScore();
  int drawKind() { return random_.below(kKinds) + 1; }

  const Options& options_;
  Stage& stage_;
  const Clock& clock_;
  Random& random_;

  GameState Game_;
  GameState OldGame_;      // before the last change: what DrawBoard compares with
  bool Landed_ = true;     // the piece can't go down; a new one is due
  bool GameOver_ = false;  // the game is to stop
  bool FastDrop_ = false;  // the piece falls without waits
  bool Paused_ = false;
  bool isPauseShown_ = false;  // in the caption
  int DropStartRow_ = 0;       // Y at the beginning of the fast drop; 0 when none is under way
  double StepDelay_ = 0;
  bool isMusicOn_ = false;
  double MusicStarted_ = 0;  // seconds since midnight
};

}  // namespace ratanka::blocks
