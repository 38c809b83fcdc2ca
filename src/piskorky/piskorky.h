#pragma once

#include <array>

#include "piskorky/rules/game.h"
#include "platform/forms/form.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/random.h"

class QLabel;
class QWidget;

namespace ratanka {
class Timer;
}

namespace ratanka::piskorky {

// Noughts and crosses against the computer. The form polls only while the rules have something to
// do: it costs nothing while it waits for the child.
class Piškôrky : public Form {
 public:
  Piškôrky(Forms& forms, Dialogs& dialogs, Random& random);

 protected:
  void build() override;
  void Form_Load() override;

 private:
  void buildBoard();
  void buildPanel();

  void s_Click(int index);
  void Timer1_Timer();
  void Command1_Click();
  void Command2_Click();
  void refresh();

  Dialogs& dialogs_;
  Random& random_;
  Game game_;

  std::array<QLabel*, kCells> s_{};
  std::array<QWidget*, kLines> strokes_{};
  QLabel* won_ = nullptr;
  QLabel* lost_ = nullptr;
  QLabel* lblnum_ = nullptr;
  QLabel* turn_ = nullptr;
  Timer* poll_ = nullptr;
};

}  // namespace ratanka::piskorky
