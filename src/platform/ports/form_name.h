#pragma once

#include <string_view>

namespace ratanka {

// The name of a form: how the rest of the program asks for it, and the object name of its window.
// The text must outlive the program (a literal).
class FormName {
 public:
  constexpr explicit FormName(std::string_view text) : text_(text) {}
  constexpr std::string_view text() const { return text_; }
  friend constexpr bool operator==(const FormName&, const FormName&) = default;
  friend constexpr bool operator<(const FormName& a, const FormName& b) {
    return a.text_ < b.text_;
  }

 private:
  std::string_view text_;
};

}  // namespace ratanka
