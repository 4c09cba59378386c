#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "TervixFiles.h"
#include "tests/support/LastErrorCheck.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/posix/FailingSystem.h"

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

class FailingFolders : public ::testing::Test {
protected:
  const TemporaryFolder folder_;
};

TEST_F(FailingFolders, NothingIsMadeInAFolderThatMayNotBeWritten) {
  std::string closed = folder_.folder("closed");
  fs::permissions(closed, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                              fs::perms::others_exec);
  unsigned long status = 0;
  bool inForce = false;
  {
    const UnprivilegedUser user;
    inForce = user.isInForce();
    status = createPath(text(closed + "/a/b"));
  }
  fs::permissions(closed, fs::perms::owner_all);
  if (!inForce)
    GTEST_SKIP() << "root cannot become another user here";
  EXPECT_EQ(status, 10102U);
  expectLastError(10102, "Failed to create directory \"" + closed +
                             "/a\". Check write permissions on the parent directory.");
  EXPECT_TRUE(snapshotOf(closed).empty());
}

TEST_F(FailingFolders, AFolderThatMayNotBeReadIsNotListed) {
  std::string closed = folder_.folder("closed");
  fs::permissions(closed, fs::perms::none);
  unsigned long opened = 0;
  unsigned long made = 0;
  _dirdesc* handle = nullptr;
  bool inForce = false;
  {
    const UnprivilegedUser user;
    inForce = user.isInForce();
    opened = openDir(closed, handle);
    made = createDir(closed);
  }
  fs::permissions(closed, fs::perms::owner_all);
  if (!inForce)
    GTEST_SKIP() << "root cannot become another user here";
  EXPECT_EQ(opened, 1U);
  EXPECT_EQ(handle, nullptr);
  EXPECT_EQ(made, 1U);
}

TEST_F(FailingFolders, ACopyOntoAFullDiskStops) {
  folder_.file("source/x.dat", std::string(20000, 'x'));
  unsigned long status = 0;
  {
    const FullDisk full(10000);
    status = cpDir(text(folder_.path("source")), text(folder_.path("target")));
  }
  EXPECT_EQ(status, 1U);
  EXPECT_EQ(fs::file_size(folder_.path("source/x.dat")), 20000U);
  // Half a copy would pass for a whole one the next time.
  EXPECT_FALSE(isFile(folder_.path("target/x.dat")));
}

TEST_F(FailingFolders, ACopyOfAnotherDevicesFolderIsAnOrdinaryCopy) {
  folder_.file("far/x.sim", "x");
  const SeparateDevice far(folder_.path("far"));
  EXPECT_EQ(cpDir(text(folder_.path("far")), text(folder_.path("near"))), 0U);
  EXPECT_EQ(contentOf(folder_.path("near/x.sim")), "x");
}

} // namespace
} // namespace tervix::testing
