#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "desktop/places.h"
#include "desktop/processes.h"
#include "platform/plain/twister_random.h"
#include "sheets/rules/sums.h"

namespace ratanka {
namespace {

constexpr Rgb kPaper{255, 253, 245};

int tickX() { return kSheetCorner.x + 352 + 12; }
// In the lower bend of the tick of a row.
int tickY(int row) { return kSheetCorner.y + 24 + 40 * (row - 1) - 4 + 24; }

void openSheet(const PrivateDesktop& desktop) {
  ASSERT_TRUE(desktop.waitForActive(kMenu));
  clickMenu(desktop, 0);
  ASSERT_TRUE(desktop.waitForActive(kSheet));
  EXPECT_TRUE(desktop.waitUntilGone(kMenu));
}

TEST(FirstVisit, FromTheStartToTheMarkAndBackToTheMenu) {
  PrivateDesktop desktop(kScreen);
  // Home and settings where nothing can be written.
  desktop.startProgram({"HOME=/proc/nobody", "XDG_CONFIG_HOME=/proc/nobody"});
  openSheet(desktop);

  // A fresh start always asks the same.
  TwisterRandom random;
  const sheets::Examples examples = sheets::malá::ShowStart(random);
  const Rgb beforeTheTick = desktop.pixel(tickX(), tickY(1));
  for (int row = 1; row <= sheets::kRows; ++row) {
    answer(desktop, std::to_string(examples.at(static_cast<std::size_t>(row - 1)).Výsledok));
  }
  const Corner mark{kSheetCorner.x + 130, kSheetCorner.y + 458};
  EXPECT_TRUE(desktop.waitForPixel(mark.x, mark.y, {0, 255, 0}));
  for (int row = 1; row <= sheets::kRows; ++row) {
    EXPECT_TRUE(waitFor([&] {  // the server may have painted the mark alone by now
      const Rgb tick = desktop.pixel(tickX(), tickY(row));
      return tick.green > tick.red + 40;
    })) << "no tick in row "
        << row;
  }
  const Rgb tick = desktop.pixel(tickX(), tickY(1));
  const Corner reward{kSheetCorner.x + 328 + 4, kSheetCorner.y + 440 + 20};
  const Rgb face = desktop.pixel(reward.x, reward.y);
  EXPECT_GT(face.green, face.red + 100) << "no reward";

  // The pause passes, and the next set stands.
  EXPECT_TRUE(desktop.waitForPixel(tickX(), tickY(1), beforeTheTick));
  answer(desktop, std::to_string(sheets::malá::ShowStart(random)[0].Výsledok));
  EXPECT_TRUE(desktop.waitForPixel(tickX(), tickY(1), tick));
  EXPECT_EQ(desktop.pixel(mark.x, mark.y), (Rgb{0, 255, 0}));

  clickIn(desktop, kSheetCorner, 456 + 20, 440 + 20);
  EXPECT_TRUE(desktop.waitForActive(kMenu));
  EXPECT_TRUE(desktop.waitUntilGone(kSheet));
  closeFrom(desktop, kMenu);
}

TEST(FirstVisit, TheEnterThatClosesABoxAnswersNothing) {
  PrivateDesktop desktop(kScreen);
  desktop.startProgram();
  openSheet(desktop);
  for (int row = 1; row <= 3; ++row) {
    desktop.key("Return");
    ASSERT_TRUE(desktop.waitForActive("Chyba - nebolo zadané číslo")) << row;
    if (row == 1) desktop.xdotool("getactivewindow windowminimize sleep 0.5");  // comes back
    ASSERT_TRUE(desktop.waitForActive("Chyba - nebolo zadané číslo")) << row;
    desktop.key(row == 2 ? "KP_Enter" : "Return");
    ASSERT_TRUE(desktop.waitForActive(kSheet));
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    EXPECT_FALSE(desktop.hasWindow("Chyba - nebolo zadané číslo")) << row;
    // A cross in the row, and none in the next.
    const Rgb cross = desktop.pixel(kSheetCorner.x + 344 + 16, tickY(row) - 8);
    EXPECT_GT(cross.red, cross.green + 40) << row;
    const Rgb next = desktop.pixel(kSheetCorner.x + 344 + 16, tickY(row + 1) - 8);
    EXPECT_EQ(next, kPaper) << row;
  }
  closeFrom(desktop, kSheet);
}

TEST(FirstVisit, OtherScreensGetTheAdviceFirst) {
  for (const PixelSize size : {PixelSize{800, 600}, PixelSize{1280, 1024}}) {
    PrivateDesktop desktop(size);
    desktop.startProgram();
    ASSERT_TRUE(desktop.waitForActive("Grafické nastavenie"));
    EXPECT_FALSE(desktop.hasWindow(kMenu));
    desktop.key("Return");
    closeFrom(desktop, kMenu);
  }
}

}  // namespace
}  // namespace ratanka
