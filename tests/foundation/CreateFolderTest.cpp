#include <string>

#include <gtest/gtest.h>

#include "TervixFiles.h"
#include "tests/support/LastErrorCheck.h"
#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {
namespace {

std::string cannotCreate(const std::string& path) {
  return "Failed to create directory \"" + path +
         "\". Check write permissions on the parent directory.";
}

class CreateFolder : public ::testing::Test {
protected:
  CreateFolder() { forgetLastError(); }

  // A path of exactly this length, far below anything that exists.
  std::string pathOfLength(std::size_t length) const {
    std::string path = folder_.path();
    while (path.size() + 2 < length)
      path += "/" + std::string(std::min<std::size_t>(50, length - path.size() - 2), 'd') + "e";
    path.resize(length, 'f');
    return path;
  }

  const TemporaryFolder folder_;
};

TEST_F(CreateFolder, MakesOneFolder) {
  std::string path = folder_.path("a");
  EXPECT_EQ(createDir(path), 0U);
  EXPECT_TRUE(isFolder(path));
  EXPECT_EQ(path, folder_.path("a"));
}

TEST_F(CreateFolder, IsContentWithAFolderThatIsThere) {
  std::string path = folder_.folder("a");
  folder_.file("a/file", "kept");
  EXPECT_EQ(createDir(path), 0U);
  EXPECT_EQ(contentOf(path + "/file"), "kept");
  expectNoLastError();
}

TEST_F(CreateFolder, StripsTrailingSeparators) {
  EXPECT_EQ(createDir(text(folder_.path("a") + "//\\/")), 0U);
  EXPECT_TRUE(isFolder(folder_.path("a")));
}

TEST_F(CreateFolder, MakesNoParents) {
  EXPECT_EQ(createDir(text(folder_.path("a/b"))), 1U);
  EXPECT_FALSE(isFolder(folder_.path("a")));
}

TEST_F(CreateFolder, MakesNothingOfAnEmptyPath) {
  EXPECT_EQ(createDir(text("")), 1U);
  EXPECT_EQ(createDir(text(std::string("\0", 1))), 1U);
}

TEST_F(CreateFolder, FailsWhereAFileStandsAndRecordsNothing) {
  std::string path = folder_.file("file", "kept");
  EXPECT_EQ(createDir(path), 1U);
  EXPECT_EQ(createDir(text(path + "/below")), 1U);
  EXPECT_EQ(contentOf(path), "kept");
  expectNoLastError();
}

TEST_F(CreateFolder, PathMakesEveryMissingFolder) {
  folder_.folder("a");
  std::string path = folder_.path("a/b/c");
  EXPECT_EQ(createPath(path), 0U);
  EXPECT_TRUE(isFolder(folder_.path("a/b/c")));
  EXPECT_EQ(createPath(path), 0U);
  expectNoLastError();
}

TEST_F(CreateFolder, PathWithBackslashesMakesTheSame) {
  std::string path = folder_.path() + "\\a\\b\\c";
  EXPECT_EQ(createPath(path), 0U);
  EXPECT_TRUE(isFolder(folder_.path("a/b/c")));
  EXPECT_EQ(path, folder_.path() + "\\a\\b\\c");
}

TEST_F(CreateFolder, PathMayEndInASeparator) {
  EXPECT_EQ(createPath(text(folder_.path("a/b/"))), 0U);
  EXPECT_EQ(createPath(text(folder_.path("c//d"))), 0U);
  EXPECT_TRUE(isFolder(folder_.path("a/b")));
  EXPECT_TRUE(isFolder(folder_.path("c/d")));
}

TEST_F(CreateFolder, PathBlockedOnTheWayRecordsTheFolderThatCouldNotBeMade) {
  const std::string file = folder_.file("file", "kept");
  EXPECT_EQ(createPath(text(file + "/b/c")), 10102U);
  expectLastError(10102, cannotCreate(file + "/b"));
  EXPECT_EQ(contentOf(file), "kept");
}

TEST_F(CreateFolder, PathBlockedAtTheEndRecordsTheWholePath) {
  const std::string file = folder_.file("file");
  EXPECT_EQ(createPath(text(file + "\\b")), 10102U);
  expectLastError(10102, cannotCreate(file + "/b"));
}

TEST_F(CreateFolder, PathKeepsWhatItMadeBeforeItFailed) {
  EXPECT_EQ(createPath(text(folder_.path("made/" + std::string(256, 'n')).substr(0, 259))), 0U);
  EXPECT_EQ(createPath(text(folder_.path(std::string("new/a\0b", 7)))), 10102U);
  EXPECT_TRUE(isFolder(folder_.path("new")));
}

TEST_F(CreateFolder, EmptyPathRecordsAnEmptyName) {
  EXPECT_EQ(createPath(text("")), 10102U);
  expectLastError(10102, cannotCreate(""));
}

TEST_F(CreateFolder, PathOfTheLongestLengthIsMade) {
  std::string path = pathOfLength(259);
  ASSERT_EQ(path.size(), 259U);
  EXPECT_EQ(createPath(path), 0U);
  EXPECT_TRUE(isFolder(path));
}

TEST_F(CreateFolder, LongerPathIsRefusedAndNothingMade) {
  for (const std::size_t length : {260U, 300U, 900U}) {
    std::string path = pathOfLength(length);
    EXPECT_EQ(createPath(path), 10102U);
    expectLastError(10102, cannotCreate(path));
  }
  EXPECT_EQ(createPath(text(pathOfLength(100000))), 10102U);
  EXPECT_EQ(lastErrorText().size(), 1023U);
  EXPECT_TRUE(snapshotOf(folder_.path()).empty());
}

// A server that cannot be made is no error; the failure named is that of the share.
TEST_F(CreateFolder, ServerOfANetworkPathNeedNotBeMade) {
  const std::string server = "//" + std::string("\0server", 7);
  EXPECT_EQ(createPath(text(server + "/share")), 10102U);
  expectLastError(10102, cannotCreate(server + "/share"));
}

TEST_F(CreateFolder, NetworkPathMakesItsFolders) {
  EXPECT_EQ(createPath(text("/" + folder_.path("a/b"))), 0U);
  EXPECT_TRUE(isFolder(folder_.path("a/b")));
}

} // namespace
} // namespace tervix::testing
