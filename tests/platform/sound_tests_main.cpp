#include <gtest/gtest.h>

#include <QCoreApplication>

// Sound for real, but for the device: the library that plays it writes into a file instead. A test
// that needs the library as it is at first runs in a process of its own.
int main(int argumentCount, char** arguments) {
  testing::InitGoogleTest(&argumentCount, arguments);
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  qputenv("SDL_AUDIODRIVER", "disk");
  const QCoreApplication application(argumentCount, arguments);
  return RUN_ALL_TESTS();
}
