
#include <filesystem>

#include <gtest/gtest.h>

#include "model/SimFile.h"
#include "tests/project/OpenedProject.h"
#include "tests/support/System.h"

// What is read from the text of a ".sim" file.

namespace tervix::testing {
namespace {

class SimReaders : public ::testing::Test {
protected:
  void write(const std::string& text) { path = folder.file("a.sim", text); }
  unsigned long readNames() { return readProfileNameAndRoot(root, profile, path); }
  std::string invalid() const { return "10121 Invalid simulation profile \"" + path + "\"."; }
  std::string missing() const { return "10104 File \"" + path + "\" does not exist."; }

  TemporaryFolder folder;
  std::string path = folder.path("a.sim");
  std::string root = "unset root";
  std::string profile = "unset profile";
};

TEST_F(SimReaders, ReadProfileAndRoot) {
  write("ProfileName = \"tran\"\nRootSchematics = \"TOP\"\n");
  EXPECT_EQ(readNames(), 0u);
  EXPECT_EQ(profile, "tran");
  EXPECT_EQ(root, "TOP");
}

TEST_F(SimReaders, ReadDataAndOutputFile) {
  write("OutFile=\"a.out\"\r\nDataFile=\"a.dat\"\r\n");
  std::string out;
  std::string data;
  EXPECT_EQ(readDataAndOutFile(out, data, path), 0u);
  EXPECT_EQ(out, "a.out");
  EXPECT_EQ(data, "a.dat");
}

TEST_F(SimReaders, ReadTheFiveKeysOfAProject) {
  write(simText("tran", "P-TOP-tran.sim", "P.dsn", "P.tvp", "TOP", "", ""));
  SimProjectInfo info;
  EXPECT_EQ(readSimProjectInfo(info, path), 0u);
  EXPECT_EQ(info.profileName, "tran");
  EXPECT_EQ(info.profileFile, "P-TOP-tran.sim");
  EXPECT_EQ(info.designFile, "P.dsn");
  EXPECT_EQ(info.projectFile, "P.tvp");
  EXPECT_EQ(info.rootSchematic, "TOP");
}

TEST_F(SimReaders, TakeAKeyInAnyCase) {
  write("PROFILENAME = \"tran\"\nrootschematics = \"TOP\"\n");
  EXPECT_EQ(readNames(), 0u);
  EXPECT_EQ(profile + root, "tranTOP");
}

TEST_F(SimReaders, TakeAKeyWithWhateverFollowsIt) {
  write("ProfileNames of all: \"tran\" \"other\"\nRootSchematicsX\"TOP\"rest");
  EXPECT_EQ(readNames(), 0u);
  EXPECT_EQ(profile + root, "tranTOP");
}

TEST_F(SimReaders, TakeNoKeyBehindBlanks) {
  write(" ProfileName = \"tran\"\n\tProfileName = \"tran\"\nRootSchematics = \"TOP\"\n");
  EXPECT_EQ(readNames(), 10121u);
  EXPECT_EQ(lastError(), invalid());
  EXPECT_EQ(profile, "unset profile");
  EXPECT_EQ(root, "TOP");
}

TEST_F(SimReaders, CountAKeyWithoutValue) {
  for (const char* text :
       {"ProfileName = \"\"\nRootSchematics\n", "ProfileName\nRootSchematics = TOP\n",
        "ProfileNameRootSchematics\n"
        "ProfileName"}) {
    write(text);
    EXPECT_EQ(readNames(), 0u) << text;
    EXPECT_EQ(profile, "unset profile");
    EXPECT_EQ(root, "unset root");
  }
}

TEST_F(SimReaders, TakeAValueWithoutItsClosingQuote) {
  write("ProfileName = \"tran\nRootSchematics = \"TOP");
  EXPECT_EQ(readNames(), 0u);
  EXPECT_EQ(profile.substr(0, 4), "tran");
  EXPECT_EQ(root, "TOP");
}

TEST_F(SimReaders, CountLinesAndNotKeys) {
  write("ProfileName = \"first\"\nProfileName = \"second\"\nRootSchematics = \"TOP\"\n");
  EXPECT_EQ(readNames(), 0u);
  EXPECT_EQ(profile, "second");
  EXPECT_EQ(root, "unset root");
}

TEST_F(SimReaders, NeedEnoughLines) {
  for (const char* text : {"", "\n\n", "ProfileName = \"tran\"\n", "Analysis = \"tran\"\n"}) {
    write(text);
    recordOtherError();
    EXPECT_EQ(readNames(), 10121u) << text;
    EXPECT_EQ(lastError(), invalid());
  }
}

TEST_F(SimReaders, NeedAllFiveForAProject) {
  write("ProfileName = \"tran\"\nProfileFile = \"a\"\nDesignFile = \"b\"\nProjectFile = \"c\"\n");
  SimProjectInfo info;
  EXPECT_EQ(readSimProjectInfo(info, path), 10121u);
  EXPECT_EQ(lastError(), invalid());
}

TEST_F(SimReaders, ReadALongLineInPieces) {
  // A piece holds 1023 characters; the second one starts with the key.
  write(std::string(1023, 'x') + "ProfileName = \"tran\"\nRootSchematics = \"TOP\"\n");
  EXPECT_EQ(readNames(), 0u);
  EXPECT_EQ(profile + root, "tranTOP");
}

TEST_F(SimReaders, TakeNoKeyWithinAPiece) {
  write(std::string(1022, 'x') + "ProfileName = \"tran\"\nRootSchematics = \"TOP\"\n");
  EXPECT_EQ(readNames(), 10121u);
}

TEST_F(SimReaders, SurviveLinesOfAnyLength) {
  write("ProfileName = \"" + std::string(1 << 20, 'n') + "\"\nRootSchematics = \"TOP\"\n");
  EXPECT_EQ(readNames(), 0u);
  EXPECT_LT(profile.size(), 1024u);
  EXPECT_EQ(root, "TOP");
}

TEST_F(SimReaders, SurviveBinaryJunk) {
  std::string junk;
  for (int i = 0; i < 100000; ++i)
    junk += static_cast<char>((i * 7919) >> 3);
  write(junk);
  EXPECT_EQ(readNames(), 10121u);
  EXPECT_EQ(lastError(), invalid());
  write(std::string("ProfileName = \"tr") + '\0' + "an\"\nRootSchematics = \"TOP\"\n");
  EXPECT_EQ(readNames(), 0u);
  EXPECT_EQ(profile.find('\0'), std::string::npos);
}

TEST_F(SimReaders, KeepValuesAsTheyAre) {
  write("ProfileName = \"50%s %n \xc3\xa4'\\\"\nRootSchematics = \" \"\n");
  EXPECT_EQ(readNames(), 0u);
  EXPECT_EQ(profile, "50%s %n \xc3\xa4'\\");
  EXPECT_EQ(root, " ");
}

TEST_F(SimReaders, MissAFileThatIsNotThere) {
  EXPECT_EQ(readNames(), 10104u);
  EXPECT_EQ(lastError(), missing());
  std::string out = "out";
  std::string data = "data";
  EXPECT_EQ(readDataAndOutFile(out, data, path), 10104u);
  SimProjectInfo info;
  EXPECT_EQ(readSimProjectInfo(info, path), 10104u);
  EXPECT_EQ(profile + root + out + data, "unset profileunset rootoutdata");
}

TEST_F(SimReaders, MissAFolderAPipeAndALoop) {
  std::filesystem::create_directory(path);
  EXPECT_EQ(readNames(), 10104u);
  std::filesystem::remove(path);
  ASSERT_TRUE(makePipe(path));
  EXPECT_EQ(readNames(), 10104u);
  std::filesystem::remove(path);
  std::filesystem::create_symlink(path, path);
  EXPECT_EQ(readNames(), 10104u);
  EXPECT_EQ(lastError(), missing());
}

TEST_F(SimReaders, MissAPathThatIsNone) {
  for (const std::string& none : {std::string(), std::string(100000, 'x'), std::string(1, '\0')}) {
    path = none;
    EXPECT_EQ(readNames(), 10104u);
  }
}

TEST_F(SimReaders, FollowALinkToAFile) {
  write("ProfileName = \"tran\"\nRootSchematics = \"TOP\"\n");
  const std::string link = folder.path("link.sim");
  std::filesystem::create_symlink(path, link);
  EXPECT_EQ(readProfileNameAndRoot(root, profile, link), 0u);
}

TEST_F(SimReaders, TellAFileThatTheSystemCannotOpen) {
  write("ProfileName = \"tran\"\nRootSchematics = \"TOP\"\n");
  const unsigned long status = [this] {
    const NoFreeDescriptor none;
    return readNames();
  }();
  EXPECT_EQ(status, 10105u);
  EXPECT_EQ(lastError(), "10105 Failed to open file \"" + path +
                             "\" for reading. Check its access permissions and existence on the "
                             "disk.");
}

TEST_F(SimReaders, CheckAWholeProfile) {
  write(simText("tran", "C:\\w\\TRAN.sim", "flt", "flt.tvp", "flt", "", ""));
  EXPECT_EQ(checkSimFile(path), 0u);
}

TEST_F(SimReaders, RefuseAProfileThatIsNotWhole) {
  for (const std::string& text : {simText("tran", "tran.sim", "", "flt.tvp", "flt", "", ""),
                                  simText("tran", "tran.sim", "flt", "", "flt", "", ""),
                                  simText("tran", "tran.sim", "flt", "flt.tvp", "", "", ""),
                                  simText("tran", "other.sim", "flt", "flt.tvp", "flt", "", "")}) {
    write(text);
    recordOtherError();
    EXPECT_EQ(checkSimFile(path), 10121u) << text;
    EXPECT_EQ(lastError(), invalid());
  }
}

} // namespace
} // namespace tervix::testing
