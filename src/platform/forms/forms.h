#pragma once

#include <functional>
#include <map>
#include <memory>

#include "platform/forms/program_state.h"
#include "platform/ports/form_name.h"

namespace ratanka {

class Form;

// Owns the forms of the program, each at most once, and shows and takes them down by their names.
//
// A form's object holds its variables, its window its controls, and the two die apart: `unload`
// closes the window and keeps the variables, `drop` throws the variables away too. All of it may be
// called from inside a handler of the very form: what the handler still stands on is kept until it
// has returned. A form that isn't there is passed over, and a name without a maker does nothing.
//
// The program ends when its last handler has returned and none of its windows is to be seen.
class Forms {
 public:
  using Maker = std::function<std::shared_ptr<Form>()>;

  explicit Forms(Ticks& ticks);
  Forms(const Forms&) = delete;
  Forms& operator=(const Forms&) = delete;
  ~Forms();

  void setMaker(FormName name, Maker maker);
  bool hasMaker(FormName name) const { return makers_.contains(name); }

  // Makes the form where there is none, loads it where it isn't loaded, and brings it up in front.
  void show(FormName name);
  // The same, and waits until the form is hidden or unloaded; no other window of the program can be
  // used meanwhile.
  void showModal(FormName name);
  // A hidden form's timers tick on, a few times a second at most.
  void hide(FormName name);
  void unload(FormName name);
  // Unloads first what is still loaded.
  void drop(FormName name);
  bool isLoaded(FormName name) const;

  // Ends the program at once with whatever is open: no further window, box or handler.
  void endProgram() { state_.end(); }
  bool isEnding() const { return state_.isEnding(); }

  // For forms to share.
  ProgramState& state() { return state_; }

 private:
  std::shared_ptr<Form> find(FormName name) const;
  bool anyVisible() const;
  std::shared_ptr<Form> findOrMake(FormName name);
  void loadAnd(FormName name, void (Form::*display)());

  ProgramState state_;
  std::map<FormName, Maker> makers_;
  std::map<FormName, std::shared_ptr<Form>> forms_;
};

}  // namespace ratanka
