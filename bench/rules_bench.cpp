#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstdint>

#include "blocks/rules/kockovka.h"
#include "platform/keyboard/keys.h"
#include "platform/plain/twister_random.h"
#include "sheets/rules/sums.h"
#include "sheets/rules/worksheet.h"
#include "soccer/rules/computer.h"

namespace ratanka::sheets {
namespace {

// One set of a visit: nine examples drawn, answered rightly, judged, and the mark worked out.
void aSetOfSmallSums(benchmark::State& state) {
  TwisterRandom random;
  Worksheet worksheet(Worksheet::Percentage::exact);
  worksheet.beginVisit(malá::ShowStart(random));
  while (state.KeepRunning()) {
    for (int row = 1; row <= kRows; ++row) {
      benchmark::DoNotOptimize(worksheet.close(row));
      worksheet.judge(row, std::to_string(worksheet.row(row).example.Výsledok));
    }
    benchmark::DoNotOptimize(worksheet.ShowVysvedčenie());
    worksheet.ShowOpakuj(malá::ShowStart(random));
  }
  // A set that was judged wrongly would be no measure of anything.
  if (worksheet.Nesprávne().count != 0) state.SkipWithError("a right answer was judged wrong");
}
BENCHMARK(aSetOfSmallSums)->Name("a set of small sums")->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace ratanka::sheets

namespace ratanka::soccer {
namespace {

// A millisecond of a match at level 5 with all ticks as the window gets them, against a child who
// holds keys by chance.
void aMatchsTicks(benchmark::State& state) {
  constexpr int kSettled = 10000;
  TwisterRandom random;
  Declarations declarations;
  Match match;
  Computer computer;
  std::int64_t ms = 0;
  bool wasTapped = false;
  const auto isHeld = [&] { return random.below(2) == 1; };
  while (state.KeepRunning()) {
    if (declarations.TimeLeft == 0) {
      match.StartMatch(declarations);
      computer.planMatch(random);
    }
    ++ms;
    if (ms % 100 == 0) match.blueHeld = {isHeld(), isHeld(), isHeld(), isHeld()};
    if (ms % 10 == 0) match.movePlayersAndTap();
    if (ms % 40 == 0 && match.moveBallAndTap()) computer.planKickOff(random);
    match.tmrBallTap();
    if (ms % 1000 == 0) match.tmrCountdown(declarations);
    computer.ComputerBrain(match, 5, random);
    wasTapped = wasTapped || match.BallStepX != 0;
  }
  state.SetItemsProcessed(state.iterations());
  // A match in which nobody plays would be no measure of anything.
  if (ms > kSettled && !wasTapped) state.SkipWithError("nobody touched the ball");
}
BENCHMARK(aMatchsTicks)->Name("a match's ticks")->Unit(benchmark::kNanosecond);

}  // namespace
}  // namespace ratanka::soccer

namespace ratanka::blocks {
namespace {

// A window that takes no work, and whose time passes at once.
class NoStage : public Stage, public Clock {
 public:
  void DrawBoard(const Well& board, const Well&) override {
    ++steps;
    benchmark::DoNotOptimize(&board);
  }
  void repaintBoard() override {}
  void showNext(int) override {}
  void write(Label, const std::string&) override {}
  void setCaption(std::string_view) override {}
  void setMenu(bool) override {}
  WindowState windowState() const override { return WindowState::normal; }
  void PlayEffect(std::string_view) override {}
  void MusicOpenAndPlay() override {}
  void MusicPlay() override {}
  void MusicClose() override {}
  void letEventsThrough() override {}
  // The child moves now and then, so that not every piece lands in the middle.
  void awaitEvents(double seconds) override {
    constexpr std::array kMoves{key::kLeft, key::kUp, key::kRight, key::kRight};
    game->keyDown(kMoves.at(static_cast<std::size_t>(steps) % kMoves.size()));
    now_ += seconds + 1e-6;
  }
  TimeOfDay timeOfDay() const override { return {}; }
  double secondsSinceMidnight() const override { return std::fmod(now_, 86400); }

  Kockovka* game = nullptr;
  std::int64_t steps = 0;

 private:
  double now_ = 0;
};

// Steps and moves of whole games, each with its drawing; a game takes about two hundred.
void gamesOfBlocks(benchmark::State& state) {
  TwisterRandom random;
  const Options options;
  NoStage stage;
  Kockovka game(options, stage, stage, random);
  stage.game = &game;
  while (state.KeepRunning()) game.StartGame();
  state.SetItemsProcessed(stage.steps);  // in a column that all have: CSV knows no other
  if (game.Game().Active || stage.steps < state.iterations() * 10) state.SkipWithError("no games");
}
BENCHMARK(gamesOfBlocks)->Name("a game of blocks")->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace ratanka::blocks

BENCHMARK_MAIN();
