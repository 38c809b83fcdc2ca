#pragma once

#include <array>
#include <string>

#include "platform/ports/units.h"
#include "screen/process.h"

namespace ratanka::screen {

// An X server of 24 bits that nobody sees, with a window manager. Both end with this object. Throws
// a runtime_error where they don't come.
class PrivateScreen {
 public:
  explicit PrivateScreen(PixelSize size);
  ~PrivateScreen();
  PrivateScreen(const PrivateScreen&) = delete;
  PrivateScreen& operator=(const PrivateScreen&) = delete;

  const std::string& display() const { return display_; }  // as a robot wants it
  // For the programs on this screen.
  std::string variable() const { return "DISPLAY=" + display_; }

 private:
  std::array<int, 2> number_;  // a pipe through which the server tells its number
  Process server_;
  std::string display_;
  Process windowManager_;
};

}  // namespace ratanka::screen
