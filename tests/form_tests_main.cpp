#include <gtest/gtest.h>

#include "platform/forms/application.h"

// Forms without a display.
int main(int argumentCount, char** arguments) {
  testing::InitGoogleTest(&argumentCount, arguments);
  const ratanka::Application application(arguments[0]);
  return RUN_ALL_TESTS();
}
