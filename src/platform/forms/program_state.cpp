#include "platform/forms/program_state.h"

#include <QApplication>
#include <QWidget>

namespace ratanka {

bool ProgramState::makeActive(FormWindow& window) {
  if (isEnding_ || active_ == &window) return false;
  active_ = &window;
  return true;
}

void ProgramState::leave(const FormWindow& window) {
  if (active_ == &window) active_ = nullptr;
}

void ProgramState::handlerReturned() {
  if (--handlersRunning_ == 0) whenIdle_();
}

void ProgramState::end() {
  if (isEnding_) return;
  isEnding_ = true;
  // Boxes too: a hidden box lets go of the handler that waits for it.
  for (QWidget* const window : QApplication::topLevelWidgets()) window->hide();
  QCoreApplication::exit(0);
}

}  // namespace ratanka
