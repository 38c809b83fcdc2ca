#include "shell/rules/advice.h"

namespace ratanka {
namespace {

constexpr int kAdvisedWidth = 1024;

// A number as text, with room for its sign.
void append(std::string& text, int number) { text.append(" ").append(std::to_string(number)); }

}  // namespace

std::optional<std::string> screenAdvice(int width, int height) {
  if (width == kAdvisedWidth) return std::nullopt;
  std::string advice = "Váš monitor je teraz nastavený v grafickom zobrazení na hodnotu ";
  append(advice, width);
  advice.append(" * ");
  append(advice, height);
  return advice.append("\r\nPre tento program odporúčam nastavenie na 1024 * 768");
}

}  // namespace ratanka
