#pragma once

#include "platform/forms/form.h"

namespace ratanka {

// The main menu: a button for each kind of reckoning and one for the report card.
class Úvod : public Form {
 public:
  explicit Úvod(Forms& forms);

 protected:
  void build() override;
  void Form_Load() override;
  // The day ends with the card.
  void closeAsked() override { Command6_Click(); }

 private:
  // A sheet whose form isn't made leaves the menu as it is.
  void handOverTo(FormName sheet);
  void Command6_Click();
};

}  // namespace ratanka
