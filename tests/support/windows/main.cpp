#include <gtest/gtest.h>

#include "tests/support/windows/SkippedTests.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const bool isTableCurrent = tervix::testing::skipTests();
  const int status = RUN_ALL_TESTS();
  return isTableCurrent ? status : 1;
}
