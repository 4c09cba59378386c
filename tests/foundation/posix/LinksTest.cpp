#include <chrono>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "TervixFiles.h"
#include "tests/support/LastErrorCheck.h"
#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

class Links : public ::testing::Test {
protected:
  Links() { forgetLastError(); }

  std::string link(const std::string& target, const std::string& name) const {
    fs::create_symlink(target, folder_.path(name));
    return folder_.path(name);
  }

  const TemporaryFolder folder_;
};

TEST_F(Links, LeadToWhatExists) {
  folder_.file("file", "content");
  bool exists = false;
  filePathExists(text(link("file", "link")), exists);
  EXPECT_TRUE(exists);
  filePathExists(text(link("nowhere", "dangling")), exists);
  EXPECT_FALSE(exists);
  dirPathExists(text(folder_.path("dangling")), exists);
  EXPECT_FALSE(exists);
}

TEST_F(Links, OntoThemselvesLeadNowhere) {
  std::string loop = link("loop", "loop");
  bool exists = true;
  dirPathExists(loop, exists);
  EXPECT_FALSE(exists);
  filePathExists(loop, exists);
  EXPECT_FALSE(exists);
  _dirdesc* handle = nullptr;
  EXPECT_EQ(openDir(loop, handle), 1U);
  EXPECT_EQ(createDir(loop), 1U);
  EXPECT_EQ(createPath(text(loop + "/below")), 10102U);
  EXPECT_EQ(cpFile(loop, text(folder_.path("target"))), 1U);
  EXPECT_EQ(cpFile(text(folder_.file("file", "kept")), loop), 1U);
  EXPECT_EQ(contentOf(folder_.path("file")), "kept");
}

TEST_F(Links, ToTheSourceAreNoTargetOfACopy) {
  std::string file = folder_.file("file", "content");
  EXPECT_EQ(cpFile(file, text(link("file", "link"))), 1U);
  EXPECT_EQ(cpFile(text(folder_.path("link")), file), 1U);
  fs::create_hard_link(file, folder_.path("hard"));
  EXPECT_EQ(cpFile(file, text(folder_.path("hard"))), 1U);
  EXPECT_EQ(contentOf(file), "content");
}

TEST_F(Links, LeadingNowhereAreFilledByACopy) {
  EXPECT_EQ(cpFile(text(folder_.file("file", "content")), text(link("new", "link"))), 0U);
  EXPECT_EQ(contentOf(folder_.path("new")), "content");
  EXPECT_TRUE(fs::is_symlink(folder_.path("link")));
}

TEST_F(Links, ToTheSourceAreNoTargetOfAMove) {
  std::string file = folder_.file("file", "content");
  EXPECT_EQ(mvFile(file, text(link("file", "link"))), 1U);
  fs::create_hard_link(file, folder_.path("hard"));
  EXPECT_EQ(mvFile(file, text(folder_.path("hard"))), 1U);
  EXPECT_EQ(contentOf(file), "content");
  EXPECT_TRUE(fs::is_symlink(folder_.path("link")));
}

TEST_F(Links, AreDeletedWithoutWhatTheyLeadTo) {
  folder_.file("file", "content");
  EXPECT_EQ(rmFile(text(link("file", "link"))), 0U);
  EXPECT_EQ(contentOf(folder_.path("file")), "content");
  EXPECT_EQ(rmFile(text(link("loop", "loop"))), 0U);
}

TEST_F(Links, InACopiedFolderAreCopiedAsWhatTheyLeadTo) {
  folder_.file("elsewhere/x.lib", "x");
  folder_.folder("source");
  link("../elsewhere", "source/folder");
  link("../elsewhere/x.lib", "source/file.lib");
  EXPECT_EQ(cpDir(text(folder_.path("source")), text(folder_.path("target"))), 0U);
  EXPECT_EQ(snapshotOf(folder_.path("target")),
            (std::map<std::string, std::string>{{"file.lib", "x"}, {"folder/x.lib", "x"}}));
  EXPECT_FALSE(fs::is_symlink(folder_.path("target/folder")));
}

TEST_F(Links, InTheTargetOfAFoldersCopyAreNotWrittenThrough) {
  folder_.file("elsewhere/x.lib", "kept");
  folder_.file("source/x.lib", "new");
  folder_.folder("target");
  for (const char* leadsTo : {"../elsewhere/x.lib", "../nowhere"}) {
    const std::string planted = link(leadsTo, "target/x.lib");
    EXPECT_EQ(cpDir(text(folder_.path("source")), text(folder_.path("target"))), 1U);
    EXPECT_TRUE(fs::is_symlink(planted));
    fs::remove(planted);
  }
  fs::remove(folder_.path("source/x.lib"));
  folder_.file("source/sub/x.lib", "new");
  link("../elsewhere", "target/sub");
  EXPECT_EQ(cpDir(text(folder_.path("source")), text(folder_.path("target"))), 1U);
  EXPECT_EQ(snapshotOf(folder_.path("elsewhere")),
            (std::map<std::string, std::string>{{"x.lib", "kept"}}));
  EXPECT_FALSE(isFile(folder_.path("nowhere")));
}

TEST_F(Links, LeadingNowhereAreLeftOutOfACopy) {
  folder_.folder("source");
  link("nowhere", "source/dangling");
  EXPECT_EQ(cpDir(text(folder_.path("source")), text(folder_.path("target"))), 0U);
  EXPECT_TRUE(snapshotOf(folder_.path("target")).empty());
}

TEST_F(Links, ToTheSourceItselfDoNotHideThatACopyGoesBelowIt) {
  folder_.file("source/x.sim", "x");
  link("source", "alias");
  EXPECT_EQ(cpDir(text(folder_.path("source")), text(folder_.path("alias"))), 1U);
  EXPECT_EQ(cpDir(text(folder_.path("source")), text(folder_.path("alias/copy"))), 1U);
  EXPECT_EQ(cpDir(text(folder_.path("alias")), text(folder_.path("source/copy"))), 1U);
  EXPECT_EQ(snapshotOf(folder_.path("source")),
            (std::map<std::string, std::string>{{"x.sim", "x"}}));
}

TEST_F(Links, BackIntoTheTargetStopTheCopy) {
  folder_.folder("source");
  folder_.folder("target");
  link("..", "source/all");
  EXPECT_EQ(cpDir(text(folder_.path("source")), text(folder_.path("target"))), 1U);
}

// Every folder that leads back to itself twice would double the copy at each step down.
TEST_F(Links, ThatLeadBackIntoTheSourceStopTheCopy) {
  folder_.folder("source/sub");
  link(".", "source/here");
  link(".", "source/here2");
  link("..", "source/sub/up");
  link("../sub", "source/sub/again");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(cpDir(text(folder_.path("source")), text(folder_.path("target"))), 1U);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST_F(Links, ThatLeadFromOneFolderToTheOtherAndBackStopTheCopy) {
  folder_.folder("source/a");
  folder_.folder("source/b");
  for (const char* name : {"x", "y"}) {
    link("../b", std::string("source/a/") + name);
    link("../a", std::string("source/b/") + name);
  }
  EXPECT_EQ(cpDir(text(folder_.path("source")), text(folder_.path("target"))), 1U);
}

} // namespace
} // namespace tervix::testing
