#include <string>

#include <gtest/gtest.h>

#include "TervixFiles.h"
#include "tests/support/LastErrorCheck.h"
#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {
namespace {

using Snapshot = std::map<std::string, std::string>;

class CopyFolder : public ::testing::Test {
protected:
  CopyFolder() { forgetLastError(); }

  unsigned long copy(const std::string& source, const std::string& target) const {
    return cpDir(text(folder_.path(source)), text(folder_.path(target)));
  }
  Snapshot snapshot(const std::string& name) const { return snapshotOf(folder_.path(name)); }

  const TemporaryFolder folder_;
};

TEST_F(CopyFolder, ReproducesFilesAndFolders) {
  folder_.file("source/x.sim", "x");
  folder_.file("source/sub/y.dat", "y");
  folder_.folder("source/empty");
  EXPECT_EQ(copy("source", "target"), 0U);
  EXPECT_EQ(snapshot("target"), (Snapshot{{"x.sim", "x"}, {"sub/y.dat", "y"}, {"empty/", ""}}));
  EXPECT_EQ(snapshot("source"), snapshot("target"));
  expectNoLastError();
}

TEST_F(CopyFolder, MakesTheTargetWithItsParents) {
  folder_.file("source/x.sim", "x");
  EXPECT_EQ(copy("source", "a/b/target"), 0U);
  EXPECT_EQ(contentOf(folder_.path("a/b/target/x.sim")), "x");
}

TEST_F(CopyFolder, AddsToATargetThatIsThere) {
  folder_.file("source/x.sim", "new");
  folder_.file("target/x.sim", "former");
  folder_.file("target/own.txt", "own");
  EXPECT_EQ(copy("source", "target"), 0U);
  EXPECT_EQ(snapshot("target"), (Snapshot{{"x.sim", "new"}, {"own.txt", "own"}}));
}

TEST_F(CopyFolder, TakesBackslashesForSeparators) {
  folder_.file("source/sub/y.dat", "y");
  EXPECT_EQ(cpDir(text(folder_.path() + "\\source"), text(folder_.path() + "\\target")), 0U);
  EXPECT_EQ(snapshot("target"), (Snapshot{{"sub/y.dat", "y"}}));
}

TEST_F(CopyFolder, TakesAFileWithoutADotForAFolder) {
  folder_.file("source/README", "text");
  EXPECT_EQ(copy("source", "target"), 1U);
  EXPECT_EQ(snapshot("target"), (Snapshot{{"README/", ""}}));
}

TEST_F(CopyFolder, TakesAFolderWithADotForAFile) {
  folder_.file("source/lib.old/x.lib", "x");
  EXPECT_EQ(copy("source", "target"), 1U);
  EXPECT_EQ(snapshot("target"), Snapshot{});
}

TEST_F(CopyFolder, StopsAtTheFirstEntryThatFailsAndKeepsTheRest) {
  folder_.file("source/sub/README", "text");
  EXPECT_EQ(copy("source", "target"), 1U);
  EXPECT_TRUE(isFolder(folder_.path("target/sub/README")));
  expectNoLastError();
}

TEST_F(CopyFolder, OfAMissingSourceFailsAfterTheTargetWasMade) {
  EXPECT_EQ(copy("missing", "target"), 1U);
  EXPECT_TRUE(isFolder(folder_.path("target")));
  EXPECT_EQ(cpDir(text(folder_.file("file")), text(folder_.path("other"))), 1U);
  expectNoLastError();
}

TEST_F(CopyFolder, WithATargetThatCannotBeMadeGivesItsError) {
  folder_.file("source/x.sim");
  const std::string file = folder_.file("file", "kept");
  EXPECT_EQ(copy("source", "file/target"), 10102U);
  expectLastError(10102, "Failed to create directory \"" + file +
                             "/target\". Check write permissions on the parent directory.");
  EXPECT_EQ(contentOf(file), "kept");
}

TEST_F(CopyFolder, OntoAFileFails) {
  folder_.file("source/x.sim", "x");
  folder_.file("target", "kept");
  EXPECT_NE(copy("source", "target"), 0U);
  EXPECT_EQ(contentOf(folder_.path("target")), "kept");
}

TEST_F(CopyFolder, IntoItselfMakesNothing) {
  folder_.file("source/x.sim", "x");
  folder_.file("source/sub/y.dat", "y");
  const Snapshot before = snapshot("");
  for (const char* target : {"source", "source/", "source/.", "source/sub/..", "source/copy",
                             "source/sub", "source/a/b/c", "source/sub/../copy"}) {
    EXPECT_EQ(copy("source", target), 1U) << target;
    EXPECT_EQ(snapshot(""), before) << target;
  }
  expectNoLastError();
}

TEST_F(CopyFolder, BesideItselfUnderALongerNameIsACopy) {
  folder_.file("source/x.sim", "x");
  EXPECT_EQ(copy("source", "source2"), 0U);
  EXPECT_EQ(snapshot("source2"), (Snapshot{{"x.sim", "x"}}));
}

TEST_F(CopyFolder, OntoTheFolderAboveItIsACopy) {
  folder_.file("above/source/x.sim", "x");
  EXPECT_EQ(copy("above/source", "above"), 0U);
  EXPECT_EQ(snapshot("above"), (Snapshot{{"x.sim", "x"}, {"source/x.sim", "x"}}));
}

TEST_F(CopyFolder, OfEmptyNamesFails) {
  folder_.file("source/x.sim", "x");
  EXPECT_EQ(cpDir(text(""), text(folder_.path("target"))), 1U);
  EXPECT_EQ(cpDir(text(folder_.path("source")), text("")), 10102U);
  EXPECT_NE(cpDir(text(""), text("")), 0U);
}

TEST_F(CopyFolder, GoesAsDeepAsAPathMayBeLong) {
  std::string deep = "source";
  while (folder_.path(deep).size() < 240)
    deep += "/deep";
  folder_.file(deep + "/x.sim", "x");
  EXPECT_EQ(copy("source", "a-target-with-a-name-that-is-longer-than-its-source"), 10102U);
  EXPECT_EQ(lastErrorCode(), 10102U);
  EXPECT_EQ(contentOf(folder_.path(deep + "/x.sim")), "x");
}

} // namespace
} // namespace tervix::testing
