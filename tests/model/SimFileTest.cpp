#include "model/SimFile.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/LastErrorCheck.h"
#include "tests/support/ProjectBuilder.h"

namespace tervix::testing {
namespace {

class SimFile : public ::testing::Test {
protected:
  SimFile() { forgetLastError(); }

  unsigned long readNames(const std::string& content) {
    path_ = folder_.file("a.sim", content);
    return readProfileNameAndRoot(root_, name_, path_);
  }
  unsigned long readRunFiles(const std::string& content) {
    path_ = folder_.file("a.sim", content);
    return readDataAndOutFile(out_, data_, path_);
  }
  unsigned long check(const std::string& content) {
    path_ = folder_.file("a.sim", content);
    return checkSimFile(path_);
  }

  const TemporaryFolder folder_;
  std::string path_;
  std::string name_ = "former name";
  std::string root_ = "former root";
  std::string data_ = "former data";
  std::string out_ = "former out";
};

TEST_F(SimFile, NamesItsProfileAndRoot) {
  EXPECT_EQ(readNames("# head\nProfileName = \"tran\"\nRootSchematics= \"TOP\" \n"), 0U);
  EXPECT_EQ(name_, "tran");
  EXPECT_EQ(root_, "TOP");
  expectNoLastError();
}

TEST_F(SimFile, NamesItsDataAndOutputFile) {
  EXPECT_EQ(readRunFiles("OutFile = \".\\t\\t.out\"\nDataFile = \"./t/t.dat\""), 0U);
  EXPECT_EQ(data_, "./t/t.dat");
  EXPECT_EQ(out_, ".\\t\\t.out");
}

TEST_F(SimFile, TellsOfItsProject) {
  SimProjectInfo info;
  path_ = folder_.file("a.sim", simText("tran", "f.sim", "amp.dsn", "amp.tvp", "TOP", "d", "o"));
  EXPECT_EQ(readSimProjectInfo(info, path_), 0U);
  EXPECT_EQ(info.profileName, "tran");
  EXPECT_EQ(info.profileFile, "f.sim");
  EXPECT_EQ(info.designFile, "amp.dsn");
  EXPECT_EQ(info.projectFile, "amp.tvp");
  EXPECT_EQ(info.rootSchematic, "TOP");
}

TEST_F(SimFile, NeedsAllFiveLinesToTellOfItsProject) {
  SimProjectInfo info;
  path_ = folder_.file("a.sim", "ProfileName=\"a\"\nProfileFile=\"b\"\nDesignFile=\"c\"\n"
                                "ProjectFile=\"d\"\n");
  EXPECT_EQ(readSimProjectInfo(info, path_), 10121U);
  EXPECT_EQ(info.projectFile, "d");
  EXPECT_EQ(info.rootSchematic, "");
}

TEST_F(SimFile, TakesKeysInAnyCase) {
  EXPECT_EQ(readNames("PROFILENAME = \"tran\"\nrootschematics = \"TOP\"\n"), 0U);
  EXPECT_EQ(name_, "tran");
  EXPECT_EQ(root_, "TOP");
}

TEST_F(SimFile, TakesAKeyWhateverFollowsIt) {
  EXPECT_EQ(readNames("ProfileNameAndMore(%s) \"tran\" rest\nRootSchematics\"TOP\"\n"), 0U);
  EXPECT_EQ(name_, "tran");
  EXPECT_EQ(root_, "TOP");
}

TEST_F(SimFile, TakesALineWithBlanksBeforeTheKeyForNoKeyLine) {
  EXPECT_EQ(readNames(" ProfileName = \"tran\"\nRootSchematics = \"TOP\"\n"), 10121U);
  expectLastError(10121, "Invalid simulation profile \"" + path_ + "\".");
  EXPECT_EQ(name_, "former name");
  EXPECT_EQ(root_, "TOP");
}

TEST_F(SimFile, CountsALineWithoutAValue) {
  EXPECT_EQ(readNames("ProfileName = \"\"\nRootSchematics = TOP\n"), 0U);
  EXPECT_EQ(name_, "former name");
  EXPECT_EQ(root_, "former root");
}

TEST_F(SimFile, CountsLinesAndNotKeys) {
  EXPECT_EQ(readNames("ProfileName = \"first\"\nProfileName = \"last\"\n"), 0U);
  EXPECT_EQ(name_, "last");
  EXPECT_EQ(root_, "former root");
}

TEST_F(SimFile, IsReadNoFurtherThanNeeded) {
  EXPECT_EQ(readNames("ProfileName = \"a\"\nRootSchematics = \"b\"\nProfileName = \"c\"\n"), 0U);
  EXPECT_EQ(name_, "a");
}

TEST_F(SimFile, IsInvalidWithoutItsKeys) {
  for (const char* content : {"", "\n\n", "ProfileName = \"tran\"\n", "\"ProfileName\" \"x\"\n"}) {
    EXPECT_EQ(readNames(content), 10121U) << content;
    expectLastError(10121, "Invalid simulation profile \"" + path_ + "\".");
  }
}

TEST_F(SimFile, ThatIsMissingIsNamed) {
  path_ = folder_.path("missing.sim");
  SimProjectInfo info;
  EXPECT_EQ(readProfileNameAndRoot(root_, name_, path_), 10104U);
  EXPECT_EQ(readDataAndOutFile(out_, data_, path_), 10104U);
  EXPECT_EQ(readSimProjectInfo(info, path_), 10104U);
  EXPECT_EQ(checkSimFile(path_), 10104U);
  expectLastError(10104, "File \"" + path_ + "\" does not exist.");
  EXPECT_EQ(name_, "former name");
}

TEST_F(SimFile, ThatIsAFolderDoesNotExistAsAFile) {
  path_ = folder_.folder("a.sim");
  EXPECT_EQ(readProfileNameAndRoot(root_, name_, path_), 10104U);
  expectLastError(10104, "File \"" + path_ + "\" does not exist.");
  EXPECT_EQ(readProfileNameAndRoot(root_, name_, std::string()), 10104U);
  expectLastError(10104, "File \"\" does not exist.");
}

TEST_F(SimFile, MayHoldBinaryJunk) {
  std::string junk(200000, '\0');
  for (std::size_t i = 0; i < junk.size(); ++i)
    junk[i] = static_cast<char>((i * 7919) >> 3);
  EXPECT_EQ(readNames(junk), 10121U);
  EXPECT_EQ(readNames(junk + "\nProfileName=\"tran\"\n" + junk + "\nRootSchematics=\"T\"\n"), 0U);
  EXPECT_EQ(name_, "tran");
  EXPECT_EQ(root_, "T");
}

TEST_F(SimFile, ValueEndsAtAZeroByte) {
  EXPECT_EQ(readNames(std::string("ProfileName=\"a\0b\"\nRootSchematics=\"T\"\n", 38)), 0U);
  EXPECT_EQ(name_, "a");
}

TEST_F(SimFile, TakesEachPieceOfALongLineForALine) {
  const std::string padding(1023, 'x');
  EXPECT_EQ(readNames(padding + "ProfileName=\"tran\"\nRootSchematics=\"TOP\"\n"), 0U);
  EXPECT_EQ(name_, "tran");
  // The value is cut with its piece.
  EXPECT_EQ(readNames("ProfileName=\"" + std::string(3000, 'y') + "\"\nRootSchematics=\"T\"\n"),
            0U);
  EXPECT_EQ(name_, std::string(1023 - 13, 'y'));
}

TEST_F(SimFile, WithWindowsLineEndsReadsTheSame) {
  EXPECT_EQ(readNames("ProfileName = \"tran\"\r\nRootSchematics = \"TOP\"\r\n"), 0U);
  EXPECT_EQ(name_, "tran");
  EXPECT_EQ(root_, "TOP");
}

TEST_F(SimFile, MayBecomeAProfileWhenItIsWholeAndNamedAfterIt) {
  EXPECT_EQ(check(simText("tran", "C:\\w\\TRAN.sim", "amp.dsn", "amp.tvp", "TOP", "", "")), 0U);
  expectNoLastError();
}

TEST_F(SimFile, MayNotBecomeAProfileOtherwise) {
  for (const std::string& content :
       {simText("tran", "ac.sim", "amp.dsn", "amp.tvp", "TOP", "", ""),
        simText("tran", "tran.sim", "", "amp.tvp", "TOP", "", ""),
        simText("tran", "tran.sim", "amp.dsn", "", "TOP", "", ""),
        simText("tran", "tran.sim", "amp.dsn", "amp.tvp", "", "", ""), std::string()}) {
    EXPECT_EQ(check(content), 10121U) << content;
    expectLastError(10121, "Invalid simulation profile \"" + path_ + "\".");
  }
}

} // namespace
} // namespace tervix::testing
