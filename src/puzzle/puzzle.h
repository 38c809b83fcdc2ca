#pragma once

#include <array>

#include "platform/forms/form.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/random.h"
#include "platform/ports/sound.h"
#include "puzzle/rules/game.h"
#include "puzzle/rules/records.h"

class QAction;
class QComboBox;

namespace ratanka {
class Button;
}

namespace ratanka::puzzle {

// The sliding puzzle: a board of 3 to 7 tiles a side against the clock, and the best times.
class frmPuzzle : public Form {
 public:
  frmPuzzle(Forms& forms, Dialogs& dialogs, Random& random, Sound& sound, SettingsStore& settings);

 protected:
  void build() override;
  void Form_Load() override;
  void Form_Resize() override;

 private:
  void buildBoard();
  void buildChoice();
  void buildMenu();

  void cmdButton_MouseDown(int index);
  void cmdShuffle_Click();
  void cmbSize_Click();
  void Timer1_Timer();
  void mnuHighScore_Click();
  void mnuExit_Click();
  void end(int seconds);
  void play(std::string_view wave);
  void refresh();
  void refreshTile(int index);

  Dialogs& dialogs_;
  Random& random_;
  Sound& sound_;
  Records records_;
  Game game_;
  std::array<Button*, kButtons> cmdButton_{};
  Button* cmdShuffle_ = nullptr;
  QComboBox* cmbSize_ = nullptr;
  QAction* mnuSound_ = nullptr;
  Timer* timer1_ = nullptr;
};

}  // namespace ratanka::puzzle
