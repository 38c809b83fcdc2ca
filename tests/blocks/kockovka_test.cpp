#include "blocks/rules/kockovka.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "blocks/fake_stage.h"
#include "fakes.h"
#include "platform/keyboard/keys.h"

namespace ratanka::blocks {
namespace {

using Notes = std::vector<std::string>;
constexpr int kKeyP = 80;

// Games of a scripted child. Without a level, steps come every half second from the first piece on.
class KockovkaTest : public testing::Test {
 protected:
  // A fresh window, and the kinds of the next pieces; bars after them.
  void deal(const std::vector<int>& kinds, const Notes& lowestRows = {}) {
    const Well shown = stage.screen;
    stage = {};
    stage.screen = shown;
    chance.numbers.clear();
    seen.clear();
    options.FillLines = !lowestRows.empty();
    if (!lowestRows.empty()) fill(lowestRows);
    for (const int kind : kinds) chance.draw(kind - 1, kKinds);
  }

  void press(const std::vector<int>& keys) {
    for (const int key : keys) engine.keyDown(key);
  }
  void press(double seconds, const std::vector<int>& keys) {
    stage.at(seconds, [=, this] { press(keys); });
  }
  void endAt(double seconds) {
    stage.at(seconds, [this] { engine.endGame(); });
  }
  // The picture at a moment, once the game has been played.
  void look(double seconds) {
    stage.at(seconds, [this] { seen.push_back(picture(engine.Game().Board)); });
  }

  FakeStage stage;
  FakeRandom chance;
  Options options;
  Kockovka engine{options, stage, stage, chance};
  Notes seen;

 private:
  // Lets chance fill the lowest nine rows so, column by column.
  void fill(const Notes& rows) {
    for (std::size_t column = 0; column < kColumns; ++column) {
      for (std::size_t row = 0; row < 9; ++row) {
        const bool isFilled = row + rows.size() >= 9 && rows[row + rows.size() - 9][column] != '.';
        chance.draw(isFilled ? 0 : 29, 30);
        if (isFilled) chance.draw(1, kKinds);
      }
    }
  }
};

TEST_F(KockovkaTest, EachPieceTurnsClockwiseAndGoesAsFarAsWallsAndGround) {
  for (int kind = 1; kind <= kKinds; ++kind) {
    for (int turns = 0; turns <= 5; ++turns) {
      deal({kind});
      Piece piece = Piece::fresh(kind);
      const auto strike = [&](int times, int key, const std::function<Piece()>& wish) {
        for (; times > 0; --times) {
          engine.keyDown(key);
          if (wish().fits({})) piece = wish();
          expectSame(engine.Game().Board, piece.in({}));
        }
      };
      const auto turn = [&](int times) {
        strike(times, turns % 2 ? 38 : 12, [&] { return piece.turned(); });
      };
      stage.at(0.1, [&] { turn(1); });  // a bar would need row 0
      stage.at(1.6, [&] {
        piece = piece.moved(0, 3);
        turn(turns);
        strike(12, key::kLeft, [&] { return piece.moved(-1, 0); });
        turn(1);
        strike(12, key::kRight, [&] { return piece.moved(1, 0); });
        turn(1);
        engine.keyDown(key::kDown);
      });
      stage.at(1.65, [&] { expectSame(engine.Game().Board, piece.dropped({}).in({})); });
      endAt(1.65);
      engine.StartGame();
      if (HasFailure()) FAIL() << kind << " after turns " << turns;
    }
  }
}

TEST_F(KockovkaTest, RowsCollapseOneAfterTheOther) {
  options.PlaySounds = true;
  deal({1, 6, 5}, {"22222.....", "22222.2222", "22222..222", "22222.2222"});
  press(0.6, {key::kUp, key::kRight});
  endAt(8.85);
  engine.StartGame();
  EXPECT_EQ(stage.notes("Tetris3").size(), 15u);  // a step each half second
  EXPECT_EQ(stage.notes("8."), (Notes{"8.000 Tetris2.wav", "8.000 draw", "8.100 Tetris5.wav",
                                      "8.200 draw", "8.300 draw", "8.800 next 5", "8.800 draw",
                                      "8.850 music close", "8.850 menu at rest"}));
  EXPECT_EQ(chance.reseeded, 2);
}

TEST_F(KockovkaTest, AFastDropTakesNoWaits) {
  options.PlaySounds = true;
  deal({1, 7, 7}, Notes(4, "22222.2222"));
  press(0.6, {key::kUp, key::kRight});
  int awaits = 0;
  stage.at(1.2, [&] {  // the pivot is in row 3; the second one changes nothing
    press({key::kDown, key::kDown});
    awaits = stage.awaits;
  });
  press(1.3, {key::kDown, key::kLeft, kKeyP});  // in vain: it has landed
  endAt(1.75);
  engine.StartGame();
  EXPECT_EQ(stage.labels[Stage::Label::lblScore], "1013");  // four rows, and 16 - 3
  EXPECT_EQ(stage.notes("Tetris3.wav").back(), "1.000 Tetris3.wav");
  EXPECT_EQ(stage.notes("Tetris7.wav"), Notes{"1.200 Tetris7.wav"});
  EXPECT_EQ(stage.notes("next").back(), "1.700 next 7");  // a step later
  EXPECT_EQ(stage.awaits, awaits + 3);                    // to the keys, to the piece, to the end
}

TEST_F(KockovkaTest, APauseStandsStillUntilPOrTheMenuEndsIt) {
  engine.windowCameBack();  // without a game it is none
  EXPECT_FALSE(engine.Paused());
  press(0, {kKeyP, key::kDown});
  press(0.6, {kKeyP});
  look(0.6);
  press(3600, {key::kLeft, key::kUp, key::kDown, 65});
  look(3600.1);
  stage.at(3600.2, [&] { stage.state = Stage::WindowState::minimised; });
  stage.at(3600.3, [&] {
    stage.state = Stage::WindowState::normal;
    engine.windowCameBack();
  });
  press(3600.5, {kKeyP});
  stage.at(3600.6, [&] { engine.togglePause(); });
  stage.at(3600.8, [&] { engine.togglePause(); });
  stage.at(3601.1, [&] { engine.windowCameBack(); });
  press(3601.7, {kKeyP});
  endAt(3601.8);
  engine.StartGame();
  ASSERT_EQ(seen.size(), 2u);
  EXPECT_EQ(seen[1], seen[0]);
  EXPECT_LT(stage.awaits, 20);
  EXPECT_EQ(stage.notes("caption"), (Notes{"0.600 caption Rátanka - hra Tetris : Pauza",
                                           "3600.500 caption Rátanka - hra Tetris",
                                           "3600.600 caption Rátanka - hra Tetris : Pauza",
                                           "3601.000 caption Rátanka - hra Tetris",
                                           "3601.100 caption Rátanka - hra Tetris : Pauza",
                                           "3601.700 caption Rátanka - hra Tetris"}));
  EXPECT_EQ(stage.notes("repaint"), (Notes{"3600.200 repaint", "3600.300 repaint"}));
}

// The handlers of one moment may do anything; the loop must be off the stack soon after the end.
TEST_F(KockovkaTest, EndsInEveryStateAndIsReadyForTheNextGame) {
  const struct {
    double seconds;
    std::vector<int> keys;
    double keysBefore;  // seconds
    const char* score;
  } ends[] = {{0, {}, 0, "0"},                     // before the first piece
              {0.7, {}, 0, "0"},                   // falling
              {0.7, {key::kDown}, 0, "0"},         // dropping
              {1.7, {kKeyP}, 1, "0"},              // paused
              {0.7, {key::kDown, kKeyP}, 0, "0"},  // paused and dropping
              {8.05, {}, 0, "150"},                // rows hang in the air
              {8.15, {}, 0, "150"},                // rows collapse
              {8.45, {}, 0, "150"}};               // landed
  for (const auto& end : ends) {
    SCOPED_TRACE(end.seconds);
    options = {.PlaySounds = true};
    deal({1}, {"22222.....", "22222.2222", "22222..222", "22222.2222", "22222..222"});
    press(0.6, {key::kUp, key::kRight});
    press(end.seconds - end.keysBefore, end.keys);
    stage.at(end.seconds, [&] {
      engine.StartGame();  // refused
      engine.endGame();
    });
    engine.StartGame();
    EXPECT_FALSE(engine.Game().Active);
    EXPECT_EQ(stage.seconds(), end.seconds);
    EXPECT_EQ(stage.labels[Stage::Label::lblScore], end.score);
    EXPECT_EQ(stage.notes("menu").size(), 2u);
    EXPECT_TRUE(stage.log.back().ends_with("menu at rest"));
    EXPECT_EQ(stage.notes("music").size(), 2u);
    EXPECT_EQ(stage.notes("caption").size(), end.keysBefore > 0 ? 2u : 0u);

    options = {};
    deal({});
    look(0.6);
    press(1.1, {key::kDown});
    endAt(1.2);
    engine.StartGame();
    EXPECT_EQ(seen, Notes{picture(Piece::fresh(1).moved(0, 1).in({}))});
    EXPECT_EQ(engine.Game().Score, 18 - 3);
    EXPECT_EQ(stage.notes("music"), Notes{});
  }
}

TEST_F(KockovkaTest, OverMidnightAStepEndsAndTheMusicStartsAnew) {
  options.PlaySounds = true;
  stage.beginning = 86400 - 1.3;
  endAt(2);
  engine.StartGame();
  EXPECT_EQ(stage.notes("Tetris3"), (Notes{"0.500 Tetris3.wav", "1.000 Tetris3.wav",
                                           "1.300 Tetris3.wav", "1.800 Tetris3.wav"}));
  EXPECT_EQ(stage.notes("music"),
            (Notes{"0.000 music open", "1.300 music play", "2.000 music close"}));
}

TEST_F(KockovkaTest, MusicStartsAnewEvery150SecondsPausedOrNotAndAsSoonAsSoundsAreOn) {
  press(0.6, {kKeyP});
  for (const double on : {10, 470}) stage.at(on, [&] { options.PlaySounds = true; });
  for (const double off : {320, 610}) stage.at(off, [&] { options.PlaySounds = false; });
  endAt(700);
  engine.StartGame();
  EXPECT_EQ(stage.notes("mus"),
            (Notes{"10.000 music play", "160.000 music play", "310.000 music play",
                   "320.000 music close", "470.000 music play", "610.000 music close"}));
  EXPECT_EQ(stage.notes("wav"), Notes{});
  EXPECT_LT(stage.awaits, 20);
}

}  // namespace
}  // namespace ratanka::blocks
