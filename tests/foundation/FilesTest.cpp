#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "TervixFiles.h"
#include "tests/support/LastErrorCheck.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

class Files : public ::testing::Test {
protected:
  Files() { forgetLastError(); }
  // Failing on files is told by the status alone.
  ~Files() override { expectNoLastError(); }

  static bool dirExists(std::string path) {
    bool exists = false;
    EXPECT_EQ(dirPathExists(path, exists), 0U);
    return exists;
  }
  static bool fileExists(std::string path) {
    bool exists = false;
    EXPECT_EQ(filePathExists(path, exists), 0U);
    return exists;
  }

  const TemporaryFolder folder_;
};

TEST_F(Files, AFolderAndAFileBothCountAsAnExistingPath) {
  EXPECT_TRUE(dirExists(folder_.folder("sub")));
  EXPECT_TRUE(dirExists(folder_.file("file")));
  EXPECT_FALSE(dirExists(folder_.path("missing")));
}

TEST_F(Files, OnlyAFileCountsAsAnExistingFile) {
  EXPECT_TRUE(fileExists(folder_.file("file")));
  EXPECT_FALSE(fileExists(folder_.folder("sub")));
  EXPECT_FALSE(fileExists(folder_.path("missing")));
}

TEST_F(Files, ABackslashSeparatesAsASlashDoes) {
  folder_.file("sub/file", "content");
  EXPECT_TRUE(fileExists(folder_.path() + "\\sub\\file"));
  EXPECT_TRUE(dirExists(folder_.path() + "\\sub"));
}

TEST_F(Files, NothingExistsUnderAnEmptyPath) {
  EXPECT_FALSE(dirExists(""));
  EXPECT_FALSE(fileExists(""));
}

TEST_F(Files, NothingExistsUnderAPathWithAZeroByte) {
  const std::string file = folder_.file("file");
  EXPECT_FALSE(fileExists(file + std::string("\0.sim", 5)));
  EXPECT_FALSE(dirExists(file + std::string("\0", 1)));
}

TEST_F(Files, ACopyHoldsTheSameBytes) {
  // More than one block, and every byte there is.
  std::string content(3 * 8192 + 17, '\0');
  for (std::size_t i = 0; i < content.size(); ++i)
    content[i] = static_cast<char>(i * 31);
  std::string source = folder_.file("source", content);
  std::string target = folder_.path("target");
  EXPECT_EQ(cpFile(source, target), 0U);
  EXPECT_EQ(contentOf(target), content);
  EXPECT_EQ(contentOf(source), content);
}

TEST_F(Files, AnEmptyFileIsCopied) {
  std::string target = folder_.path("target");
  EXPECT_EQ(cpFile(text(folder_.file("source")), target), 0U);
  EXPECT_EQ(contentOf(target), "");
}

TEST_F(Files, ACopyReplacesALongerTargetWhole) {
  std::string target = folder_.file("target", std::string(9000, 'x'));
  EXPECT_EQ(cpFile(text(folder_.file("source", "short")), target), 0U);
  EXPECT_EQ(contentOf(target), "short");
}

TEST_F(Files, ANewCopyTakesThePermissionsOfItsSource) {
  std::string source = folder_.file("source", "x");
  std::string target = folder_.path("target");
  fs::permissions(source, fs::perms::owner_read | fs::perms::owner_write | fs::perms::owner_exec);
  EXPECT_EQ(cpFile(source, target), 0U);
  EXPECT_EQ(fs::status(target).permissions(), fs::status(source).permissions());
}

TEST_F(Files, AnOverwrittenTargetKeepsItsPermissions) {
  std::string target = folder_.file("target", "x");
  fs::permissions(target, fs::perms::owner_read | fs::perms::owner_write);
  const auto kept = fs::status(target).permissions(); // as the system knows them
  EXPECT_EQ(cpFile(text(folder_.file("source", "y")), target), 0U);
  EXPECT_EQ(fs::status(target).permissions(), kept);
  EXPECT_EQ(contentOf(target), "y");
}

TEST_F(Files, ACopyOntoItselfFailsAndLeavesTheFileIntact) {
  std::string path = folder_.file("file", "content");
  std::string same = path;
  EXPECT_EQ(cpFile(path, same), 1U);
  EXPECT_EQ(cpFile(path, path), 1U);
  EXPECT_EQ(contentOf(path), "content");
}

TEST_F(Files, ACopyOntoItselfUnderAnotherSpellingFails) {
  std::string path = folder_.file("sub/file", "content");
  for (const std::string& spelling :
       {folder_.path("sub/./file"), folder_.path("sub//file"), folder_.path("sub/../sub/file"),
        folder_.path() + "\\sub\\file"}) {
    EXPECT_EQ(cpFile(path, text(std::string(spelling))), 1U) << spelling;
    EXPECT_EQ(contentOf(path), "content") << spelling;
  }
}

TEST_F(Files, ACopyOfAMissingFileLeavesTheTargetAsItWas) {
  std::string target = folder_.file("target", "kept");
  EXPECT_EQ(cpFile(text(folder_.path("missing")), target), 1U);
  EXPECT_EQ(cpFile(text(""), target), 1U);
  EXPECT_EQ(contentOf(target), "kept");
  std::string fresh = folder_.path("fresh");
  EXPECT_EQ(cpFile(text(folder_.path("missing")), fresh), 1U);
  EXPECT_FALSE(dirExists(fresh));
}

TEST_F(Files, ACopyOfAFolderLeavesTheTargetAsItWas) {
  std::string target = folder_.file("target", "kept");
  EXPECT_EQ(cpFile(text(folder_.folder("sub")), target), 1U);
  EXPECT_EQ(contentOf(target), "kept");
}

TEST_F(Files, NothingIsCopiedOntoAFolderOrIntoAMissingOne) {
  std::string source = folder_.file("source", "x");
  EXPECT_EQ(cpFile(source, text(folder_.folder("sub"))), 1U);
  EXPECT_EQ(cpFile(source, text(folder_.path("missing/target"))), 1U);
  EXPECT_EQ(cpFile(source, text("")), 1U);
  EXPECT_EQ(cpFile(source, text(source + "/below")), 1U);
  EXPECT_EQ(snapshotOf(folder_.path()),
            (std::map<std::string, std::string>{{"source", "x"}, {"sub/", ""}}));
}

TEST_F(Files, AFileIsDeleted) {
  std::string path = folder_.file("file");
  EXPECT_EQ(rmFile(path), 0U);
  EXPECT_FALSE(dirExists(path));
}

TEST_F(Files, DeletingWhatIsNoFileFails) {
  std::string sub = folder_.folder("sub");
  EXPECT_EQ(rmFile(sub), 1U);
  EXPECT_EQ(rmFile(text(folder_.path("missing"))), 1U);
  EXPECT_EQ(rmFile(text("")), 1U);
  EXPECT_TRUE(isFolder(sub));
}

TEST_F(Files, AZeroByteDoesNotLeadToAnotherFile) {
  std::string path = folder_.file("file", "content");
  std::string cut = path + std::string("\0.bak", 5);
  EXPECT_EQ(rmFile(cut), 1U);
  EXPECT_EQ(cpFile(cut, text(folder_.path("target"))), 1U);
  EXPECT_EQ(cpFile(text(folder_.file("other", "o")), cut), 1U);
  EXPECT_EQ(mvFile(cut, text(folder_.path("target"))), 1U);
  EXPECT_EQ(contentOf(path), "content");
}

TEST_F(Files, OddNamesAreOrdinaryNames) {
  for (const char* name :
       {"50%s%n", "say \"hi\"", "two\nlines", "\xC3\xA4\xFF", " ", "-rf", "\xC3\xA4"}) {
    if (!canBeAFileName(name))
      continue;
    std::string source = folder_.file(name, name);
    std::string target = folder_.path(std::string(name) + ".copy");
    std::string moved = folder_.path(std::string(name) + ".moved");
    EXPECT_TRUE(fileExists(source)) << name;
    EXPECT_EQ(cpFile(source, target), 0U) << name;
    EXPECT_EQ(mvFile(target, moved), 0U) << name;
    EXPECT_EQ(contentOf(moved), name);
    EXPECT_EQ(rmFile(moved), 0U) << name;
  }
}

TEST_F(Files, PathsOfAnyLengthOnlyFail) {
  std::string source = folder_.file("source", "kept");
  for (const std::size_t length : {300U, 5000U, 1000000U}) {
    std::string tooLong = folder_.path(std::string(length, 'n'));
    EXPECT_FALSE(dirExists(tooLong));
    EXPECT_FALSE(fileExists(tooLong));
    EXPECT_EQ(cpFile(source, tooLong), 1U);
    EXPECT_EQ(cpFile(tooLong, source), 1U);
    EXPECT_EQ(mvFile(source, tooLong), 1U);
    EXPECT_EQ(mvFile(tooLong, source), 1U);
    EXPECT_EQ(rmFile(tooLong), 1U);
    EXPECT_EQ(createDir(tooLong), 1U);
  }
  EXPECT_EQ(contentOf(source), "kept");
}

} // namespace
} // namespace tervix::testing
