#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "desktop/processes.h"
#include "desktop/reward.h"
#include "desktop/visit.h"
#include "platform/plain/twister_random.h"
#include "sheets/rules/chains.h"

namespace ratanka {
namespace {

constexpr auto kEmptyBox = "Chyba - nebolo zadané číslo";

class EachDesktop : public testing::TestWithParam<WindowSystem> {
 protected:
  bool waitForCount(const char* title, int count) const {
    return waitFor([&] { return desktop.count(title) == count; });
  }
  // Whether a row of the sheet is ticked.
  bool waitForTick(int row) const {
    const ScreenPoint corner = desktop.place(kSheet);
    return waitFor([&] {
      const Rgb seen = desktop.pixel(corner.x + 364, corner.y + 4 + 40 * row);
      return seen.green > seen.red + 40;
    });
  }

  Visit visit{GetParam()};
  PrivateDesktop& desktop = visit.desktop;
};

TEST_P(EachDesktop, AWindowIsDraggedByItsBackgroundWithAnyButton) {
  for (const int button : {1, 2, 3}) {
    const ScreenPoint at = desktop.place(kMenu);
    const ScreenPoint wanted{at.x + 40, at.y - 10};
    visit.drag(kMenu, {120, 14}, wanted, button);
    EXPECT_EQ(desktop.place(kMenu), wanted) << "button " << button;
  }
  const ScreenPoint at = desktop.place(kMenu);
  visit.drag(kMenu, {120, 30}, {at.x + 40, at.y + 30});  // a label isn't the background
  EXPECT_EQ(desktop.place(kMenu), at);
  // The pointer is let go of: one click does.
  clickMenu(desktop, 0);
  ASSERT_TRUE(desktop.waitForActive(kSheet));
  visit.drag(kSheet, kPage, {400, 200});
  EXPECT_EQ(desktop.place(kSheet), (ScreenPoint{400, 200}));
}

// Where the corner of a sheet is cut away the clock behind it is seen and clicked.
TEST_P(EachDesktop, ACutCornerIsNotThere) {
  clickMenu(desktop, 0);
  ASSERT_TRUE(desktop.waitForActive(kSheet));
  const ScreenPoint clock = desktop.place(kClock);
  const ScreenPoint face{clock.x + 120, clock.y + 95};
  // The corner that leaves the sheet on the screen.
  const bool isLeft = clock.x < kScreen.width / 2;
  const bool isTop = clock.y < kScreen.height / 2;
  const ScreenPoint cut{isLeft ? 4 : 533, isTop ? 3 : 470};
  visit.drag(kSheet, kPage, {face.x - cut.x, face.y - cut.y});
  const ScreenPoint page{face.x + (isLeft ? 30 : -30), face.y + (isTop ? 12 : -12)};
  desktop.click(page.x, page.y);
  pause(300);
  EXPECT_EQ(desktop.count(kClock), 1);
  desktop.click(face.x, face.y);
  ASSERT_TRUE(waitForCount(kClock, 2));  // with its box
  desktop.key("Escape");
  ASSERT_TRUE(waitForCount(kClock, 1));

  // The clock wants no keyboard: it is the sheet's as before, with the ring of the first box.
  const ScreenPoint sheet = desktop.place(kSheet);
  EXPECT_TRUE(waitFor([&] {
    const Rgb ring = desktop.pixel(sheet.x + 304, sheet.y + 36);
    return ring.blue > ring.red + 40;
  }));
  TwisterRandom random;
  answer(desktop, std::to_string(sheets::malá::ShowStart(random)[0].Výsledok));
  EXPECT_TRUE(waitForTick(1));
  // The Enter that closes a box answers nothing.
  desktop.key("Return");
  ASSERT_TRUE(desktop.waitForActive(kEmptyBox));
  desktop.key("Return");
  ASSERT_TRUE(desktop.waitUntilGone(kEmptyBox));
  pause(200);
  EXPECT_FALSE(desktop.hasWindow(kEmptyBox));

  desktop.click(face.x, face.y);
  ASSERT_TRUE(waitForCount(kClock, 2));
  desktop.key("Return");  // No
  ASSERT_TRUE(waitForCount(kClock, 1));
  desktop.click(face.x, face.y);
  ASSERT_TRUE(waitForCount(kClock, 2));
  desktop.key("Tab Return");  // Yes
  EXPECT_TRUE(desktop.waitUntilGone(kClock));
}

// Shells that start a program after the other, twice as many as there are cores.
class BusyMachine {
 public:
  BusyMachine() {
    for (unsigned shell = 0; shell < 2 * std::thread::hardware_concurrency(); ++shell) {
      shells_.push_back(start({.words = {"sh", "-c", "while :; do /bin/true; done"}}));
    }
  }
  ~BusyMachine() {
    for (const pid_t shell : shells_) end(shell);
  }
  BusyMachine(const BusyMachine&) = delete;
  BusyMachine& operator=(const BusyMachine&) = delete;

 private:
  std::vector<pid_t> shells_;
};

TEST_P(EachDesktop, AnEnterThatIsHeldOnABusyMachineAnswersOneRow) {
  clickMenu(desktop, 0);
  ASSERT_TRUE(desktop.waitForActive(kSheet));
  TwisterRandom random;
  const sheets::Examples examples = sheets::malá::ShowStart(random);
  const BusyMachine busy;
  for (int row = 1; row <= 4; ++row) {
    desktop.xdotool("type " +
                    std::to_string(examples.at(static_cast<std::size_t>(row) - 1).Výsledok));
    desktop.xdotool("keydown Return sleep 1.3 keyup Return");
    ASSERT_TRUE(waitForTick(row)) << "row " << row;
    pause(300);
    ASSERT_FALSE(desktop.hasWindow(kEmptyBox)) << "row " << row;
  }
}

constexpr auto kBlocks = "Rátanka - hra TETRIS";

sheets::Examples chains() {
  TwisterRandom random;
  return sheets::veľkéčísla::ShowStart(random);
}

TEST_P(EachDesktop, AGameIsEarnedItsMenusWorkAndTheCardEndsAll) {
  constexpr auto kOptions = "Konfigurácia TETRIS";
  ASSERT_NO_FATAL_FAILURE(earn(desktop, 4, chains(), kBlocks));

  // On Wayland the frame is the toolkit's.
  const bool isFramed = GetParam() == WindowSystem::wayland;
  const ScreenPoint corner = desktop.place(kBlocks);
  const ScreenPoint client{corner.x + (isFramed ? 3 : 0), corner.y + (isFramed ? 30 : 0)};
  const auto clickAt = [&](int x, int y) { desktop.click(client.x + x, client.y + y); };
  const auto seen = [&] { return desktop.pixel(client.x + 140, client.y + 100); };
  const Rgb closed = seen();
  const auto waitForMenu = [&](bool isOpen) {
    return waitFor([&] { return (seen() != closed) == isOpen; });
  };
  const auto openByMouse = [&] {
    clickAt(15, 10);
    EXPECT_TRUE(waitForMenu(true));
  };

  openByMouse();
  desktop.key("Escape");
  EXPECT_TRUE(waitForMenu(false));
  openByMouse();
  clickAt(230, 270);
  EXPECT_TRUE(waitForMenu(false));
  openByMouse();
  clickAt(60, 101);
  ASSERT_TRUE(desktop.waitForActive(kOptions));
  desktop.key("Escape");
  ASSERT_TRUE(desktop.waitUntilGone(kOptions));
  ASSERT_TRUE(desktop.waitForActive(kBlocks));

  // Held until it is open: weston opens no menu for a key that has come up.
  desktop.xdotool("keydown alt keydown m");
  EXPECT_TRUE(waitForMenu(true));
  desktop.xdotool("keyup m keyup alt");
  desktop.key("n");
  ASSERT_TRUE(desktop.waitForActive(kOptions));
  desktop.key("Tab Tab 1 2 Return");
  ASSERT_TRUE(waitForCount(kBlocks, 2));  // a box refuses
  desktop.key("Return");
  ASSERT_TRUE(desktop.waitUntilGone(kOptions));
  ASSERT_TRUE(waitForCount(kBlocks, 1));
  ASSERT_TRUE(desktop.waitForActive(kBlocks));

  const auto board = [&] { return desktop.picture({client.x + 8, client.y + 28}, {164, 292}); };
  const std::vector<Rgb> empty = board();
  desktop.key("F2");
  EXPECT_TRUE(waitFor([&] { return board() != empty; }));
  desktop.key("F4");
  ASSERT_TRUE(desktop.waitUntilGone(kBlocks));
  ASSERT_NO_FATAL_FAILURE(visit.openCard());
  visit.endByTheCard();
}

// A window of a fixed size isn't maximised on X11; on Wayland it may be, and the compositor would
// end the program if the window didn't fill the screen then.
TEST(Wayland, GamesAndBoxesAreMaximisedAndComeBack) {
  Visit visit(WindowSystem::wayland);
  const PrivateDesktop& desktop = visit.desktop;
  const auto maximise = [&](const char* title, ScreenPoint place) {
    pause(300);
    desktop.clickMaximise(title);
    return waitFor([&] { return desktop.place(title) == place; });
  };
  ASSERT_NO_FATAL_FAILURE(earn(desktop, 4, chains(), kBlocks));
  const ScreenPoint before = desktop.place(kBlocks);
  ASSERT_TRUE(maximise(kBlocks, {0, 0}));
  desktop.key("F2");
  pause(300);  // pieces fall: it draws
  ASSERT_TRUE(maximise(kBlocks, before));
  desktop.key("F4");
  ASSERT_TRUE(desktop.waitUntilGone(kBlocks));

  clickIn(desktop, kClock, 120, 95);
  ASSERT_TRUE(waitFor([&] { return desktop.count(kClock) == 2; }));
  ASSERT_TRUE(maximise(kClock, {0, 0}));  // its box, which stands in front
  desktop.key("Tab Tab");
  pause(200);
  desktop.key("Escape");
  EXPECT_TRUE(waitFor([&] { return desktop.count(kClock) == 1; }));
}

INSTANTIATE_TEST_SUITE_P(OnX11AndWayland, EachDesktop,
                         testing::Values(WindowSystem::x11, WindowSystem::wayland),
                         [](const auto& system) {
                           return system.param == WindowSystem::x11 ? "X11" : "Wayland";
                         });

}  // namespace
}  // namespace ratanka
