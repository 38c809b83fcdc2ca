#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>

#include "desktop/places.h"
#include "sheets/rules/sums.h"

// How a child comes to a game.
namespace ratanka {

// Opens a sheet of the menu and does its first set with all answers right.
inline void doSheet(const PrivateDesktop& desktop, int button, const sheets::Examples& examples) {
  ASSERT_TRUE(desktop.waitForActive(kMenu));
  clickMenu(desktop, button);
  ASSERT_TRUE(desktop.waitForActive(kSheet));
  for (const sheets::Example& example : examples) answer(desktop, std::to_string(example.Výsledok));
}

inline void comeBackTo(const PrivateDesktop& desktop, const std::string& window) {
  desktop.xdotool("search --onlyvisible --name '^" + window + "$' windowactivate");
  ASSERT_TRUE(desktop.waitForActive(window));
}

// The same, and on to the game that it has earned, once the sheet's next set has taken the keyboard
// for the last time.
inline void earn(const PrivateDesktop& desktop, int button, const sheets::Examples& examples,
                 const std::string& game) {
  doSheet(desktop, button, examples);
  const auto done = std::chrono::steady_clock::now();
  constexpr std::chrono::milliseconds kNextSet{3600};  // after three seconds, by a busy machine
  constexpr int kRewardX = 345;
  constexpr int kRewardY = 465;
  clickIn(desktop, kSheet, kRewardX, kRewardY);
  ASSERT_TRUE(desktop.waitForActive(game));
  // On Wayland a window comes forward by itself only where the compositor lets it, and weston does
  // not: the game keeps the keyboard.
  if (desktop.system() == WindowSystem::wayland) return;
  std::this_thread::sleep_until(done + kNextSet);
  ASSERT_TRUE(desktop.waitForActive(kSheet));
  comeBackTo(desktop, game);
}

}  // namespace ratanka
