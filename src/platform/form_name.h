#pragma once

#include <compare>
#include <string_view>

namespace ratanka {

// The name of a form: how the rest of the program asks for it, and the object name of its window.
// The text must outlive the program (a literal).
class FormName {
 public:
  constexpr explicit FormName(std::string_view text) : text_(text) {}
  constexpr std::string_view text() const { return text_; }
  friend constexpr auto operator<=>(const FormName&, const FormName&) = default;

 private:
  std::string_view text_;
};

}  // namespace ratanka
