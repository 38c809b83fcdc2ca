#pragma once

#include "platform/forms/desktop.h"
#include "platform/forms/form.h"
#include "platform/ports/dialogs.h"
#include "shell/rules/premenne.h"

namespace ratanka {

// The start: looks at the screen, gives its advice and hands over to the menu while it loads, so
// that it is never seen.
class frmSplash : public Form {
 public:
  frmSplash(Forms& forms, Dialogs& dialogs, const Desktop& desktop, Premenné& premenné);

 protected:
  void build() override {}
  void Form_Load() override;

 private:
  Dialogs& dialogs_;
  const Desktop& desktop_;
  Premenné& premenné_;
};

}  // namespace ratanka
