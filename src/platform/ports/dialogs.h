#pragma once

#include <optional>
#include <string>

namespace ratanka {

// Texts are UTF-8; a line ends in a carriage return and a line feed.
struct MessageBox {
  enum class Icon { none, information, exclamation };
  enum class Buttons { ok, yesNo };

  std::string title;
  std::string text;
  Icon icon = Icon::information;
  Buttons buttons = Buttons::ok;
  bool isNoPreset = false;  // of a question: Enter says no
  bool isBeside = false;    // leaves the form that asks to be seen
};

// Boxes that stop the child until they are answered. Timers of the other forms run on meanwhile.
class Dialogs {
 public:
  enum class Answer { ok, yes, no };

  virtual ~Dialogs() = default;
  // A box that is closed without a button, and every box of an ending program, counts as OK or as
  // no.
  virtual Answer message(const MessageBox& box) = 0;
  // The text that was entered; nothing after Cancel.
  virtual std::optional<std::string> input(const std::string& title, const std::string& prompt,
                                           const std::string& preset) = 0;
};

}  // namespace ratanka
