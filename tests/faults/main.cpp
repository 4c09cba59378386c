#include <cstdlib>

#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/faults/FaultList.h"

// Thousands of small trees: in memory, where there is room for files.
int main(int argc, char** argv) {
  if (access("/dev/shm", W_OK) == 0)
    setenv("TMPDIR", "/dev/shm", 0);
  testing::InitGoogleTest(&argc, argv);
  const int status = RUN_ALL_TESTS();
  tervix::testing::printFaultTally();
  return status;
}
