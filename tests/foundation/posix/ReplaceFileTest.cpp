#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "foundation/platform/Platform.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/posix/FailingSystem.h"

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;
using platform::replaceFile;
using Snapshot = std::map<std::string, std::string>;

class ReplaceFile : public ::testing::Test {
protected:
  Snapshot snapshot() const { return snapshotOf(folder_.path()); }

  const TemporaryFolder folder_;
};

TEST_F(ReplaceFile, MakesANewFile) {
  EXPECT_TRUE(replaceFile(folder_.path("new"), "content"));
  EXPECT_EQ(snapshot(), (Snapshot{{"new", "content"}}));
}

TEST_F(ReplaceFile, GivesAnOldFileItsNewContentAndNothingElse) {
  const std::string file = folder_.file("file", "longer content");
  const auto kept = fs::perms::owner_read | fs::perms::owner_write;
  fs::permissions(file, kept);
  EXPECT_TRUE(replaceFile(file, "new"));
  EXPECT_EQ(snapshot(), (Snapshot{{"file", "new"}}));
  EXPECT_EQ(fs::status(file).permissions(), kept);
}

TEST_F(ReplaceFile, WritesThroughALink) {
  const std::string file = folder_.file("sub/file", "old");
  fs::create_symlink("sub/file", folder_.path("link"));
  EXPECT_TRUE(replaceFile(folder_.path("link"), "new"));
  EXPECT_TRUE(fs::is_symlink(folder_.path("link")));
  EXPECT_EQ(contentOf(file), "new");
}

TEST_F(ReplaceFile, LeavesALinkThatLeadsNowhere) {
  fs::create_symlink("nowhere", folder_.path("link"));
  EXPECT_FALSE(replaceFile(folder_.path("link"), "new"));
  EXPECT_TRUE(fs::is_symlink(folder_.path("link")));
  EXPECT_FALSE(fs::exists(folder_.path("nowhere")));
}

TEST_F(ReplaceFile, OnAFullDiskLeavesTheFileAsItWas) {
  const std::string file = folder_.file("file", "old");
  bool replaced = true;
  {
    const FullDisk full(100);
    replaced = replaceFile(file, std::string(5000, 'x'));
  }
  EXPECT_FALSE(replaced);
  EXPECT_EQ(snapshot(), (Snapshot{{"file", "old"}}));
}

TEST_F(ReplaceFile, OnAFullDiskMakesNoFile) {
  bool replaced = true;
  {
    const FullDisk full;
    replaced = replaceFile(folder_.path("new"), "x");
  }
  EXPECT_FALSE(replaced);
  EXPECT_EQ(snapshot(), Snapshot{});
}

TEST_F(ReplaceFile, RefusesWhatIsNoFile) {
  folder_.folder("sub");
  const std::string pipe = folder_.path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  fs::create_symlink("loop", folder_.path("loop"));
  EXPECT_FALSE(replaceFile(folder_.path("sub"), "x"));
  EXPECT_FALSE(replaceFile(pipe, "x"));
  EXPECT_FALSE(replaceFile("/dev/full", "x"));
  EXPECT_FALSE(replaceFile(folder_.path("missing/file"), "x"));
  EXPECT_FALSE(replaceFile("", "x"));
  EXPECT_TRUE(fs::is_fifo(pipe));
  EXPECT_TRUE(fs::exists("/dev/full"));
}

TEST_F(ReplaceFile, TakesANameThatIsFree) {
  const std::string file = folder_.file("file");
  const std::string first = platform::unusedNameBeside(file);
  writeFile(first, "somebody's");
  const std::string second = platform::unusedNameBeside(file);
  EXPECT_NE(first, second);
  EXPECT_TRUE(replaceFile(file, "new"));
  EXPECT_EQ(contentOf(first), "somebody's");
}

TEST_F(ReplaceFile, OfAFileThatMayNotBeWrittenLeavesIt) {
  const std::string file = folder_.file("file", "old");
  fs::permissions(folder_.path(), fs::perms::all);
  fs::permissions(file, fs::perms::owner_read | fs::perms::others_read);
  bool replaced = true;
  bool inForce = false;
  {
    const UnprivilegedUser user;
    inForce = user.isInForce();
    replaced = replaceFile(file, "new");
  }
  if (!inForce)
    GTEST_SKIP() << "root cannot become another user here";
  EXPECT_FALSE(replaced);
  EXPECT_EQ(snapshot(), (Snapshot{{"file", "old"}}));
}

} // namespace
} // namespace tervix::testing
