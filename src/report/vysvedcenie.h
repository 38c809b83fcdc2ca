#pragma once

#include <array>

#include "platform/forms/form.h"
#include "shell/rules/premenne.h"
#include "shell/sheet_list.h"

class QLabel;

namespace ratanka::report {

// The report card: the marks of all sheets, read once as it loads. Its OK is the way out of
// the program.
class Vysvedčenie : public Form {
 public:
  Vysvedčenie(Forms& forms, const Premenné& premenné);

 protected:
  void build() override;
  void Form_Load() override;
  void closeAsked() override { Command1_Click(); }

 private:
  void ShowVýsledok1();
  void Command1_Click();

  const Premenné& premenné_;
  std::array<QLabel*, kSheetList.size()> marks_{};
};

}  // namespace ratanka::report
