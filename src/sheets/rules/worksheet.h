#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "sheets/rules/example.h"

namespace ratanka::sheets {

// The rules of an exercise sheet: nine rows that are answered and judged one by one, the counters
// over all sets of a visit, and the running mark. What stands on the sheet stands here, and changes
// at the same moments. Rows are numbered from 1 to 9.
class Worksheet {
 public:
  enum class Outcome { unjudged, right, wrong };
  enum class Percentage { exact, whole };

  struct Row {
    Example example;
    bool isOpen = true;  // takes an answer
    Outcome outcome = Outcome::unjudged;
  };

  struct Counter {
    int count = 0;
    int shown = 0;  // as it last stood on the sheet in this visit
  };

  explicit Worksheet(Percentage percentage) : percentage_(percentage) {}

  // A visit begins with a fresh sheet. The counters show 0, but count on where an earlier visit
  // left them.
  void beginVisit(const Examples& examples);

  // Closes an open row, which is the beginning of its answer. Returns the row that the keyboard
  // goes to: the next one if it is open, else the first one if it is open, else none. After the
  // last row it goes nowhere.
  std::optional<int> close(int row);

  // Judges a closed row by its text, which is right if it is the result's decimal text character
  // for character.
  void judge(int row, std::string_view text);

  // Works out mark and reward over the whole visit. Returns the percentage to store; nothing, and
  // changes nothing, while no answer was right.
  std::optional<double> ShowVysvedčenie();

  // Opens and clears all rows; without new examples the old ones are asked again.
  void ShowOpakuj(const std::optional<Examples>& examples);

  const Row& row(int number) const { return rows_.at(number - 1); }
  const Counter& Správne() const { return správne_; }
  const Counter& Nesprávne() const { return nesprávne_; }
  std::optional<int> mark() const { return mark_; }  // none until it is first worked out
  bool isRewarded() const { return isRewarded_; }

 private:
  Row& at(int number) { return rows_.at(number - 1); }

  Percentage percentage_;
  std::array<Row, kRows> rows_;
  Counter správne_;
  Counter nesprávne_;
  std::optional<int> mark_;
  bool isRewarded_ = false;
};

// How a row was judged, for the ear: "správne", or "nesprávne, správny výsledok je 5"; empty for a
// row that isn't judged.
std::string verdict(const Worksheet::Row& row);

}  // namespace ratanka::sheets
