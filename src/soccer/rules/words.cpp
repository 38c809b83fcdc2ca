#include "soccer/rules/words.h"

#include <array>
#include <utility>

namespace ratanka::soccer {
namespace {

std::string score(int first, int second) {
  return std::to_string(first) + " - " + std::to_string(second);
}

MessageBox box(const char* title, std::string text) {
  return {.title = title, .text = std::move(text), .icon = MessageBox::Icon::exclamation};
}

}  // namespace

MessageBox resultOfTwo(const Match& match) {
  const int red = match.RedGoals;
  const int blue = match.BlueGoals;
  constexpr auto kTitle = "Duelbal";
  if (red > blue) return box(kTitle, "Červený hráč vyhral ! " + score(red, blue));
  if (blue > red) return box(kTitle, "Modrý hráč vyhral ! " + score(blue, red));
  return box(kTitle, "Remíza! " + score(red, blue));
}

MessageBox resultAgainstComputer(const Match& match, std::string_view opponent) {
  const int red = match.RedGoals;
  const int blue = match.BlueGoals;
  const std::string name(opponent);
  constexpr auto kTitle = "Mini futbal";
  if (red > blue) return box(kTitle, "Vyhral " + name + " " + score(red, blue) + " !");
  if (blue > red) {
    return box(kTitle, "Gratulujem - zvíťazil si nad : " + name + " " + score(blue, red) + " !");
  }
  return box(kTitle, "Remíza " + score(red, blue));
}

std::string clockOfTwo(int timeLeft) { return "Časomiera: " + std::to_string(timeLeft); }

std::string clockAgainstComputer(int timeLeft) { return "Časomiera : " + std::to_string(timeLeft); }

std::string_view opponentName(int opponentIndex) {
  constexpr std::array<std::string_view, 5> kNames{"Morko", "Ludvar", "Hostin", "Dorvan", "Belko"};
  const bool isKnown = 1 <= opponentIndex && opponentIndex <= std::ssize(kNames);
  return isKnown ? kNames.at(opponentIndex - 1) : "";
}

}  // namespace ratanka::soccer
