#pragma once

namespace ratanka {

enum class WindowChange { closeAsked, minimisedOrBack, keyboardLeaves };

// Who hears what the window system says of a window.
class WindowOwner {
 public:
  virtual ~WindowOwner() = default;
  virtual void windowBecameActive() = 0;
  virtual void windowChanged(WindowChange change) = 0;
  // By the system's code (platform/keyboard/keys.h); a held key goes down again and again.
  virtual void keyWentDown(int keyCode) = 0;
  virtual void keyCameUp(int keyCode) = 0;
};

}  // namespace ratanka
