#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "blocks/fake_stage.h"
#include "blocks/rules/kockovka.h"
#include "fakes.h"
#include "platform/keyboard/keys.h"

// Whole games of children who press anything, watched by a referee who reckons for himself.
namespace ratanka::blocks {
namespace {

// Watches every drawing of a game and knows what it must show, what it has earned and how fast it
// is. Sounds are on: they tell when a piece lands.
class Referee : public FakeStage {
 public:
  explicit Referee(const Options& options)
      : start_(options.startingLevel()),
        startText_(options.startingLevelText()),
        level_(static_cast<int>(std::nearbyint(start_))) {}

  void DrawBoard(const Well& board, const Well& old) override {
    paint(board, old);
    switch (due_) {
      case Due::blocks:
        rest_ = board;
        return;
      case Due::spawn:
        due_ = Due::fall;
        break;
      case Due::fall:
        piece_ = piece_.moved(0, 1);
        EXPECT_TRUE(piece_.fits(rest_)) << "it fell into something";
        if (isDropping_) ++score_;
        break;
      case Due::key:
        break;
      case Due::landing:
        EXPECT_FALSE(piece_.moved(0, 1).fits(rest_)) << "it could go on falling";
        due_ = Due::vanishing;
        break;
      case Due::vanishing:
        vanish(board);
        due_ = Due::closing;
        return;
      case Due::closing:
        ++closed_;
        return;
    }
    expectSame(board, piece_.in(rest_));
  }

  void PlayEffect(std::string_view file) override {
    if (file != "Tetris3.wav") waves_ += file;
    if (file == "Tetris2.wav") due_ = Due::landing;
  }

  void showNext(int kind) override {
    due_ == Due::closing ? judge() : expectLabels("0", "0", startText_);
    piece_ = Piece::fresh(due_ == Due::blocks ? game->Game().Piece : next_);
    EXPECT_EQ(game->Game().Piece, piece_.kind);
    isOver = !piece_.fits(rest_);
    next_ = kind;
    ++pieces;
    isDropping_ = false;
    due_ = Due::spawn;
  }

  // The child's turn, again and again until it leaves the keys alone for a while.
  void awaitEvents(double seconds) override {
    if (!play()) FakeStage::awaitEvents(seconds);
  }

  void press(int key) {
    if (isFalling()) {
      const Piece wish = key == key::kLeft    ? piece_.moved(-1, 0)
                         : key == key::kRight ? piece_.moved(1, 0)
                         : key == key::kUp    ? piece_.turned()
                                              : piece_;
      if (wish.fits(rest_)) piece_ = wish;
      if (key == key::kDown) isDropping_ = true;
      due_ = Due::key;
    }
    game->keyDown(key);
    if (due_ == Due::key) due_ = Due::fall;
  }

  bool isFalling() const { return due_ == Due::fall && !isDropping_ && !game->Paused(); }
  const Piece& piece() const { return piece_; }
  const Well& rest() const { return rest_; }

  Kockovka* game = nullptr;
  std::function<bool()> play;  // whether something was pressed
  bool isOver = false;         // a new piece found its place taken
  int pieces = 0;
  std::set<int> clears;  // how many rows went at once

 private:
  enum class Due { blocks, spawn, fall, key, landing, vanishing, closing };

  // Leaves in rest_ what must lie there when the gaps have closed.
  void vanish(const Well& board) {
    const Well landed = piece_.in(rest_);
    Well hanging = landed;
    std::vector<Well::Row> kept;
    for (int row = 1; row <= kRows; ++row) {
      if (std::ranges::count(landed.row(row), 0) > 0) {
        kept.push_back(landed.row(row));
      } else {
        hanging.row(row).fill(0);
      }
    }
    expectSame(board, hanging);
    rows_ = kRows - static_cast<int>(kept.size());
    kept.insert(kept.begin(), static_cast<std::size_t>(rows_), hanging.row(1));
    for (int row = 1; row <= kRows; ++row) rest_.row(row) = kept[static_cast<std::size_t>(row - 1)];
    clears.insert(rows_);
    closed_ = 0;
  }

  void judge() {
    const int tens = lines_ / 10;
    lines_ += rows_;
    std::string waves = "Tetris2.wav";
    if (rows_ >= 1 && rows_ <= 4) waves += "Tetris" + std::to_string(3 + rows_) + ".wav";
    if (lines_ / 10 > tens) waves += "Tetris1.wav";
    EXPECT_EQ(std::exchange(waves_, {}), waves);
    if (lines_ / 10 > tens && ++level_ <= 9) ++quicker_;
    const std::int64_t kPoints[] = {0, 50, 150, 500, 1000};
    if (rows_ <= 4) score_ += kPoints[rows_] * (level_ + 1);
    EXPECT_EQ(closed_, rows_);
    expectLabels(std::to_string(score_), std::to_string(lines_), std::to_string(level_));
    EXPECT_NEAR(game->StepDelay(), 0.5 - 0.0472 * (start_ + quicker_), 1e-9);
  }

  void expectLabels(const std::string& score, const std::string& lines, const std::string& level) {
    EXPECT_EQ(
        labels[Label::lblScore] + ' ' + labels[Label::lblLines] + ' ' + labels[Label::lblLevel],
        score + ' ' + lines + ' ' + level);
  }

  double start_;
  std::string startText_;
  int level_;
  int quicker_ = 0;  // steps of the delay
  int lines_ = 0;
  std::int64_t score_ = 0;
  Due due_ = Due::blocks;
  Piece piece_;
  Well rest_;          // what lies, without the falling piece
  std::string waves_;  // since the last judgement, but for steps
  int next_ = 0;
  bool isDropping_ = false;
  int rows_ = 0;
  int closed_ = 0;
};

// How bad a well is to have: holes, and heights.
int burden(const Well& well) {
  int burden = 0;
  for (int column = 1; column <= kColumns; ++column) {
    int row = 1;
    while (row <= kRows && well.at(column, row) == 0) ++row;
    burden += (kRows - row) * (kRows - row);
    for (; row <= kRows; ++row) burden += well.at(column, row) == 0 ? 40 : 0;
  }
  for (int row = 1; row <= kRows; ++row)
    burden -= std::ranges::count(well.row(row), 0) == 0 ? 60 : 0;
  return burden;
}

// The keys of a child who plays well.
std::vector<int> goodKeys(const Referee& referee) {
  std::vector<int> best;
  int least = 1 << 30;
  Piece turned = referee.piece();
  for (int turns = 0; turns < 4; ++turns, turned = turned.turned()) {
    for (int columns = -6; columns <= 6; ++columns) {
      const Piece piece = turned.moved(columns, 0);
      if (!piece.fits(referee.rest())) continue;
      const int now = burden(piece.dropped(referee.rest()).in(referee.rest()));
      if (now >= least) continue;
      least = now;
      best.assign(static_cast<std::size_t>(turns), key::kUp);
      best.insert(best.end(), static_cast<std::size_t>(std::abs(columns)),
                  columns < 0 ? key::kLeft : key::kRight);
    }
  }
  best.push_back(key::kDown);
  return best;
}

class Games : public testing::Test {
 protected:
  // A game with these keys; it ends after so many pieces at the latest.
  void playGame(unsigned seed, bool isGood, int pieces) {
    std::mt19937 child(seed);
    FakeRandom chance;  // for the fill and all pieces
    for (int draw = 0; draw < 200 + pieces; ++draw)
      chance.numbers.push_back(static_cast<double>(child()) * 0x1p-32);
    Options options{.PlaySounds = true};
    const double level = static_cast<double>(child() % 19) / 2;
    if (level >= 1) options.StartingLevel = level;
    options.FillLines = child() % 2 == 0;
    Referee referee(options);
    Kockovka game(options, referee, referee, chance);
    referee.game = &game;
    referee.play = [&] {
      if (referee.pieces > pieces) game.endGame();
      if (isGood && referee.isFalling() && referee.piece().pivot.row > 2) {
        for (const int key : goodKeys(referee)) referee.press(key);
        return true;
      }
      if (isGood || child() % 3 == 0) return false;
      constexpr int kKeys[] = {37, 37, 38, 39, 39, 40, 40, 80};
      referee.press(kKeys[child() % std::size(kKeys)]);
      return true;
    };
    game.StartGame();
    EXPECT_TRUE(referee.isOver || referee.pieces > pieces);
    clears.insert(referee.clears.begin(), referee.clears.end());
    highest = std::max(highest, game.Game().Level);
    if (HasFailure()) FAIL() << "seed " << seed;
  }

  std::set<int> clears;
  int highest = 0;
};

TEST_F(Games, OfAnyKeysGoByTheRules) {
  for (unsigned seed = 0; seed < 10000 && !HasFailure(); ++seed) playGame(seed, false, 150);
}

TEST_F(Games, OfGoodPlayersRiseAboveLevel9) {
  for (unsigned seed = 0; seed < 40 && !HasFailure(); ++seed) playGame(seed, true, 300);
  EXPECT_GT(highest, 12);
  EXPECT_EQ(clears, (std::set{0, 1, 2, 3, 4}));
}

}  // namespace
}  // namespace ratanka::blocks
