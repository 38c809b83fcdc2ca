#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

#include "platform/forms/form_design.h"
#include "platform/forms/window_owner.h"

class QMenuBar;
class QWidget;

namespace ratanka {

class Forms;
class FormWindow;
class ProgramState;
class Timer;

// One form of the program: its variables live in the object, its controls in a window that comes
// with `load` and goes with `unload`. A subclass lays out its controls in `build`, connects its
// handlers there by `on`, and answers the events of its life.
//
// While a handler of this form runs, the form and the controls that it started with stay in memory,
// even when it unloads or drops its own form. Controls of an unloaded form can still be touched
// until then, without an effect. No handler of an unloaded form starts.
class Form : public std::enable_shared_from_this<Form>, private WindowOwner {
 public:
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  ~Form() override;

  bool isLoaded() const { return window_ != nullptr; }
  // Only of a loaded form.
  QWidget& window() const;
  // Where its controls lie: all of the window but the bar of menus.
  QWidget& client() const;
  bool isMinimised() const;

 protected:
  Form(Forms& forms, FormDesign design);

  // Lays out and connects the controls of a fresh window.
  virtual void build() = 0;
  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  // The form became the active one of the program, where another of its forms was before. Coming
  // back from another program or from a box isn't that.
  virtual void Form_Activate() {}
  // The window was first shown, minimised, or brought back.
  virtual void Form_Resize() {}
  // A key goes down on the form, by the system's code (platform/keyboard/keys.h); a held key
  // repeats. The form sees it before the control that has the keyboard does.
  virtual void Form_KeyDown(int /*keyCode*/) {}
  virtual void Form_KeyUp(int /*keyCode*/) {}
  // The desktop is asked to close the window, by its close box or a key of the desktop's own. Not
  // while the program waits at a box.
  virtual void closeAsked() { unload(); }
  // Another window, or a menu, takes the keyboard: keys that are held now may come up unseen.
  virtual void keyboardLeaves() {}

  Forms& forms() const { return forms_; }

  // Runs `handler` at each signal of a control of this form, with the signal's arguments where it
  // takes them.
  template <typename Sender, typename Signal, typename Handler>
  void on(Sender* sender, Signal signal, Handler handler) {
    QObject::connect(sender, signal, connections_.get(), [this, handler](const auto&... arguments) {
      if (hasEnded()) return;
      const HandlerScope scope(*this);
      if constexpr (std::is_invocable_v<Handler>) {
        handler();
      } else {
        handler(arguments...);
      }
    });
  }

  // A timer of this form, off at first. Its tick is an event between other events: one that comes
  // while a handler of this form runs, or stands at a box, waits for the handler's end.
  Timer* timer(const QString& name, int milliseconds, std::function<void()> handler);

  // The bar of a form that has menus; platform/controls/menus.h fills it.
  QMenuBar& menuBar() const;

  // Cuts the window to an outline in logical pixels, filled by the even-odd rule, and lets it be
  // dragged by its background with any mouse button. Only while the form loads.
  void cutTo(const std::vector<ScreenPoint>& outline);

  // Makes the client area that large, in logical pixels.
  void setClientSize(const PixelSize& size);

  // Gives the keyboard to a control, and brings its window in front where another window of the
  // program has it.
  void giveFocus(QWidget& control);

 private:
  friend class Forms;  // loads, shows and takes down

  class HandlerScope {
   public:
    explicit HandlerScope(Form& form);
    ~HandlerScope();
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;

   private:
    std::shared_ptr<Form> form_;
  };

  // What the window tells.
  void windowBecameActive() override;
  void windowChanged(WindowChange change) override;
  void keyWentDown(int keyCode) override;
  void keyCameUp(int keyCode) override;

  bool hasEnded() const;  // the whole program
  ProgramState& state() const;
  void load();
  void unload();
  void bringUp();
  void runModally();
  void hide();
  void deliverTicks();
  void endTimers();
  void letGo();

  Forms& forms_;
  FormDesign design_;
  FormWindow* window_ = nullptr;
  std::unique_ptr<QObject> connections_;  // what every handler hangs on; gone, none can start
  std::vector<FormWindow*> leaving_;      // unloaded windows that a running handler may stand on
  std::vector<Timer*> timers_;
  int handlersRunning_ = 0;
  bool isUnloading_ = false;
};

}  // namespace ratanka
