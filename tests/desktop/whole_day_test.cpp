#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "desktop/places.h"
#include "desktop/processes.h"
#include "platform/plain/twister_random.h"
#include "sheets/rules/chains.h"
#include "sheets/rules/products.h"
#include "sheets/rules/sums.h"

namespace ratanka {
namespace {

using sheets::Examples;

// A sheet in the order of the menu, and how many of its rows are answered rightly.
struct Lesson {
  std::function<Examples(Random&)> ShowStart;
  int right;
};

const Lesson kDay[] = {
    {sheets::malá::ShowStart, 9},                               // the mark 1
    {sheets::veľká::ShowStart, 6},                              // 2
    {sheets::násobilka::ShowStart, 4},                          // 3
    {[](Random&) { return sheets::delenie::ShowStart(); }, 2},  // 4
    {sheets::veľkéčísla::ShowStart, 1},                         // 5
    {sheets::zátvorky::ShowStart, 8},                           // 1
    {sheets::hádanka::ShowStart, 7},                            // 2
};

std::string markOnCard(const PrivateDesktop& desktop, int line) {
  return desktop.darkness(kCardCorner.x + 283, kCardCorner.y + 108 + 40 * line, {24, 24});
}

TEST(WholeDay, SevenSheetsThenTheCardReadsThemAndEndsTheProgram) {
  PrivateDesktop desktop(kScreen);
  desktop.startProgram();
  TwisterRandom random;
  int button = 0;
  for (const Lesson& lesson : kDay) {
    ASSERT_TRUE(desktop.waitForActive(kMenu));
    clickMenu(desktop, button++);
    ASSERT_TRUE(desktop.waitForActive(kSheet)) << button;
    int row = 0;
    for (const sheets::Example& example : lesson.ShowStart(random)) {
      const bool isRight = ++row <= lesson.right;
      answer(desktop, std::to_string(isRight ? example.Výsledok : example.Výsledok + 1));
    }
    clickIn(desktop, kSheetCorner, 476, 460);
  }

  ASSERT_TRUE(desktop.waitForActive(kMenu));
  clickIn(desktop, kMenuCorner, 120, 252);
  ASSERT_TRUE(desktop.waitForActive(kCard));
  EXPECT_TRUE(desktop.waitUntilGone(kMenu));
  std::string marks[7];
  // Four, one, two, three, five, one again, two again: as soon as the card is painted.
  EXPECT_TRUE(waitFor([&] {
    for (int line = 0; line < 7; ++line) marks[line] = markOnCard(desktop, line);
    return marks[5] == marks[1] && marks[6] == marks[2] && std::set(marks, marks + 5).size() == 5;
  })) << testing::PrintToString(marks);

  clickIn(desktop, kCardCorner, 181, 430);
  EXPECT_EQ(desktop.waitForEnd(), 0);
}

}  // namespace
}  // namespace ratanka
