#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "TervixFiles.h"
#include "tests/support/LastErrorCheck.h"
#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {
namespace {

using Snapshot = std::map<std::string, std::string>;

class MoveFile : public ::testing::Test {
protected:
  Snapshot snapshot() const { return snapshotOf(folder_.path()); }

  const TemporaryFolder folder_;
};

TEST_F(MoveFile, TakesTheFileToItsNewName) {
  EXPECT_EQ(mvFile(text(folder_.file("old", "content")), text(folder_.path("new"))), 0U);
  EXPECT_EQ(snapshot(), (Snapshot{{"new", "content"}}));
}

TEST_F(MoveFile, ReplacesAnExistingFile) {
  folder_.file("new", "former");
  EXPECT_EQ(mvFile(text(folder_.file("old", "content")), text(folder_.path("new"))), 0U);
  EXPECT_EQ(snapshot(), (Snapshot{{"new", "content"}}));
}

TEST_F(MoveFile, PutsAFolderInPlaceOfAFile) {
  folder_.file("old/inner", "content");
  EXPECT_EQ(mvFile(text(folder_.path("old")), text(folder_.file("new", "former"))), 0U);
  EXPECT_EQ(contentOf(folder_.path("new/inner")), "content");
}

TEST_F(MoveFile, TakesBackslashesForSeparators) {
  folder_.folder("sub");
  EXPECT_EQ(mvFile(text(folder_.file("old", "x")), text(folder_.path() + "\\sub\\new")), 0U);
  EXPECT_EQ(snapshot(), (Snapshot{{"sub/new", "x"}}));
}

TEST_F(MoveFile, OfAMissingFileTouchesNothing) {
  folder_.file("new", "kept");
  EXPECT_EQ(mvFile(text(folder_.path("missing")), text(folder_.path("new"))), 1U);
  EXPECT_EQ(mvFile(text(""), text(folder_.path("new"))), 1U);
  EXPECT_EQ(snapshot(), (Snapshot{{"new", "kept"}}));
}

TEST_F(MoveFile, OntoItselfTouchesNothing) {
  std::string path = folder_.file("sub/file", "kept");
  for (const std::string& spelling :
       {path, folder_.path("sub/./file"), folder_.path("sub/../sub/file"),
        folder_.path() + "\\sub\\file"})
    EXPECT_EQ(mvFile(path, text(std::string(spelling))), 1U) << spelling;
  EXPECT_EQ(snapshot(), (Snapshot{{"sub/file", "kept"}}));
}

TEST_F(MoveFile, OntoAFolderFailsAndKeepsBoth) {
  std::string file = folder_.file("file", "kept");
  EXPECT_EQ(mvFile(file, text(folder_.folder("empty"))), 1U);
  EXPECT_EQ(snapshot(), (Snapshot{{"file", "kept"}, {"empty/", ""}}));
}

TEST_F(MoveFile, IntoAMissingFolderFailsAndKeepsTheFile) {
  std::string file = folder_.file("file", "kept");
  EXPECT_EQ(mvFile(file, text(folder_.path("missing/new"))), 1U);
  EXPECT_EQ(mvFile(file, text("")), 1U);
  EXPECT_EQ(mvFile(file, text(file + "/below")), 1U);
  EXPECT_EQ(snapshot(), (Snapshot{{"file", "kept"}}));
}

TEST_F(MoveFile, RecordsNoError) {
  forgetLastError();
  mvFile(text(folder_.path("missing")), text(folder_.path("new")));
  expectNoLastError();
}

} // namespace
} // namespace tervix::testing
