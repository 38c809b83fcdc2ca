#include "shell/splash.h"

#include "platform/forms/forms.h"
#include "shell/names.h"
#include "shell/rules/advice.h"

namespace ratanka {

frmSplash::frmSplash(Forms& forms, Dialogs& dialogs, const Desktop& desktop, Premenné& premenné)
    : Form(forms, {.name = names::frmSplash}),
      dialogs_(dialogs),
      desktop_(desktop),
      premenné_(premenné) {}

void frmSplash::Form_Load() {
  const PixelSize size = desktop_.size();
  premenné_.ŠírkaObrazovky = size.width;
  premenné_.VýškaObrazovky = size.height;
  if (const auto advice = screenAdvice(size.width, size.height)) {
    dialogs_.message({.title = "Grafické nastavenie", .text = *advice});
  }
  forms().show(names::Úvod);
  forms().drop(names::frmSplash);
}

}  // namespace ratanka
