#pragma once

#include "soccer/match_form.h"

namespace ratanka::soccer {

// A match of two children at one keyboard: Red on the letters W, A, S and D, Blue on the arrows.
class frmPlayer2 : public MatchForm {
 public:
  frmPlayer2(Forms& forms, Dialogs& dialogs, Declarations& declarations);

 protected:
  MessageBox result() const override;
  std::string clockText() const override;
};

}  // namespace ratanka::soccer
