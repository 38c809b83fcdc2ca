#include "puzzle/rules/game.h"

namespace ratanka::puzzle {

Game::Press Game::press(int place) {
  Press result;
  if (board_.isNextToBlank(place)) {
    result.movedTo = board_.Blank();
    board_.MoveTile(place);
  }
  solved_ = board_.isInOrder();
  if (!solved_) return result;
  if (isPlaying_) result.time = seconds_;
  isPlaying_ = false;
  seconds_ = 0;
  return result;
}

void Game::shuffleOrReset(Random& random) {
  if (!solved_) {
    ResetBoard(board_.Size());
    return;
  }
  board_.ShuffleBoard(random);
  solved_ = false;
  isPlaying_ = true;
}

void Game::chooseSize(int Size) {
  if (Size != board_.Size()) ResetBoard(Size);
}

void Game::tick() {
  if (!isClockOn()) return;
  ++seconds_;
  caption_ = "Čas: " + std::to_string(seconds_) + " s";
}

void Game::ResetBoard(int Size) {
  caption_ = "Pucle";
  seconds_ = 0;
  isPlaying_ = false;
  solved_ = true;
  board_ = Board(Size);
}

}  // namespace ratanka::puzzle
