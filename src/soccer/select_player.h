#pragma once

#include <array>

#include "platform/forms/form.h"
#include "soccer/rules/declarations.h"

class QLabel;

namespace ratanka::soccer {

inline constexpr int kOpponents = 5;

// The window in which a child picks an opponent, and with him the level of the computer.
class frmSelectPlayer : public Form {
 public:
  frmSelectPlayer(Forms& forms, Declarations& declarations);

 protected:
  void build() override;
  void Form_Load() override { bordered_ = 0; }
  void Form_KeyDown(int keyCode) override;
  void closeAsked() override { backToTitle(); }

 private:
  void backToTitle();
  void picOpponent_MouseMove(int index);
  void picOpponent_MouseUp(int index);
  QWidget* addOpponent(int index, int left);

  Declarations& declarations_;
  std::array<QWidget*, kOpponents> picOpponent_{};
  std::array<QLabel*, kOpponents> lblName_{};
  int bordered_ = 0;  // 1 to 5; 0 for none
};

}  // namespace ratanka::soccer
