#pragma once

#include "platform/ports/random.h"
#include "soccer/match_form.h"
#include "soccer/rules/computer.h"

class QWidget;

namespace ratanka::soccer {

// A match of one child, Blue on the arrows, against the computer, which plays Red at the level of
// the chosen opponent by holding Red's directions itself.
class frmPlayer1 : public MatchForm {
 public:
  frmPlayer1(Forms& forms, Dialogs& dialogs, Random& random, Declarations& declarations);

 protected:
  void build() override;
  void Form_Unload() override;
  void Form_Activate() override;
  void Form_KeyDown(int keyCode) override;
  void Form_KeyUp(int keyCode) override;
  void keyboardLeaves() override;
  void StartMatch() override;
  void kickedOff() override { computer_.planKickOff(random_); }
  MessageBox result() const override;
  std::string clockText() const override;

 private:
  void ComputerBrain_Timer();
  void showDirection();

  Random& random_;
  Computer computer_;
  QLabel* lblDirection_ = nullptr;
  QLabel* lblOpponent_ = nullptr;
  QWidget* opponentPortrait_ = nullptr;
};

}  // namespace ratanka::soccer
