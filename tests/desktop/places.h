#pragma once

#include "desktop/desktop.h"

// Where things stand on a screen of the advised size.
namespace ratanka {

inline constexpr PixelSize kScreen{1024, 768};
inline constexpr auto kMenu = "Rátanka Menu";
inline constexpr auto kSheet = "Malá Rátanka";
inline constexpr auto kCard = "Vysvedčenie";

// A window's upper left corner.
struct Corner {
  int x, y;
};
inline constexpr Corner kMenuCorner{388, 241};
inline constexpr Corner kSheetCorner{244, 133};
inline constexpr Corner kCardCorner{332, 152};

inline void clickIn(const PrivateDesktop& desktop, const Corner& corner, int x, int y) {
  desktop.click(corner.x + x, corner.y + y);
}

// Wherever the window stands.
inline void clickIn(const PrivateDesktop& desktop, const char* title, int x, int y) {
  const ScreenPoint corner = desktop.place(title);
  desktop.click(corner.x + x, corner.y + y);
}

// The menu's buttons from top to bottom, from 0.
inline void clickMenu(const PrivateDesktop& desktop, int button) {
  clickIn(desktop, kMenu, 50, 28 + 32 * button);
}

// Closes the windows from this one on as the desktop does: a sheet leads to the menu, the menu to
// the card, and the card ends the program.
inline void closeFrom(PrivateDesktop& desktop, const std::string& first) {
  bool isReached = false;
  for (const char* const window : {kSheet, kMenu, kCard}) {
    isReached = isReached || window == first;
    if (!isReached) continue;
    ASSERT_TRUE(desktop.waitForActive(window));
    desktop.key("alt+F4");
  }
  EXPECT_EQ(desktop.waitForEnd(), 0);
}

inline void answer(const PrivateDesktop& desktop, const std::string& text) {
  std::string keys = "key";
  for (const char digit : text) keys += std::string(" ") + digit;
  desktop.xdotool(keys + " Return");
}

}  // namespace ratanka
