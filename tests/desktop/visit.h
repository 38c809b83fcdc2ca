#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "desktop/home.h"
#include "desktop/places.h"
#include "desktop/processes.h"

// Visits that have to go the same way on X11 and on Wayland.
namespace ratanka {

inline constexpr auto kClock = "Hodiny";
inline constexpr ScreenPoint kPage{60, 405};  // of a sheet: nothing stands there

inline void pause(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

// The program on a desktop with a cloth behind everything, and with a home of its own. It never
// complains.
class Visit {
 public:
  explicit Visit(WindowSystem system) : desktop(kScreen, system) {
    if (system == WindowSystem::x11) desktop.spreadCloth();
    desktop.startProgram({home_.variable()}, home_.path("said"));
    EXPECT_TRUE(desktop.waitForActive(kMenu));
  }
  ~Visit() { EXPECT_EQ(home_.content("said"), ""); }
  Visit(const Visit&) = delete;
  Visit& operator=(const Visit&) = delete;

  // By one button and the place where it is held.
  void drag(const char* title, ScreenPoint grip, ScreenPoint to, int button = 1) const {
    const ScreenPoint corner = desktop.place(title);
    desktop.drag(button, {corner.x + grip.x, corner.y + grip.y}, {to.x + grip.x, to.y + grip.y});
  }

  void openCard() {
    clickIn(desktop, kSheet, 476, 460);
    ASSERT_TRUE(desktop.waitForActive(kMenu));
    clickIn(desktop, kMenu, 120, 252);
    ASSERT_TRUE(desktop.waitForActive(kCard));
  }
  // A compositor that finds the program busy keeps a press for itself: then the child presses
  // again.
  void endByTheCard() {
    EXPECT_TRUE(waitFor([&] {
      if (desktop.hasWindow(kCard)) clickIn(desktop, kCard, 181, 430);
      pause(500);
      return !desktop.hasWindow(kCard);
    }));
    EXPECT_EQ(desktop.waitForEnd(), 0);
  }

 private:
  Home home_;

 public:
  PrivateDesktop desktop;
};

}  // namespace ratanka
