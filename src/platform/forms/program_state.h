#pragma once

#include <functional>

#include "platform/keyboard/keyboard.h"

namespace ratanka {

class FormWindow;
class Ticks;

// What the forms of one program share: its time, its keyboard, the window that has the keyboard,
// which handlers run, and whether it ends.
class ProgramState {
 public:
  // `whenIdle` is called each time that the last running handler has returned.
  ProgramState(Ticks& ticks, std::function<void()> whenIdle)
      : ticks_(ticks), whenIdle_(std::move(whenIdle)) {}
  ProgramState(const ProgramState&) = delete;
  ProgramState& operator=(const ProgramState&) = delete;

  Ticks& ticks() { return ticks_; }
  Keyboard& keyboard() { return keyboard_; }

  // The window of the form that had the keyboard last; null where it has gone since.
  FormWindow* active() const { return active_; }
  // Whether another one was active before, or none.
  bool makeActive(FormWindow& window);
  void leave(const FormWindow& window);

  void handlerStarted() { ++handlersRunning_; }
  void handlerReturned();

  // Ends the program at once with whatever is open: no further window, box or handler.
  void end();
  bool isEnding() const { return isEnding_; }

 private:
  Ticks& ticks_;
  std::function<void()> whenIdle_;
  Keyboard keyboard_;
  FormWindow* active_ = nullptr;
  int handlersRunning_ = 0;
  bool isEnding_ = false;
};

}  // namespace ratanka
