#pragma once

#include "platform/ports/dialogs.h"

namespace ratanka {

class Forms;

// The toolkit's own boxes, in Slovak. The translation is read with the first box.
class QtDialogs : public Dialogs {
 public:
  explicit QtDialogs(const Forms& forms) : forms_(forms) {}

  Answer message(const MessageBox& box) override;
  std::optional<std::string> input(const std::string& title, const std::string& prompt,
                                   const std::string& preset) override;

 private:
  void speakSlovak();

  const Forms& forms_;
  bool speaksSlovak_ = false;
};

}  // namespace ratanka
