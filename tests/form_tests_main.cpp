#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/application.h"

// Forms without a display, in a home of their own.
int main(int argumentCount, char** arguments) {
  testing::InitGoogleTest(&argumentCount, arguments);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir home;
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
  const ratanka::Application application(arguments[0]);
  return RUN_ALL_TESTS();
}
