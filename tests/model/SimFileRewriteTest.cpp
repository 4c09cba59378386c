#include "model/SimFileRewrite.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/LastErrorCheck.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {
namespace {

using Snapshot = std::map<std::string, std::string>;

class SimFileRewrite : public ::testing::Test {
protected:
  SimFileRewrite() { forgetLastError(); }

  unsigned long rewrite(const std::string& content) {
    path_ = folder_.file("a.sim", content);
    return rewriteSimKeys(path_, {{"NetlistFile", "new.cir"}, {"ProjectFile", "new.tvp"}});
  }
  std::string rewritten(const std::string& content) {
    EXPECT_EQ(rewrite(content), 0U);
    return contentOf(path_);
  }

  const TemporaryFolder folder_;
  std::string path_;
};

TEST_F(SimFileRewrite, ReplacesKeyLinesOnly) {
  EXPECT_EQ(rewritten("ProfileName = \"a\"\nNetlistFile = \"old.cir\"\nProjectFile=x\ntail"),
            inTextMode(
                "ProfileName = \"a\"\nNetlistFile= \"new.cir\" \nProjectFile= \"new.tvp\" \ntail"));
}

TEST_F(SimFileRewrite, WritesTheKeyInItsOwnForm) {
  EXPECT_EQ(rewritten("netlistfile \"old\"\nPROJECTFILE\n"),
            inTextMode("NetlistFile= \"new.cir\" \nProjectFile= \"new.tvp\" \n"));
}

TEST_F(SimFileRewrite, CopiesALineWithBlanksBeforeTheKey) {
  EXPECT_EQ(rewritten(" NetlistFile = \"old\"\n\tProjectFile\n"),
            " NetlistFile = \"old\"\n\tProjectFile\n");
}

TEST_F(SimFileRewrite, ReplacesEveryLineOfAKey) {
  EXPECT_EQ(rewritten("NetlistFile=1\nNetlistFile=2\n"),
            inTextMode("NetlistFile= \"new.cir\" \nNetlistFile= \"new.cir\" \n"));
}

TEST_F(SimFileRewrite, EndsAReplacedLastLine) {
  EXPECT_EQ(rewritten("NetlistFile = \"old\""), inTextMode("NetlistFile= \"new.cir\" \n"));
}

TEST_F(SimFileRewrite, KeepsEveryOtherByte) {
  std::string junk(50000, '\0');
  for (std::size_t i = 0; i < junk.size(); ++i)
    junk[i] = static_cast<char>((i * 7919) >> 3);
  EXPECT_EQ(rewritten(junk), junk);
  EXPECT_EQ(rewritten("a\r\n\r\nb"), "a\r\n\r\nb");
  EXPECT_EQ(rewritten(""), "");
}

TEST_F(SimFileRewrite, TakesALineOfAnyLengthForOneLine) {
  const std::string padding(1023, 'x');
  const std::string inside = padding + "NetlistFile=\"stays\"\n";
  EXPECT_EQ(rewritten(inside), inside);
  EXPECT_EQ(rewritten("NetlistFile=\"" + std::string(5000, 'y') + "\"\nnext\n"),
            inTextMode("NetlistFile= \"new.cir\" \nnext\n"));
}

TEST_F(SimFileRewrite, LeavesNoBackup) {
  rewrite("NetlistFile=1\n");
  EXPECT_EQ(snapshotOf(folder_.path()),
            (Snapshot{{"a.sim", inTextMode("NetlistFile= \"new.cir\" \n")}}));
}

TEST_F(SimFileRewrite, LeavesABackupThatWasThereBefore) {
  folder_.file("a.sim.bak", "the user's own");
  EXPECT_EQ(rewrite("NetlistFile=1\n"), 0U);
  EXPECT_EQ(contentOf(folder_.path("a.sim.bak")), "the user's own");
}

TEST_F(SimFileRewrite, WithoutABackupLeavesTheFileAsItWas) {
  folder_.file("a.sim.bak/in the way", "");
  EXPECT_EQ(rewrite("NetlistFile=1\n"), 10108U);
  expectLastError(10108, "Failed to copy file \"" + path_ + "\" to file \"" + path_ +
                             ".bak\". Check disk space and access permissions.");
  EXPECT_EQ(contentOf(path_), "NetlistFile=1\n");
}

TEST_F(SimFileRewrite, OfAMissingFileCannotBeBackedUp) {
  const std::string path = folder_.path("missing.sim");
  EXPECT_EQ(rewriteSimKeys(path, {{"NetlistFile", "x"}}), 10108U);
  EXPECT_EQ(lastErrorCode(), 10108U);
  EXPECT_TRUE(snapshotOf(folder_.path()).empty());
}

TEST_F(SimFileRewrite, WritesOddValuesAsTheyAre) {
  const std::string path = folder_.file("a.sim", "NetlistFile=1\n");
  EXPECT_EQ(rewriteSimKeys(path, {{"NetlistFile", "50%s%n\xC3\xA4"}}), 0U);
  EXPECT_EQ(contentOf(path), inTextMode("NetlistFile= \"50%s%n\xC3\xA4\" \n"));
}

} // namespace
} // namespace tervix::testing
