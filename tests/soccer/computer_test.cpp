#include "soccer/rules/computer.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>

#include "fakes.h"
#include "soccer/rules/directions.h"

namespace ratanka::soccer {
namespace {

struct Spot {
  int x, y;
};

struct Scene {
  Spot ball, step, red;
  int Tactic = 1;
  int blueLeft = 10920;
};

Match matchOf(const Scene& scene) {
  Match match{.BallStepX = scene.step.x, .BallStepY = scene.step.y};
  match.Ball.Left = scene.ball.x;
  match.Ball.Top = scene.ball.y;
  match.Red.Left = scene.red.x;
  match.Red.Top = scene.red.y;
  match.Blue.Left = scene.blueLeft;
  return match;
}

std::string text(const Held& held) {
  std::string result;
  if (held.up) result += "+Up";
  if (held.down) result += "+Down";
  if (held.left) result += "+Left";
  if (held.right) result += "+Right";
  return result.empty() ? "-" : result.substr(1);
}

std::string holds(int level, const Scene& scene) {
  FakeRandom random;
  random.draw(scene.Tactic - 1, 3);
  Computer computer;
  computer.planMatch(random);
  Match match = matchOf(scene);
  match.redHeld = {true, true, true, true};  // all are let go first
  computer.ComputerBrain(match, level, random);
  return text(match.redHeld);
}

std::string towards(int point) {
  // clang-format off
  constexpr const char* kWays[17] = {
      "-", "Up", "Up+Right", "Up+Right", "Up+Right", "Right", "Down+Right", "Down+Right",
      "Down+Right", "Down", "Down+Left", "Down+Left", "Down+Left", "Left", "Up+Left", "Up+Left",
      "Up+Left"};
  // clang-format on
  return kWays[point];
}

// What is held by an answer that may look closer.
std::string resolve(const std::string& answer, const Scene& scene, int point) {
  if (answer == "thirds") return scene.red.x < 4000 ? "Up+Right" : "Up+Left";
  if (answer == "Up by plan") return scene.Tactic <= 2 ? "Up" : "-";
  if (answer == "Chase") return towards(point);
  if (answer == "Chase off home") return scene.red.x > 2500 ? towards(point) : "-";
  return answer;
}

TEST(Levels, AnswerByTheirCompassTables) {
  // The last column is for a ball that runs level to the right through the goals' band.
  struct Row {
    int point;
    const char* answers[6];
  };
  // clang-format off
  constexpr Row kTable[] = {
      {2,  {"Up+Right",   "Up",         "Up by plan", "Up",         "Up",             "Up+Left"}},
      {4,  {"Down",       "Right",      "Right",      "Right",      "Right",          "Right"}},
      {6,  {"Down+Left",  "Down+Right", "Down+Right", "Down+Right", "Down+Right",     "Right"}},
      {7,  {"Left+Right", "Left+Right", "-",          "Left+Right", "Down+Right",     "Up+Left"}},
      {8,  {"Up",         "Down",       "-",          "-",          "Down",           "Up+Left"}},
      {9,  {"Left",       "Left",       "Left",       "Left",       "Chase",          "Up+Left"}},
      {10, {"Left",       "Left",       "Left",       "Left",       "Chase off home", "Up+Left"}},
      {12, {"Up+Left",    "Up+Left",    "Up+Left",    "-",          "Up+Left",        "Down"}},
      {14, {"Right",      "Down",       "-",          "Down",       "Chase",          "Down"}},
      {15, {"-",          "Up+Right",   "-",          "Up+Left",    "Up+Left",        "Up+Left"}},
      {16, {"thirds",     "thirds",     "thirds",     "thirds",     "Up+Left",        "Up+Left"}}};
  // clang-format on
  std::set<int> met;
  for (int which = 0; which < 45 * 31 * 45 && !HasFailure(); ++which) {
    const int column = which % 9 * 5 + which % 3;
    const int row = 8 + which / 9 % 5 * 4;  // in no corner; the middle three in the goals' band
    const Spot red{360 + which / 45 % 45 * 240, 360 + which / 45 / 45 * 240};
    const int sign = which % 2 == 0 ? 240 : -240;
    Scene scene{{120 + 240 * column, 120 + 240 * row}, {sign, -sign}, red, which % 3 + 1};
    const Match match = matchOf(scene);
    const int point = GetDirection(match.Red, match.Ball);
    met.insert(point);
    for (const Row& answer : kTable) {
      if (answer.point != point) continue;
      for (int level = 1; level <= 5; ++level) {
        EXPECT_EQ(holds(level, scene), resolve(answer.answers[level - 1], scene, point))
            << "level " << level << ", " << point;
      }
      if (row < 12 || row > 20) continue;
      scene.step = {240, 0};
      EXPECT_EQ(holds(4, scene), answer.answers[5]) << point;
      EXPECT_EQ(holds(5, scene), answer.answers[5]) << point;
    }
  }
  EXPECT_EQ(met.size(), 11u);
}

TEST(Levels, DecideByTheSituation) {
  constexpr Spot down{0, 240}, up{0, -240}, right{240, 0}, left{-240, 0}, aslant{240, 240};
  constexpr Spot centre{5640, 4200}, home{360, 3960};
  struct Case {
    std::string levels;
    Scene scene;
    const char* answers;  // in the levels' order, where they differ
  };
  // clang-format off
  const Case kCases[] = {
      // A kick-off, by the plan and by Blue's distance.
      {"3", {centre, down, {5160, 3960}, 1, 9480}, "Right"},
      {"3", {centre, up, {5400, 3960}, 1, 9480}, "Down"},
      {"3", {centre, down, home, 1, 9720}, "-"},
      {"3", {centre, down, home, 2, 7560}, "Down+Right"},
      {"3", {{5640, 120}, up, home, 3, 7560}, "Up+Right"},
      {"3", {centre, down, home, 2, 7800}, "-"},
      {"3", {centre, down, home, 3, 7800}, "-"},
      {"45", {centre, down, {5160, 3960}, 1}, "Right"},
      {"45", {centre, up, {5160, 3960}, 2}, "Right"},
      {"45", {centre, down, {5160, 3720}, 3}, "Right:Down+Right"},
      {"45", {centre, down, {5400, 3960}, 1}, "Down"},
      {"45", {centre, up, {5400, 3960}, 2}, "-:Down"},
      {"45", {centre, down, {5640, 5400}, 3}, "-:Up+Left"},
      // No kick-off: beside the centre, or not straight up and down.
      {"345", {{5400, 4200}, down, {5400, 3960}}, "Left:Left:Down"},
      {"345", {{5880, 3960}, up, {5400, 3960}, 3}, "Right"},
      {"345", {centre, aslant, {5640, 5400}, 3, 360}, "Up+Left"},
      // The ball runs up and down at the home end: above the goal,
      {"45", {{360, 1080}, down, {360, 2760}}, "Right"},
      {"45", {{120, 2760}, up, {600, 360}}, "-"},
      {"45", {{360, 1080}, down, {840, 1080}}, "Left"},
      {"45", {{360, 1080}, down, {360, 3000}}, "Up+Left"},
      {"45", {{120, 360}, down, {5400, 7560}}, "Up+Left"},
      // before it,
      {"45", {{360, 3000}, down, {600, 3240}}, "Up+Left"},
      {"45", {{120, 3960}, down, {360, 3960}}, "Down+Left"},
      {"45", {{360, 4920}, up, {840, 360}}, "Down+Left"},
      // and below it.
      {"45", {{360, 5160}, down, {360, 7560}}, "Right"},
      {"45", {{360, 7560}, down, {600, 5160}}, "-"},
      {"45", {{120, 7560}, down, {840, 7560}}, "Left"},
      {"45", {{360, 6120}, down, {360, 4920}}, "Down"},
      {"45", {{360, 6120}, down, {5400, 1080}}, "Down+Left"},
      // No home end: a column off, or not straight up and down.
      {"45", {{600, 3960}, down, {360, 3960}}, "Right"},
      {"45", {{360, 1080}, {-240, 240}, {840, 1320}}, "Down:Up+Left"},
      // It runs up and down before the child's goal, and Red is near; then each but one of these.
      {"45", {{11160, 3000}, down, {10680, 3000}}, "Left"},
      {"45", {{11160, 4920}, up, {10920, 4920}}, "Left"},
      {"45", {{11160, 4920}, down, {10440, 4920}}, "Right"},
      {"45", {{11160, 4920}, down, {10920, 4440}}, "-:Down"},
      {"45", {{11160, 2760}, down, {10680, 2760}}, "Right"},
      {"45", {{11160, 5160}, down, {10680, 5160}}, "Right"},
      {"45", {{10920, 3960}, down, {10440, 3960}}, "Right"},
      {"45", {{11160, 3960}, aslant, {10680, 3960}}, "Right"},
      // It runs level to the right: above the goals,
      {"45", {{6600, 2760}, right, {6120, 2760}}, "Down"},
      {"45", {{6360, 2760}, right, {5880, 2760}}, "Right"},
      {"45", {{6600, 2760}, right, {5880, 2760}}, "Right"},
      {"45", {{6600, 2760}, right, {7080, 2760}}, "Right:-"},
      {"45", {{6600, 1080}, right, {6600, 1080}}, "Down:-"},
      {"45", {{5880, 1080}, right, {6360, 1560}}, "Right:-"},
      {"45", {{9000, 1080}, right, {6360, 5400}}, "Right"},
      {"45", {{9000, 1080}, right, {6600, 5400}}, "Right:-"},
      // and below them.
      {"45", {{6360, 5160}, right, {600, 3960}}, "Right"},
      {"45", {{6600, 5160}, right, {600, 3960}}, "Up:Down+Right"},
      {"45", {{6600, 7560}, right, {6600, 600}}, "Up:Down"},
      // It runs level to the left.
      {"45", {{5640, 1080}, left, {5400, 1080}}, "Right"},
      {"45", {{5640, 1080}, left, {5640, 1080}}, "Up+Left"},
      {"45", {{5640, 5400}, left, {5640, 5160}}, "Down+Left"},
      {"45", {{6360, 3960}, left, {9000, 4200}}, "Up+Left"},
      {"45", {{6360, 3960}, left, {6120, 4200}}, "Right"},
      {"45", {{6600, 3960}, left, {7320, 3480}}, "Down+Left:Left"},
      {"45", {{6600, 3960}, left, {7080, 4200}}, "Up+Left:-"},
      {"45", {{9000, 5400}, left, {8760, 600}}, "Right:Left"},
      {"45", {{9000, 5400}, left, {600, 600}}, "Right:-"}};
  // clang-format on
  for (const auto& [levels, scene, answers] : kCases) {
    std::istringstream all(answers);
    std::string answer;  // the last one holds for the rest
    for (const char level : levels) {
      std::getline(all, answer, ':');
      EXPECT_EQ(holds(level - '0', scene), answer)
          << "level " << level << ", ball " << scene.ball.x << "," << scene.ball.y << ", Red "
          << scene.red.x << "," << scene.red.y;
    }
  }
}

TEST(Levels, TheThirdRunsHomeWhenTheBallIsInACorner) {
  for (int which = 0; which < 47 * 32; ++which) {
    const int column = which % 47;
    const int row = which / 47;
    const bool isCorner = (row <= 2 || row == 31) && (column <= 2 || column == 46);
    Scene scene{{120 + 240 * column, 120 + 240 * row}, {240, 240}, {5640, 3720}};
    EXPECT_EQ(holds(3, scene) == "Down+Left", isCorner) << column << " " << row;
    scene.red = {360, 3960};
    EXPECT_TRUE(!isCorner || holds(3, scene) == "Up+Left") << column << " " << row;
  }
}

TEST(Levels, DrawAndReseedInTheirOwnWays) {
  std::string all;
  for (int level = 0; level <= 6; ++level) {
    FakeRandom random;
    const Computer computer;
    Match match = matchOf({{5400, 600}, {240, 240}, {600, 600}});
    match.isPaused = true;
    for (int tick = 0; tick < 3; ++tick) {
      random.draw(tick, 3);
      computer.ComputerBrain(match, level, random);
      all += text(match.redHeld) + " ";
    }
    all += std::to_string(random.drawn) + "/" + std::to_string(random.reseeded) + "\n";
  }
  EXPECT_EQ(all,
            "- - - 0/0\n"
            "Down Down Down 0/0\n"
            "Right - Right 3/0\n"
            "Right Right Right 0/0\n"
            "Right Right Right 0/3\n"
            "Right Right Right 0/3\n"
            "- - - 0/0\n");
}

TEST(Computer, PlansItsKickOffs) {
  Computer computer;
  FakeRandom random;
  random.numbers = {0, 0.33, 0.34, 0.66, 0.67, 0.99, 0, 0.49, 0.5, 0.99};
  std::string plans;
  for (int draw = 0; draw < 10; ++draw) {
    draw < 6 ? computer.planMatch(random) : computer.planKickOff(random);
    plans += std::to_string(computer.Tactic());
  }
  EXPECT_EQ(plans, "1122331122");
}

TEST(Computer, KnowsBandsAndLetsNothingGo) {
  std::string bands;
  for (const int top : {-120, 2760, 2761, 5040, 5041, 7800}) {
    bands += std::to_string(Section({360, top, 495, 495}));
  }
  EXPECT_EQ(bands, "112233");

  Held held{.up = true, .left = true};
  SetPlayerDirection2(held, 4);
  EXPECT_EQ(text(held), "Up+Down+Left+Right");
}

// Between two players all points of the compass occur, clockwise from straight up.
TEST(Computer, RunsTowardsEveryPointOfTheCompass) {
  constexpr int kAround[17][2] = {{0, 0},  {0, -2}, {1, -2},  {2, -2},  {2, -1}, {2, 0},
                                  {2, 1},  {2, 2},  {1, 2},   {0, 2},   {-1, 2}, {-2, 2},
                                  {-2, 1}, {-2, 0}, {-2, -1}, {-2, -2}, {-1, -2}};
  const Match match;
  for (int point = 0; point < 17; ++point) {
    Piece thing = match.Red;
    thing.Left += kAround[point][0] * 240;
    thing.Top += kAround[point][1] * 240;
    EXPECT_EQ(GetDirection(match.Red, thing), point);
    Held held;
    MoveRedTowardsX(held, match, thing);
    EXPECT_EQ(text(held), towards(point)) << point;
  }
}

}  // namespace
}  // namespace ratanka::soccer
