#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <vector>

#include "desktop/visit.h"

namespace ratanka {
namespace {

constexpr PixelSize kSheetSize{536, 501};
constexpr PixelSize kClockSize{239, 190};

struct Picture {
  PixelSize size;
  std::vector<Rgb> pixels;
  const Rgb& at(int x, int y) const {
    return pixels.at(static_cast<std::size_t>(y * size.width + x));
  }
};

Picture look(const PrivateDesktop& desktop, const char* title, PixelSize size) {
  desktop.xdotool("mousemove 1023 767");  // out of the picture
  pause(200);
  return {size, desktop.picture(desktop.place(title), size)};
}

// X11 cuts by whole pixels, Wayland smoothly.
bool isAtEdge(const Picture& picture, int x, int y) {
  bool isCloth[2] = {false, false};
  for (int i = std::max(x - 1, 0); i <= std::min(x + 1, picture.size.width - 1); ++i) {
    for (int j = std::max(y - 1, 0); j <= std::min(y + 1, picture.size.height - 1); ++j) {
      isCloth[picture.at(i, j) == kCloth ? 1 : 0] = true;
    }
  }
  return isCloth[0] && isCloth[1];
}

bool isAlike(const Rgb& a, const Rgb& b) {
  constexpr int kTolerance = 8;
  return std::abs(a.red - b.red) <= kTolerance && std::abs(a.green - b.green) <= kTolerance &&
         std::abs(a.blue - b.blue) <= kTolerance;
}

struct Area {
  int left, top, right, bottom;
};

// What moves by itself isn't compared but for where it stands.
void expectAlike(const Picture& x11, const Picture& wayland, const std::vector<Area>& moving) {
  const PixelSize size = x11.size;
  int wrong = 0;
  std::stringstream where;
  int cloth = 0;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const bool moves = std::ranges::any_of(moving, [&](const Area& area) {
        return x >= area.left && x < area.right && y >= area.top && y < area.bottom;
      });
      const Rgb& a = x11.at(x, y);
      const Rgb& b = wayland.at(x, y);
      cloth += a == kCloth ? 1 : 0;
      const bool isSame = moves ? isAlike(a, kCloth) == isAlike(b, kCloth) : isAlike(a, b);
      if (isSame || isAtEdge(x11, x, y)) continue;
      ++wrong;
      if (wrong < 9) where << ' ' << x << ',' << y;
    }
  }
  EXPECT_EQ(wrong, 0) << where.str();
  EXPECT_GT(cloth, 500);
  EXPECT_LT(cloth, size.width * size.height / 2);
}

struct Album {
  Picture menu, sheet, clock, card;
};

Album visitAll(WindowSystem system) {
  Visit visit(system);
  PrivateDesktop& desktop = visit.desktop;
  Album album;
  album.menu = look(desktop, kMenu, {248, 285});
  clickMenu(desktop, 0);
  EXPECT_TRUE(desktop.waitForActive(kSheet));
  // The two side by side: each is seen through the other's cut corners.
  const ScreenPoint clock = desktop.place(kClock);
  const bool isLeft = clock.x + kClockSize.width / 2 < kScreen.width / 2;
  visit.drag(kSheet, kPage,
             {clock.x + (isLeft ? kClockSize.width : -kSheetSize.width), desktop.place(kSheet).y});
  album.sheet = look(desktop, kSheet, kSheetSize);
  album.clock = look(desktop, kClock, kClockSize);
  visit.openCard();
  album.card = look(desktop, kCard, {359, 464});
  visit.endByTheCard();
  return album;
}

TEST(X11AndWayland, ShowTheSameWindowsInTheSameShapes) {
  const Album x11 = visitAll(WindowSystem::x11);
  const Album wayland = visitAll(WindowSystem::wayland);
  expectAlike(x11.menu, wayland.menu, {});
  constexpr Area kFirstBox{300, 20, 350, 52};  // its caret
  constexpr Area kBook{250, 450, 320, 500};
  expectAlike(x11.sheet, wayland.sheet, {kFirstBox, kBook});
  expectAlike(x11.clock, wayland.clock, {{0, 0, kClockSize.width, kClockSize.height}});
  expectAlike(x11.card, wayland.card, {});
}

}  // namespace
}  // namespace ratanka
