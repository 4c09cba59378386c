#include <algorithm>

#include <gtest/gtest.h>

#include "TervixFiles.h"
#include "foundation/platform/Platform.h"
#include "foundation/platform/windows/Win32.h"
#include "tests/support/LastErrorCheck.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/windows/Wide.h"

// Drives, shares, names that differ in case alone, and how long and in what letters a path may be.

namespace tervix::testing {
namespace {

bool dirExists(std::string path) {
  bool exists = false;
  EXPECT_EQ(dirPathExists(path, exists), 0U);
  return exists;
}
bool fileExists(std::string path) {
  bool exists = false;
  EXPECT_EQ(filePathExists(path, exists), 0U);
  return exists;
}

class WindowsPaths : public ::testing::Test {
protected:
  std::string drive() const { return folder_.path().substr(0, 2); }

  const TemporaryFolder folder_;
};

TEST_F(WindowsPaths, ABareDriveIsItsRootFolder) {
  EXPECT_TRUE(dirExists(drive()));
  EXPECT_TRUE(dirExists(drive() + "/"));
  EXPECT_TRUE(dirExists(drive() + "\\"));
  EXPECT_TRUE(platform::isSameEntry(drive(), drive() + "/"));
  const auto bare = platform::listFolder(drive());
  const auto root = platform::listFolder(drive() + "/");
  ASSERT_TRUE(bare && root);
  EXPECT_EQ(bare->size(), root->size());
  EXPECT_TRUE(platform::liesIn(folder_.path(), drive()));
}

TEST_F(WindowsPaths, AFolderMayEndInSeparators) {
  folder_.file("sub/x");
  for (const char* end : {"/", "\\"}) {
    EXPECT_TRUE(dirExists(folder_.path("sub") + end));
    EXPECT_EQ(platform::listFolder(folder_.path("sub") + end)->size(), 3U); // with "." and ".."
    EXPECT_FALSE(fileExists(folder_.path("sub/x") + end));
  }
}

// The system's own name for a disk has the form of a share: a server and what it shares.
TEST_F(WindowsPaths, ANetworkPathMakesItsFolders) {
  EXPECT_EQ(createPath(text("//?/" + folder_.path("a/b"))), 0U);
  EXPECT_TRUE(isFolder(folder_.path("a/b")));
  EXPECT_EQ(createPath(text("\\\\?\\" + folder_.path("a/c"))), 0U);
  EXPECT_TRUE(isFolder(folder_.path("a/c")));
}

TEST_F(WindowsPaths, AShareThatIsNotThereIsMissing) {
  EXPECT_FALSE(dirExists("//nowhere.invalid/share"));
  EXPECT_FALSE(fileExists("//nowhere.invalid/share/x"));
  EXPECT_EQ(createPath(text("//nowhere.invalid/share/a")), 10102U);
}

TEST_F(WindowsPaths, NamesThatDifferInCaseAreOne) {
  const std::string file = folder_.file("Name.Sim", "kept");
  EXPECT_TRUE(fileExists(folder_.path("nAME.sIM")));
  EXPECT_TRUE(platform::isSameEntry(file, folder_.path("NAME.SIM")));
  EXPECT_NE(cpFile(text(std::string(file)), text(folder_.path("NAME.SIM"))), 0U);
  EXPECT_NE(mvFile(text(std::string(file)), text(folder_.path("NAME.SIM"))), 0U);
  EXPECT_EQ(snapshotOf(folder_.path()), (std::map<std::string, std::string>{{"Name.Sim", "kept"}}));
}

TEST_F(WindowsPaths, OfTheLongestLengthServe) {
  constexpr std::size_t kLongest = MAX_PATH - 1;
  const std::string source = folder_.file("source", "content");
  std::string longest = folder_.path("");
  longest.append(kLongest - longest.size(), 'n');
  EXPECT_EQ(cpFile(text(std::string(source)), longest), 0U);
  EXPECT_TRUE(fileExists(longest));
  EXPECT_EQ(contentOf(longest), "content");
  EXPECT_EQ(rmFile(longest), 0U);
  // Windows refuses one more unless it is told otherwise; either way nothing is half done.
  std::string longer = longest + "n";
  const bool isCopied = cpFile(text(std::string(source)), longer) == 0;
  EXPECT_EQ(fileExists(longer), isCopied);
  EXPECT_EQ(contentOf(source), "content");
}

TEST_F(WindowsPaths, AreInTheCodePageOfTheProcess) {
  ASSERT_EQ(GetACP(), static_cast<UINT>(CP_UTF8)); // which this program chooses
  const std::string file = folder_.path("z\xC3\xA9\xE6\x97\xA5.sim");
  EXPECT_EQ(cpFile(text(folder_.file("source", "content")), text(std::string(file))), 0U);
  EXPECT_NE(GetFileAttributesW(wide(file).c_str()), INVALID_FILE_ATTRIBUTES);
  EXPECT_TRUE(isFile(file)); // the standard library means the same file
  const auto entries = platform::listFolder(folder_.path());
  ASSERT_TRUE(entries);
  EXPECT_TRUE(std::any_of(entries->begin(), entries->end(), [](const auto& entry) {
    return entry.name == "z\xC3\xA9\xE6\x97\xA5.sim";
  }));
}

TEST_F(WindowsPaths, OfDevicesAreNoFiles) {
  for (const char* device : {"NUL", "CON"}) {
    EXPECT_FALSE(platform::isReadableFile(device)) << device;
    EXPECT_FALSE(platform::isFolder(device)) << device;
  }
}

TEST_F(WindowsPaths, AReadOnlyFileIsReadableAndNoMore) {
  const std::string file = folder_.file("x", "kept");
  SetFileAttributesW(wide(file).c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_TRUE(platform::isReadableFile(file));
  EXPECT_FALSE(platform::isWritableFile(file));
  EXPECT_FALSE(platform::replaceFile(file, "other"));
  EXPECT_EQ(contentOf(file), "kept");
  SetFileAttributesW(wide(file).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsPaths, AFileMovesToAnotherDisk) {
  const std::string file = folder_.file("x.dat", "content");
  std::string other = "Z:/dev/shm"; // a disk of its own on the system below
  if (!dirExists(other))
    GTEST_SKIP() << "there is no second disk here";
  other += "/tervix-" + std::to_string(GetCurrentProcessId()) + ".dat";
  ASSERT_EQ(platform::moveEntry(file, other), platform::MoveResult::kOtherDevice);
  EXPECT_EQ(mvFile(text(std::string(file)), other), 0U);
  EXPECT_EQ(contentOf(other), "content");
  EXPECT_FALSE(isFile(file));
  EXPECT_EQ(rmFile(other), 0U);
}

} // namespace
} // namespace tervix::testing
