#include "sheets/rules/example.h"

#include <map>

namespace ratanka::sheets {
namespace {

const std::map<char, std::string> kWords = {
    {'+', "plus"},     {'-', "mínus"},    {'x', "krát"},  {':', "delené"},
    {'=', "rovná sa"}, {'(', "zátvorka"}, {'?', "koľko"}, {')', "koniec zátvorky"}};

}  // namespace

std::string reading(const Example& example) {
  switch (example.box) {
    case Example::Box::firstOperand:
      return "?" + example.sign + example.first + " = " + example.second;
    case Example::Box::secondOperand:
      return example.first + example.sign + "? = " + example.second;
    case Example::Box::result:
      break;
  }
  return example.first + example.sign + example.second + " = ?";
}

std::string spoken(const Example& example) {
  std::string words;
  bool isNewWord = true;
  for (const char sign : reading(example)) {
    const auto word = kWords.find(sign);
    const bool isDigit = word == kWords.end() && sign != ' ';
    if (!words.empty() && sign != ' ' && (isNewWord || !isDigit)) words += ' ';
    if (sign != ' ') words += isDigit ? std::string(1, sign) : word->second;
    isNewWord = !isDigit;
  }
  return words;
}

}  // namespace ratanka::sheets
