#include "sheets/rules/worksheet.h"

#include "shell/rules/mark.h"

namespace ratanka::sheets {

void Worksheet::beginVisit(const Examples& examples) {
  ShowOpakuj(examples);
  správne_.shown = 0;
  nesprávne_.shown = 0;
  mark_.reset();
  isRewarded_ = false;
}

std::optional<int> Worksheet::close(int row) {
  at(row).isOpen = false;
  if (row == kRows) return std::nullopt;
  for (const int next : {row + 1, 1}) {
    if (at(next).isOpen) return next;
  }
  return std::nullopt;
}

void Worksheet::judge(int row, std::string_view text) {
  const bool isRight = text == std::to_string(at(row).example.Výsledok);
  at(row).outcome = isRight ? Outcome::right : Outcome::wrong;
  Counter& counter = isRight ? správne_ : nesprávne_;
  counter.shown = ++counter.count;
}

std::optional<double> Worksheet::ShowVysvedčenie() {
  if (správne_.count == 0) return std::nullopt;
  double result = percentage(správne_.count, nesprávne_.count);
  if (percentage_ == Percentage::whole) result = wholePercentage(result);
  mark_ = ratanka::mark(result);
  isRewarded_ = earnsReward(result);
  return result;
}

void Worksheet::ShowOpakuj(const std::optional<Examples>& examples) {
  for (int number = 1; number <= kRows; ++number) {
    Row& row = at(number);
    row.isOpen = true;
    row.outcome = Outcome::unjudged;
    if (examples) row.example = examples->at(number - 1);
  }
}

std::string verdict(const Worksheet::Row& row) {
  switch (row.outcome) {
    case Worksheet::Outcome::right:
      return "správne";
    case Worksheet::Outcome::wrong:
      return "nesprávne, správny výsledok je " + std::to_string(row.example.Výsledok);
    case Worksheet::Outcome::unjudged:
      break;
  }
  return {};
}

}  // namespace ratanka::sheets
