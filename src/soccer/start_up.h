#pragma once

#include "platform/forms/form.h"

class QPushButton;

namespace ratanka::soccer {

// The door to Mini soccer: tells the keys and offers the two kinds of match.
class frmStartUp : public Form {
 public:
  explicit frmStartUp(Forms& forms);

 protected:
  void build() override;
  void Form_Unload() override;
  void Form_Activate() override;
  void Form_KeyDown(int keyCode) override;

 private:
  void buildControls();
  void buildButtons();
  void buildTitle();
  void cmd1Player_Click();
  void cmd2Player_Click();
  void imgEnd_Click();

  QPushButton* cmd1Player_ = nullptr;
  QPushButton* cmd2Player_ = nullptr;
};

}  // namespace ratanka::soccer
