#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <optional>
#include <set>
#include <string>
#include <thread>

#include "desktop/reward.h"
#include "sheets/rules/products.h"

namespace ratanka {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr auto kTitle = "Mini futbal - hra len pre tých najlepších";
constexpr auto kTwo = "Mini futbal - 2 hráči";
constexpr auto kOne = "Mini futbal - hráč [+] počítač";  // a plus, in the words of a search
constexpr auto kChoice = "Výber protihráča";

constexpr Rgb kRed{255, 0, 0};
constexpr Rgb kBlue{0, 0, 255};
constexpr Rgb kLeather{34, 48, 74};  // the dark patches of the ball

constexpr int kStep = 16;       // pixels
constexpr int kRightmost = 44;  // the last column that a player can stand in

void sleep(int time) { std::this_thread::sleep_for(milliseconds(time)); }

class Soccer : public testing::Test {
 protected:
  Soccer() {
    desktop.startProgram();
    earn(desktop, 3, sheets::delenie::ShowStart(), kTitle);
  }

  void clickReward() {
    clickIn(desktop, kSheetCorner, 348, 460);
    ASSERT_TRUE(desktop.waitForActive(kTitle));
  }

  void clickOn(const std::string& window, int x, int y) {
    const ScreenPoint corner = desktop.place(window);
    desktop.click(corner.x + x, corner.y + y);
  }
  void startTwo() {
    clickOn(kTitle, 100, 206);
    comesUp(kTwo);
  }
  // Opponents stand in a row, from 1.
  void startOne(int opponent) {
    clickOn(kTitle, 312, 206);
    ASSERT_TRUE(desktop.waitForActive(kChoice));
    EXPECT_FALSE(desktop.hasWindow(kTitle));
    clickOn(kChoice, 64 + 88 * (opponent - 1), 50);
    comesUp(kOne);
  }
  void activate(const std::string& window, const std::string& before = "") {
    desktop.xdotool("search --onlyvisible --name '^" + window + "$' " + before + " windowactivate");
    ASSERT_TRUE(desktop.waitForActive(window));
  }

  // Where the middle of all that is seen of a piece stands on the pitch, in pixels from the upper
  // left corner of the match. The figures above have the players' colours.
  std::optional<ScreenPoint> find(const Rgb& colour) const {
    long x = 0;
    long y = 0;
    long count = 0;
    for (const ScreenPoint& at : desktop.pixelsOf(colour, pitch_, {766, 560})) {
      const ScreenPoint inside{at.x - pitch_.x, at.y - pitch_.y};
      if (inside.y < kFigures && (inside.x < 56 || inside.x > 718)) continue;
      x += inside.x;
      y += inside.y;
      ++count;
    }
    if (count == 0) return std::nullopt;
    return ScreenPoint{static_cast<int>(x / count), static_cast<int>(y / count)};
  }

  // Columns and rows of a player's way from where Red starts.
  int column(const ScreenPoint& place) const { return steps(place.x - redStart_.x); }
  int row(const ScreenPoint& place) const { return steps(place.y - redStart_.y); }

  // Whether a piece comes to be seen elsewhere.
  bool leaves(const Rgb& colour, const std::optional<ScreenPoint>& place, int time) const {
    const auto end = steady_clock::now() + milliseconds(time);
    while (steady_clock::now() < end) {
      if (find(colour) != place) return true;
      sleep(10);
    }
    return false;
  }
  bool moves(const Rgb& colour) const { return leaves(colour, find(colour), 300); }

  PrivateDesktop desktop{kScreen};

 private:
  static constexpr int kFigures = 112;  // the lower edge of those that count goals

  static int steps(int distance) { return static_cast<int>(std::lround(1.0 * distance / kStep)); }

  void comesUp(const std::string& match) {
    ASSERT_TRUE(desktop.waitForActive(match));
    const ScreenPoint corner = desktop.place(match);
    pitch_ = {corner.x + 14, corner.y};
    if (match != kTwo) return;
    ASSERT_TRUE(desktop.waitForPixel(corner.x + 40, corner.y + 300, kRed));
    redStart_ = find(kRed).value();
  }

  ScreenPoint pitch_;
  ScreenPoint redStart_;
};

TEST_F(Soccer, TwoChildrenHoldTheirKeysPauseAndComeBack) {
  startTwo();
  EXPECT_TRUE(desktop.hasWindow(kTitle));  // behind the match
  const ScreenPoint red = find(kRed).value();
  const ScreenPoint blue = find(kBlue).value();
  EXPECT_EQ(column(blue), kRightmost);
  desktop.key("Caps_Lock");
  desktop.xdotool(
      "keydown w keydown d keydown Down keydown Left sleep 0.1 "
      "keyup w keyup d keyup Down keyup Left");
  EXPECT_GT(column(find(kRed).value()), column(red));
  EXPECT_LT(row(find(kRed).value()), row(red));
  EXPECT_LT(column(find(kBlue).value()), column(blue));
  EXPECT_GT(row(find(kBlue).value()), row(blue));

  desktop.key("F1");
  sleep(100);
  EXPECT_EQ(find(kRed), red);

  desktop.key("F2");
  desktop.xdotool("keydown s");
  EXPECT_FALSE(moves(kLeather));
  EXPECT_EQ(find(kRed), red);
  desktop.key("F2");
  sleep(300);
  EXPECT_GT(row(find(kRed).value()), row(red) + 10);
  desktop.xdotool("keyup s");

  desktop.key("F2");
  EXPECT_FALSE(moves(kLeather));
  desktop.key("F1");
  EXPECT_TRUE(moves(kLeather));
  EXPECT_EQ(find(kRed), red);
  desktop.key("F2");  // still offers to go on
  EXPECT_TRUE(moves(kLeather));

  desktop.key("Escape");
  ASSERT_TRUE(desktop.waitForActive(kTitle));
  EXPECT_TRUE(desktop.waitUntilGone(kTwo));
  startTwo();
  EXPECT_TRUE(moves(kLeather));
  EXPECT_EQ(find(kRed), red);
}

TEST_F(Soccer, APlayerStopsWhenTheKeyboardLeavesTheMatch) {
  startTwo();
  // Out of Red's way.
  desktop.xdotool("search --onlyvisible --name '^" + std::string(kTitle) + "$' windowmove 0 0");
  // From end to end he runs in less than half a second: a slow machine gets a few goes.
  int reached = kRightmost;
  for (int go = 0; go < 5 && reached == kRightmost; ++go) {
    activate(kTwo);
    desktop.key("F1");
    activate(kTitle, "keydown d sleep 0.1");
    sleep(500);
    reached = column(find(kRed).value());
    EXPECT_TRUE(moves(kLeather));  // the match goes on
    desktop.xdotool("keyup d");
  }
  EXPECT_GT(reached, 0);
  EXPECT_LT(reached, kRightmost);
  activate(kTwo);  // a match anew
  sleep(200);
  EXPECT_EQ(column(find(kRed).value()), 0);
}

TEST_F(Soccer, EachOpponentPlays) {
  std::set<std::string> faces;
  for (int opponent = 1; opponent <= 5; ++opponent) {
    startOne(opponent);
    desktop.key("F1 F2");  // a pause right at the start
    sleep(100);
    const ScreenPoint corner = desktop.place(kOne);
    const std::string face = desktop.darkness(corner.x + 16, corner.y + 506, {32, 30});
    EXPECT_TRUE(faces.insert(face).second) << opponent << '\n' << face;
    const auto red = find(kRed);
    EXPECT_FALSE(moves(kRed)) << opponent;
    EXPECT_FALSE(moves(kLeather)) << opponent;
    // Some wait for the child to come nearer; but not so near that he covers Red.
    desktop.key("F2");
    desktop.xdotool("keydown Left sleep 0.22 keyup Left");
    EXPECT_TRUE(leaves(kRed, red, 2000)) << opponent;
    EXPECT_TRUE(moves(kLeather)) << opponent;
    sleep(1500);
    desktop.key("Escape");
    ASSERT_TRUE(desktop.waitForActive(kTitle));
    EXPECT_TRUE(desktop.waitUntilGone(kOne));
  }
}

TEST_F(Soccer, AWholeMatchEndsInItsBoxAndGoesBackToTheTitle) {
  startOne(4);
  const auto start = steady_clock::now();
  sleep(86000);
  EXPECT_TRUE(desktop.hasWindow(kOne));
  ASSERT_TRUE(desktop.waitForActive("Mini futbal"));
  const auto seconds = std::chrono::duration<double>(steady_clock::now() - start).count();
  EXPECT_NEAR(seconds, 91, 0.8);  // the first of the ninety lasts two
  sleep(300);                     // until the box is painted, over the ball maybe
  EXPECT_FALSE(moves(kLeather));
  desktop.key("Return");
  EXPECT_TRUE(desktop.waitForActive(kTitle));
  EXPECT_TRUE(desktop.waitUntilGone(kOne));
  startOne(4);
  EXPECT_TRUE(moves(kLeather));
}

TEST_F(Soccer, TheChildMayLeaveAMatchInAnyMoment) {
  startOne(5);
  desktop.xdotool("keydown Left");
  desktop.key("alt+F4");
  EXPECT_TRUE(desktop.waitUntilGone(kOne));
  desktop.xdotool("keyup Left");
  ASSERT_TRUE(desktop.waitForActive(kSheet));
  clickReward();
  startTwo();
  desktop.xdotool("keydown Up sleep 0.1 key alt+F4 keyup Up");
  EXPECT_TRUE(desktop.waitUntilGone(kTwo));
  activate(kTitle);
  startOne(5);
  desktop.xdotool("keydown Left");

  activate(kSheet);
  clickIn(desktop, kSheetCorner, 476, 460);
  ASSERT_TRUE(desktop.waitForActive(kMenu));
  EXPECT_TRUE(desktop.waitUntilGone(kSheet));
  EXPECT_TRUE(moves(kLeather));
  clickIn(desktop, kMenuCorner, 120, 252);
  ASSERT_TRUE(desktop.waitForActive(kCard));
  EXPECT_TRUE(desktop.hasWindow(kOne));
  clickIn(desktop, kCardCorner, 181, 430);
  EXPECT_EQ(desktop.waitForEnd(), 0);
}

}  // namespace
}  // namespace ratanka
