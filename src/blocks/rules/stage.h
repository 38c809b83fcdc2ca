#pragma once

#include <string>
#include <string_view>

#include "blocks/rules/game_state.h"

namespace ratanka::blocks {

// What the engine asks of the window that it plays in. The window may be unloaded while events are
// let through: until the game has ended, which is soon, calls can still come and then do nothing.
class Stage {
 public:
  enum class WindowState { normal, minimised, maximised };
  enum class Label { lblScore, lblLines, lblLevel };

  virtual ~Stage() = default;

  // Paints the cells in which the two differ. Lets no events through, as nothing here does but the
  // last two.
  virtual void DrawBoard(const Well& board, const Well& oldBoard) = 0;
  // Paints the whole picBoard anew from what was drawn.
  virtual void repaintBoard() = 0;
  virtual void showNext(int kind) = 0;  // in picNext
  virtual void write(Label label, const std::string& text) = 0;
  virtual void setCaption(std::string_view caption) = 0;
  // In a game mnuNewGame is disabled, mnuPause and mnuEndGame are enabled; without one it is the
  // other way round.
  virtual void setMenu(bool isInGame) = 0;
  virtual WindowState windowState() const = 0;

  // The engine has looked whether sounds are on. Waves and music return at once, and what can't be
  // played is silent.
  virtual void PlayEffect(std::string_view file) = 0;
  virtual void MusicOpenAndPlay() = 0;
  // From the beginning, also where nobody opened it: sounds may be switched on in mid-game.
  virtual void MusicPlay() = 0;
  virtual void MusicClose() = 0;

  // Events come from here and nowhere else: keys, menu items, and the end of the window.
  // Handles what is pending.
  virtual void letEventsThrough() = 0;
  // Sleeps until something happens and handles it, at the latest until so many seconds are over;
  // they are more than 0. May come back early without an event, but not at once for long: the
  // engine asks again until its time is over.
  virtual void awaitEvents(double seconds) = 0;
};

}  // namespace ratanka::blocks
