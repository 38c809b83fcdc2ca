#include "blocks/rules/kockovka.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "blocks/fake_stage.h"
#include "fakes.h"
#include "platform/keys.h"

namespace ratanka::blocks {
namespace {

using Notes = std::vector<std::string>;
constexpr int kKeyP = 80;

// Games of a scripted child. Without a level, steps come every half second from the first piece on.
class KockovkaTest : public testing::Test {
 protected:
  // The kinds of the next pieces; bars after them.
  void deal(const std::vector<int>& kinds) {
    for (const int kind : kinds) chance.draw(kind - 1, 7);
  }

  // Lets chance fill the lowest nine rows so. To be called before deal().
  void fill(const Notes& rows) {
    ASSERT_EQ(rows.size(), 9u);
    options.FillLines = true;
    for (std::size_t column = 0; column < kColumns; ++column) {
      for (const std::string& row : rows) {
        const bool isFilled = row.at(column) != '.';
        chance.draw(isFilled ? static_cast<int>(options.startingLevel()) : 29, 30);
        if (isFilled) deal({row.at(column) - '0'});
      }
    }
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
  // The child plays these keys as each piece comes, and then ends the game.
  void playAndEnd(const std::vector<std::vector<int>>& pieces) {
    for (const auto& keys : pieces) stage.turns.emplace_back([=, this] { press(keys); });
    stage.turns.emplace_back([this] { engine.endGame(); });
    engine.StartGame();
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
};

struct Drawn {
  int orientations;
  std::vector<std::string> rows;  // o is the pivot
};
const Drawn kPieces[] = {{2, {"#o##"}},       {4, {"#..", "#o#"}}, {4, {"..#", "#o#"}},
                         {2, {"##.", ".o#"}}, {2, {".##", "#o."}}, {4, {".#.", "#o#"}},
                         {1, {"##", "o#"}}};

// Columns and rows from the pivot, after some quarters clockwise.
std::vector<std::pair<int, int>> turned(const Drawn& piece, int quarters) {
  const std::size_t pivotRow = piece.rows.size() - 1;
  const std::size_t pivot = piece.rows[pivotRow].find('o');
  std::vector<std::pair<int, int>> cells;
  for (std::size_t row = 0; row < piece.rows.size(); ++row) {
    for (std::size_t column = 0; column < piece.rows[row].size(); ++column) {
      if (piece.rows[row][column] == '.') continue;
      std::pair cell{static_cast<int>(column) - static_cast<int>(pivot),
                     static_cast<int>(row) - static_cast<int>(pivotRow)};
      for (int quarter = 0; quarter < quarters; ++quarter) cell = {-cell.second, cell.first};
      cells.push_back(cell);
    }
  }
  return cells;
}

// A well with nothing but a piece.
std::string alone(int kind, const std::vector<std::pair<int, int>>& cells, int X, int Y) {
  Well well;
  for (const auto& [column, row] : cells) well.at(X + column, Y + row) = kind;
  return picture(well);
}

TEST_F(KockovkaTest, EachPieceTurnsClockwiseAndGoesAsFarAsWallsAndGround) {
  for (int kind = 1; kind <= kKinds; ++kind) {
    const Drawn& piece = kPieces[kind - 1];
    for (int turns = 0; turns <= 5; ++turns) {
      stage = {};
      seen.clear();
      chance.numbers.clear();
      deal({kind});
      look(0.1);
      press(1.6, std::vector<int>(static_cast<std::size_t>(turns), turns % 2 ? 38 : 12));
      look(1.6);
      press(1.7, std::vector<int>(12, key::kLeft));
      look(1.7);
      press(1.8, std::vector<int>(12, key::kRight));
      look(1.8);
      press(1.9, {key::kDown});
      look(1.95);
      endAt(1.95);
      engine.StartGame();

      const int Y = kind == 1 ? 1 : 2;
      const auto cells = turned(piece, turns % piece.orientations);
      const auto [left, right] = std::ranges::minmax(cells);
      const int bottom =
          std::ranges::max(cells, {}, [](const auto& cell) { return cell.second; }).second;
      EXPECT_EQ(seen, (Notes{alone(kind, turned(piece, 0), 5, Y), alone(kind, cells, 5, Y + 3),
                             alone(kind, cells, 1 - left.first, Y + 3),
                             alone(kind, cells, 10 - right.first, Y + 3),
                             alone(kind, cells, 10 - right.first, 18 - bottom)}))
          << kind << " after turns " << turns;
    }
  }
}

TEST_F(KockovkaTest, ATurnThatDoesNotFitIsRefused) {
  press(0.1, {key::kUp});  // would need row 0
  look(0.1);
  press(0.6, {key::kUp, key::kLeft, key::kLeft, key::kLeft, key::kLeft, key::kLeft});
  look(0.6);
  press(0.7, {key::kUp});  // would need column 0
  look(0.7);
  press(0.8, {key::kRight, key::kUp});
  look(0.8);
  endAt(0.9);
  engine.StartGame();
  ASSERT_EQ(seen.size(), 4u);
  EXPECT_EQ(seen[0].substr(0, 22), "...1111...\n..........\n");
  EXPECT_EQ(seen[1].substr(0, 33), "1.........\n1.........\n1.........\n");
  EXPECT_EQ(seen[2], seen[1]);
  EXPECT_EQ(seen[3].substr(0, 22), "1111......\n..........\n");
}

TEST_F(KockovkaTest, AGameGoesItsWay) {
  options.PlaySounds = true;
  fill({"..........", "..........", "..........", "..........", "..........", "22222.....",
        "22222.2222", "22222..222", "22222.2222"});
  deal({1, 6, 5});
  stage.turns = {[] {}, [this] { engine.endGame(); }};
  press(0.6, {key::kUp, key::kRight});
  engine.StartGame();
  Notes expected{"0.000 menu in game"};
  expected.insert(expected.end(), 31, "0.000 draw");
  for (const char* note : {"0.000 music open", "0.000 next 6", "0.000 draw", "0.500 Tetris3.wav",
                           "0.500 draw", "0.600 draw", "0.600 draw"})
    expected.push_back(note);
  for (const char* second : {"1.000", "1.500", "2.000", "2.500", "3.000", "3.500", "4.000", "4.500",
                             "5.000", "5.500", "6.000", "6.500", "7.000", "7.500"}) {
    expected.push_back(std::string(second) + " Tetris3.wav");
    expected.push_back(std::string(second) + " draw");
  }
  for (const char* note :
       {"8.000 Tetris2.wav", "8.000 draw", "8.100 Tetris5.wav", "8.200 draw", "8.300 draw",
        "8.800 next 5", "8.800 draw", "8.800 music close", "8.800 menu at rest"})
    expected.push_back(note);
  EXPECT_EQ(stage.log, expected);
  EXPECT_EQ(stage.labels[Stage::Label::lblScore], "150");
  EXPECT_EQ(stage.labels[Stage::Label::lblLines], "2");
  EXPECT_EQ(stage.labels[Stage::Label::lblLevel], "0");
  EXPECT_EQ(chance.reseeded, 2);
}

// Eight rows that are full by chance go at the first landing; two squares complete two more.
TEST_F(KockovkaTest, ALevelUpComesBeforeItsPointsAndMakesStepsQuicker) {
  const std::vector<int> toLeft(3, key::kLeft), toMiddle(2, key::kRight), toRight(4, key::kRight);
  for (const auto& [start, Level, before, after] : {std::tuple{0.0, 1, 0.5, 0.4528},
                                                    {3.0, 4, 0.3584, 0.3112},
                                                    {8.0, 9, 0.1224, 0.0752},
                                                    {9.0, 10, 0.0752, 0.0752},
                                                    {2.5, 3, 0.382, 0.3348},
                                                    {3.5, 5, 0.3348, 0.2876}}) {
    options = {.StartingLevel = start, .PlaySounds = true};
    if (start == 0) options.StartingLevel.reset();
    stage = {};
    chance.numbers.clear();
    Notes rows(8, "3333333333");
    rows.push_back("333333....");
    fill(rows);
    deal({1, 7, 7, 7});
    double delay = 0;
    std::string lblLevel;
    stage.at(0, [&] {
      delay = engine.StepDelay();
      lblLevel = stage.labels[Stage::Label::lblLevel];
    });
    playAndEnd({toLeft, {}, toMiddle, toRight});
    EXPECT_NEAR(delay, before, 1e-9);
    EXPECT_EQ(lblLevel, options.startingLevelText());
    EXPECT_EQ(engine.Game().Lines, 10);
    EXPECT_EQ(engine.Game().Level, Level);
    EXPECT_EQ(engine.Game().Score, 150 * (Level + 1));
    EXPECT_NEAR(engine.StepDelay(), after, 1e-9);
    EXPECT_EQ(stage.notes("Tetris1.wav").size(), 1u);
    EXPECT_EQ(stage.notes("Tetris5.wav").size(), 1u);
    for (const char* wave : {"4.wav", "6.wav", "7.wav"}) EXPECT_EQ(stage.notes(wave), Notes{});
    EXPECT_EQ(stage.labels[Stage::Label::lblScore], std::to_string(150 * (Level + 1)));
    EXPECT_EQ(stage.labels[Stage::Label::lblLevel], std::to_string(Level));
  }
}

TEST_F(KockovkaTest, AFastDropTakesNoWaitsAndAPointForEachRow) {
  Notes rows(5, "..........");
  rows.insert(rows.end(), 4, "22222.2222");
  options.PlaySounds = true;
  fill(rows);
  deal({1, 7, 7});
  press(0.6, {key::kUp, key::kRight});
  int awaits = 0;
  stage.at(1.2, [&] {  // the pivot is in row 3; the second one changes nothing
    press({key::kDown, key::kDown});
    awaits = stage.awaits;
  });
  press(1.3, {key::kDown, key::kLeft, kKeyP});  // in vain: it has landed
  stage.at(1.75, [&] { engine.endGame(); });
  engine.StartGame();
  EXPECT_EQ(engine.Game().Lines, 4);
  EXPECT_EQ(engine.Game().Score, 1000 + 16 - 3);
  EXPECT_EQ(stage.labels[Stage::Label::lblScore], "1013");
  EXPECT_EQ(stage.notes("Tetris3.wav").back(), "1.000 Tetris3.wav");
  EXPECT_EQ(stage.notes("Tetris7.wav"), Notes{"1.200 Tetris7.wav"});
  EXPECT_EQ(stage.notes("next").back(), "1.700 next 7");  // a step later
  EXPECT_EQ(stage.notes("caption"), Notes{});
  EXPECT_EQ(stage.awaits, awaits + 3);  // to the keys, to the piece, to the end
}

TEST_F(KockovkaTest, KeysReachNoLandedPiece) {
  deal({7});
  const double landing = 0.5 * 17;
  for (const double moment : {landing + 0.05, landing + 0.2})
    press(moment, {key::kLeft, key::kUp, key::kDown, kKeyP});
  look(landing + 0.3);
  endAt(landing + 0.3);
  engine.StartGame();
  EXPECT_EQ(seen, Notes{"....77....\n....77....\n"});
  EXPECT_FALSE(engine.Paused());
  EXPECT_EQ(engine.Game().Score, 0);
}

TEST_F(KockovkaTest, APauseStandsStillUntilPOrTheMenuEndsIt) {
  press(0.6, {kKeyP});
  look(0.6);
  int awaits = 0;
  press(3600, {key::kLeft, key::kUp, key::kDown, 65});
  look(3600.1);
  stage.at(3600.2, [&] { stage.state = Stage::WindowState::minimised; });
  stage.at(3600.3, [&] {
    stage.state = Stage::WindowState::normal;
    engine.windowCameBack();
  });
  stage.at(3600.4, [&] { awaits = stage.awaits; });
  press(3600.5, {kKeyP});
  stage.at(3600.6, [&] { engine.togglePause(); });
  stage.at(3600.8, [&] { engine.togglePause(); });
  stage.at(3601.1, [&] { engine.pause(); });
  press(3601.7, {kKeyP});
  endAt(3601.8);
  engine.StartGame();
  ASSERT_EQ(seen.size(), 2u);
  EXPECT_EQ(seen[1], seen[0]);
  EXPECT_LT(awaits, 12);
  EXPECT_EQ(stage.notes("caption"), (Notes{"0.600 caption Rátanka - hra Tetris : Pauza",
                                           "3600.500 caption Rátanka - hra Tetris",
                                           "3600.600 caption Rátanka - hra Tetris : Pauza",
                                           "3601.000 caption Rátanka - hra Tetris",
                                           "3601.100 caption Rátanka - hra Tetris : Pauza",
                                           "3601.700 caption Rátanka - hra Tetris"}));
  EXPECT_EQ(stage.notes("repaint"), (Notes{"3600.200 repaint", "3600.300 repaint"}));
}

TEST_F(KockovkaTest, AWindowThatComesBackPausesAGameAndNothingElse) {
  engine.windowCameBack();
  engine.pause();
  EXPECT_FALSE(engine.Paused());
  press(0, {kKeyP, key::kLeft, key::kDown});  // without a game
  stage.at(0.6, [&] { stage.state = Stage::WindowState::minimised; });
  look(1.1);  // it went on falling
  stage.at(1.2, [&] {
    stage.state = Stage::WindowState::normal;
    engine.windowCameBack();
  });
  look(9.9);
  endAt(10);
  engine.StartGame();
  ASSERT_EQ(seen.size(), 2u);
  EXPECT_EQ(seen[0].size(), 16u * 11);
  EXPECT_EQ(seen[1], seen[0]);
  EXPECT_EQ(stage.notes("repaint"), Notes{"1.200 repaint"});
}

// The handlers of one moment may do anything; the loop must be off the stack soon after the end.
TEST_F(KockovkaTest, EndsInEveryStateAndIsReadyForTheNextGame) {
  const Notes rows{"..........", "..........", "..........", "..........", "22222.....",
                   "22222.2222", "22222..222", "22222.2222", "22222..222"};
  struct End {
    const char* state;
    double seconds;
    std::vector<int> keys;
    double keysBefore;  // seconds
    int Score;
  };
  for (const End& end : std::vector<End>{{"before the first piece", 0, {}, 0, 0},
                                         {"falling", 0.7, {}, 0, 0},
                                         {"dropping", 0.7, {key::kDown}, 0, 0},
                                         {"paused", 1.7, {kKeyP}, 1, 0},
                                         {"paused and dropping", 0.7, {key::kDown, kKeyP}, 0, 0},
                                         {"rows hang in the air", 8.05, {}, 0, 150},
                                         {"rows collapse", 8.15, {}, 0, 150},
                                         {"landed", 8.45, {}, 0, 150}}) {
    SCOPED_TRACE(end.state);
    stage = {};
    chance.numbers.clear();
    options.PlaySounds = true;
    fill(rows);
    deal({1});
    press(0.6, {key::kUp, key::kRight});
    press(end.seconds - end.keysBefore, end.keys);
    stage.at(end.seconds, [&] {
      engine.StartGame();  // refused
      engine.endGame();
    });
    engine.StartGame();
    EXPECT_FALSE(engine.Game().Active);
    EXPECT_EQ(stage.seconds(), end.seconds);
    EXPECT_EQ(engine.Game().Score, end.Score);
    EXPECT_EQ(stage.labels[Stage::Label::lblScore], std::to_string(end.Score));
    EXPECT_EQ(stage.notes("menu").size(), 2u);
    EXPECT_TRUE(stage.log.back().ends_with("menu at rest"));
    EXPECT_EQ(stage.notes("music").size(), 2u);
    EXPECT_EQ(stage.notes("caption").size(), end.keysBefore > 0 ? 2u : 0u);

    FakeStage second;
    second.screen = stage.screen;
    stage = second;
    chance.numbers.clear();
    options = {};
    look(0.6);
    press(1.1, {key::kDown});
    endAt(1.2);
    engine.StartGame();
    Well fresh;
    for (const int column : {4, 5, 6, 7}) fresh.at(column, 2) = 1;
    EXPECT_EQ(seen.back(), picture(fresh));
    EXPECT_EQ(engine.Game().Score, 18 - 3);
    EXPECT_EQ(stage.notes("music"), Notes{});
  }
}

TEST_F(KockovkaTest, EndsWhereANewPieceFindsItsPlaceTaken) {
  deal(std::vector<int>(20, 7));
  engine.StartGame();  // nine squares fill the column; the tenth shows over the ninth
  EXPECT_EQ(stage.notes("next").size(), 10u);
  EXPECT_EQ(picture(engine.Game().Board).size(), 18u * 11);
  EXPECT_EQ(stage.screen, engine.Game().Board);
  EXPECT_EQ(stage.notes("menu").size(), 2u);
  EXPECT_EQ(stage.notes("menu").back(), "45.900 menu at rest");
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

TEST_F(KockovkaTest, MusicStartsAnewEvery150SecondsPausedOrNot) {
  options.PlaySounds = true;
  press(0.6, {kKeyP});
  stage.at(310, [&] { options.PlaySounds = false; });
  stage.at(460, [&] { options.PlaySounds = true; });
  stage.at(600, [&] { options.PlaySounds = false; });
  endAt(700);
  engine.StartGame();
  EXPECT_EQ(stage.notes("music"),
            (Notes{"0.000 music open", "150.000 music play", "300.000 music play",
                   "310.000 music close", "460.000 music play", "600.000 music close"}));
  EXPECT_LT(stage.awaits, 20);
}

TEST_F(KockovkaTest, SoundsSwitchedOnInAFirstGameSoundAtOnce) {
  stage.at(1.2, [&] { options.PlaySounds = true; });
  endAt(1.6);
  engine.StartGame();
  EXPECT_EQ(stage.notes("mus"), (Notes{"1.200 music play", "1.600 music close"}));
  EXPECT_EQ(stage.notes("wav"), Notes{"1.500 Tetris3.wav"});
}

}  // namespace
}  // namespace ratanka::blocks
