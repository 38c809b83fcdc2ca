#include <gtest/gtest.h>

#include <csignal>

#include "desktop/places.h"
#include "desktop/session_manager.h"

namespace ratanka {
namespace {

// A sheet with a box over it that waits for its OK.
void openBox(const PrivateDesktop& desktop) {
  ASSERT_TRUE(desktop.waitForActive(kMenu));
  clickMenu(desktop, 0);
  ASSERT_TRUE(desktop.waitForActive(kSheet));
  desktop.key("Return");
  ASSERT_TRUE(desktop.waitForActive("Chyba - nebolo zadané číslo"));
}

TEST(Ends, ASignalEndsTheProgramUnderAnOpenBox) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    PrivateDesktop desktop(kScreen);
    desktop.startProgram();
    openBox(desktop);
    desktop.send(signal);
    EXPECT_EQ(desktop.waitForEnd(), 0) << signal;
  }
}

TEST(Ends, TheSessionEndsUnderAnOpenBox) {
  SessionManager session;
  PrivateDesktop desktop(kScreen);
  desktop.startProgram({session.variable()});
  ASSERT_TRUE(session.waitForProgram());
  openBox(desktop);
  EXPECT_TRUE(session.endSession());
  EXPECT_EQ(desktop.waitForEnd(), 0);
}

TEST(Ends, TheScreenGoes) {
  PrivateDesktop desktop(kScreen);
  desktop.startProgram();
  openBox(desktop);
  desktop.pullThePlug();
  EXPECT_EQ(desktop.waitForEnd(), 1);
}

}  // namespace
}  // namespace ratanka
