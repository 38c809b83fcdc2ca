#pragma once

#include <gtest/gtest.h>

#include <cctype>
#include <optional>
#include <string>

namespace ratanka::sheets {

// Reckons as a child reads: from left to right, brackets first.
class Reckoner {
 public:
  explicit Reckoner(std::string text) : text_(std::move(text)) {}

  // The value of the whole text; a step below 0 and a sign that no child knows are failures.
  int value() {
    const int result = chain();
    EXPECT_EQ(at_, text_.size()) << text_;
    return result;
  }

 private:
  char peek() {
    while (at_ < text_.size() && text_[at_] == ' ') ++at_;
    return at_ < text_.size() ? text_[at_] : '\0';
  }

  int term() {
    if (peek() == '(') {
      ++at_;
      const int inside = chain();
      EXPECT_EQ(peek(), ')') << text_;
      ++at_;
      return inside;
    }
    int number = 0;
    EXPECT_TRUE(std::isdigit(static_cast<unsigned char>(peek()))) << text_;
    while (std::isdigit(static_cast<unsigned char>(peek())))
      number = 10 * number + text_[at_++] - '0';
    return number;
  }

  int chain() {
    int value = term();
    while (peek() != '\0' && peek() != ')') {
      const char sign = text_[at_++];
      const int next = term();
      if (sign == '+') value += next;
      if (sign == '-') value -= next;
      if (sign == 'x') value *= next;
      if (sign == ':') value = next == 0 || value % next != 0 ? -1 : value / next;
      EXPECT_NE(std::string("+-x:").find(sign), std::string::npos) << text_;
      EXPECT_GE(value, 0) << text_;
    }
    return value;
  }

  std::string text_;
  std::size_t at_ = 0;
};

// The only number from 0 to 200 that makes an equation with a "?" true; none or several: failure.
inline std::optional<int> solve(const std::string& equation) {
  const std::size_t equals = equation.find('=');
  const std::size_t gap = equation.find('?');
  if (gap > equals) return Reckoner(equation.substr(0, equals)).value();
  const int right = Reckoner(equation.substr(equals + 1)).value();
  const std::string left = equation.substr(0, equals);
  const bool subtracts = left.find('-') != std::string::npos;
  const std::string known = gap < left.find_first_of("+-")
                                ? left.substr(left.find_first_of("+-") + 1)
                                : left.substr(0, left.find_first_of("+-"));
  const int operand = Reckoner(known).value();
  if (!subtracts) return right - operand;
  return gap < left.find('-') ? right + operand : operand - right;
}

}  // namespace ratanka::sheets
