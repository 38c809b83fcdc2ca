#pragma once

#include <QString>

#include "blocks/rules/options.h"
#include "platform/forms/form.h"
#include "platform/ports/dialogs.h"

class QCheckBox;

namespace ratanka {
class Button;
class TextBox;
}  // namespace ratanka

namespace ratanka::blocks {

// The options dialog of the falling blocks.
class frmOptions : public Form {
 public:
  // `settingsFile` is written at each OK and never read.
  frmOptions(Forms& forms, Dialogs& dialogs, Options& options, QString settingsFile);

 protected:
  void build() override;
  void Form_Load() override;
  void Form_Activate() override;
  void Form_KeyDown(int keyCode) override;

 private:
  void txtStartingLevel_LostFocus();
  void checkLevel();
  void checkLevelIfDue();
  void cmdOk_Click();
  void Command1_Click();
  void close();

  Dialogs& dialogs_;
  Options& options_;
  QString settingsFile_;
  bool isOpen_ = false;
  bool isCheckDue_ = false;  // once the mouse button that took the keyboard away is up again
  TextBox* txtStartingLevel_ = nullptr;
  QCheckBox* chkFillLines_ = nullptr;
  QCheckBox* chkPlaySounds_ = nullptr;
  Button* cmdOk_ = nullptr;
  Button* command1_ = nullptr;
};

}  // namespace ratanka::blocks
