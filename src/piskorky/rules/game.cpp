#include "piskorky/rules/game.h"

#include "piskorky/rules/computer.h"

namespace ratanka::piskorky {

void Game::play(int cell) {
  if (turn_ != Mark::X || !board_.isEmpty(cell) || found_) return;
  put(cell, Mark::X);
  turn_ = Mark::O;
  ArmComputerMove();
  lblnum_ += 2;
}

void Game::newGame() {
  finish();
  board_ = {};
  strokes_.reset();
  lblnum_ = 1;
  timers_ = {};
  found_.reset();
  isScanDue_ = false;
  turn_ = Mark::X;
}

bool Game::hasWork() const {
  return (timers_.Timer1 && isScanDue_) || (timers_.Timer4 && found_) || timers_.Timer2 ||
         timers_.Timer3;
}

std::optional<Outcome> Game::tick(Random& random) {
  if (timers_.Timer1) scan();
  if (timers_.Timer4 && found_) {
    timers_ = {false, false, false, false};
    isFinishDue_ = true;
    return found_;
  }
  reply(random);
  return std::nullopt;
}

void Game::finish() {
  if (!isFinishDue_) return;
  isFinishDue_ = false;
  if (xWon()) ++won_;
  if (oWon()) ++lost_;
  turn_ = Mark::none;
}

void Game::put(int cell, Mark mark) {
  board_.put(cell, mark);
  isScanDue_ = true;
}

// The first two replies of a game are pure chance.
void Game::ArmComputerMove() {
  if (lblnum_ < 4) {
    timers_.Timer3 = true;
  } else {
    timers_.Timer2 = true;
  }
}

// A child quicker than the scan can have filled a line after the computer did: then both are
// struck, and the computer's counts.
void Game::scan() {
  isScanDue_ = false;
  if (strike(Mark::X)) found_ = Outcome::won;
  if (strike(Mark::O)) found_ = Outcome::lost;
  if (board_.isFull() && !xWon() && !oWon()) found_ = Outcome::tied;
}

bool Game::strike(Mark mark) {
  const Lines lines = board_.fullLines(mark);
  strokes_ |= lines;
  return lines.any();
}

void Game::reply(Random& random) {
  std::optional<int> cell;
  if (timers_.Timer2) {
    timers_.Timer2 = false;
    cell = ruleMove(board_);
    timers_.Timer3 = !cell;  // no rule applies: left to chance, in the next round
  } else if (timers_.Timer3) {
    timers_.Timer3 = false;
    cell = randomMove(board_, random);
  }
  if (!cell) return;
  put(*cell, Mark::O);
  turn_ = Mark::X;
}

}  // namespace ratanka::piskorky
