#include "soccer/rules/compass.h"

#include <array>

namespace ratanka::soccer {
namespace {

// The outer width of the window of a match against the computer, in twips. The computer's thirds
// are thirds of it.
constexpr int kOuterWidth = 12000;

// What stands in the table: directions to hold, or a rule that looks closer.
struct Answer {
  using Rule = Held (*)(const Situation&);

  // NOLINTNEXTLINE(google-explicit-constructor): directions are answers, and the table says so
  constexpr Answer(const Held& directions) : held(directions) {}
  // NOLINTNEXTLINE(google-explicit-constructor)
  constexpr Answer(Rule closer) : rule(closer) {}

  Held held;
  Rule rule = nullptr;
};

Held thirdsRule(const Situation& situation) {
  return situation.match.Red.Left < kOuterWidth / 3 ? kUp + kRight : kUp + kLeft;
}

Held upByTactic(const Situation& situation) { return situation.Tactic <= 2 ? kUp : kNone; }

Held chaseFarFromHome(const Situation& situation) {
  return situation.match.Red.Left > 2500 ? chase(situation) : kNone;
}

struct Row {
  int point;                     // of the compass: where Red sees the ball
  std::array<Answer, 5> levels;  // from level 1
};

// Not every answer leads to the ball: this is how the weaker ones are weak. The points that don't
// stand here can't occur between Red and the ball.
// clang-format off
constexpr std::array<Row, 11> kCompass{{
    {2,  {kUp + kRight,   kUp,            upByTactic,    kUp,            kUp}},
    {4,  {kDown,          kRight,         kRight,        kRight,         kRight}},
    {6,  {kLeft + kDown,  kRight + kDown, kRight + kDown, kRight + kDown, kRight + kDown}},
    {7,  {kRight + kLeft, kRight + kLeft, kNone,         kRight + kLeft, kRight + kDown}},
    {8,  {kUp,            kDown,          kNone,         kNone,          kDown}},
    {9,  {kLeft,          kLeft,          kLeft,         kLeft,          chase}},
    {10, {kLeft,          kLeft,          kLeft,         kLeft,          chaseFarFromHome}},
    {12, {kUp + kLeft,    kUp + kLeft,    kUp + kLeft,   kNone,          kUp + kLeft}},
    {14, {kRight,         kDown,          kNone,         kDown,          chase}},
    {15, {kNone,          kRight + kUp,   kNone,         kLeft + kUp,    kLeft + kUp}},
    {16, {thirdsRule,     thirdsRule,     thirdsRule,    thirdsRule,     kUp + kLeft}},
}};
// clang-format on

}  // namespace

Held chase(const Situation& situation) {
  Held result;
  MovePlayerTowardsBall(result, situation.match);
  return result;
}

Held compassAnswer(const Situation& situation, int level) {
  const int point = GetDirection(situation.match.Red, situation.match.Ball);
  for (const Row& row : kCompass) {
    if (row.point != point) continue;
    const Answer& answer = row.levels.at(level - 1);
    return answer.rule == nullptr ? answer.held : answer.rule(situation);
  }
  return kNone;
}

}  // namespace ratanka::soccer
