#pragma once

#include <gtest/gtest.h>

#include <cctype>
#include <optional>
#include <string>

namespace ratanka::sheets {

// Reckons as a child reads: from left to right, brackets first. A step below 0 and a sign that no
// child knows are failures.
class Reckoner {
 public:
  static int value(const std::string& text) {
    Reckoner reckoner(text);
    const int result = reckoner.chain();
    EXPECT_EQ(reckoner.at_, text.size()) << text;
    return result;
  }

 private:
  explicit Reckoner(const std::string& text) : text_(text) {}

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

  const std::string& text_;
  std::size_t at_ = 0;
};

// The number that makes an equation with a "?" for an operand or for the right side true.
inline std::optional<int> solve(const std::string& equation) {
  const std::size_t equals = equation.find('=');
  const std::string left = equation.substr(0, equals);
  const std::size_t gap = equation.find('?');
  if (gap > equals) return Reckoner::value(left);
  const int right = Reckoner::value(equation.substr(equals + 1));
  const std::size_t sign = left.find_first_of("+-");
  const int operand = Reckoner::value(gap < sign ? left.substr(sign + 1) : left.substr(0, sign));
  if (left[sign] == '+') return right - operand;
  return gap < sign ? right + operand : operand - right;
}

}  // namespace ratanka::sheets
