#include <filesystem>

#include <sys/stat.h>

#include "model/SimFile.h"
#include "model/SimFileRewrite.h"
#include "tests/model/VariantTree.h"
#include "tests/support/posix/FailingSystem.h"

// What the model does when the system fails it.

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

std::string cannotRead(const std::string& path) {
  return "Failed to open file \"" + path +
         "\" for reading. Check its access permissions and existence on the disk.";
}
std::string cannotWrite(const std::string& path) {
  return "Failed to open file \"" + path +
         "\" for writing. Check disk space and write permissions on the parent directory.";
}

class FailingIncludeList : public VariantTree {
protected:
  static constexpr const char* kContent = ".LIB\t\"x.lib\" \n";
  CTervixProfile& opened() {
    writeList(kContent);
    return open();
  }
};

TEST_F(FailingIncludeList, OnAFullDiskStaysAsItWas) {
  CTervixProfile& profile = opened();
  add(profile, std::string(5000, 'y') + ".lib", VARIANTFILE_TYPE_LIBRARY);
  unsigned long status = 0;
  {
    const FullDisk full(1000);
    status = profile.writeProfileLevelVariants();
  }
  EXPECT_EQ(status, 10106U);
  expectLastError(10106, cannotWrite(listPath()));
  EXPECT_TRUE(isUpdated(profile));
  EXPECT_EQ(snapshotOf(topFolder()), (Snapshot{{"tran/tran_profile.inc", kContent}}));
}

TEST_F(FailingIncludeList, OnAFullDiskSurvivesTheProfile) {
  CTervixProfile& profile = opened();
  add(profile, "y.lib", VARIANTFILE_TYPE_LIBRARY);
  {
    const FullDisk full;
    profile_.reset();
  }
  EXPECT_EQ(snapshotOf(topFolder()), (Snapshot{{"tran/tran_profile.inc", kContent}}));
}

TEST_F(FailingIncludeList, ThatCannotBeDeletedStays) {
  CTervixProfile& profile = opened();
  profile.deleteAllProfileLevelFiles(true);
  const UndeletableFile kept(listPath());
  EXPECT_EQ(profile.writeProfileLevelVariants(), 10107U);
  expectLastError(10107, "Failed to delete file \"" + listPath() + "\".");
  EXPECT_TRUE(isUpdated(profile));
  EXPECT_EQ(contentOf(listPath()), kContent);
  profile.setVariantsUpdated(false);
}

TEST_F(FailingIncludeList, ThatCouldNotBeOpenedIsNotLost) {
  CTervixProfile& profile = opened();
  unsigned long status = 0;
  {
    const NoFreeDescriptor none;
    status = profile.readProfileLevelVariants();
  }
  EXPECT_EQ(status, 10105U);
  expectLastError(10105, cannotRead(listPath()));
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_LIBRARY), Files{});
  EXPECT_TRUE(isUpdated(profile));
  EXPECT_EQ(profile.writeProfileLevelVariants(), 10106U);
  expectLastError(10106, cannotWrite(listPath()));
  EXPECT_TRUE(isUpdated(profile));
  profile_.reset();
  EXPECT_EQ(contentOf(listPath()), kContent);
}

TEST_F(FailingIncludeList, ThatCouldNotBeOpenedCanBeReadLater) {
  CTervixProfile& profile = opened();
  {
    const NoFreeDescriptor none;
    profile.readProfileLevelVariants();
  }
  EXPECT_EQ(profile.readProfileLevelVariants(), 0U);
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_LIBRARY), Files{"x.lib"});
  EXPECT_EQ(profile.writeProfileLevelVariants(), 0U);
}

TEST_F(FailingIncludeList, ThatCouldNotBeOpenedGoesWhenItsListsAreDeleted) {
  CTervixProfile& profile = opened();
  {
    const NoFreeDescriptor none;
    profile.readProfileLevelVariants();
  }
  profile.deleteAllProfileLevelFiles(true);
  EXPECT_EQ(profile.writeProfileLevelVariants(), 0U);
  EXPECT_FALSE(isFile(listPath()));
}

TEST_F(FailingIncludeList, ThatCouldNotBeOpenedIsNotLostWhereARenameTookIt) {
  CTervixProfile& profile = opened();
  {
    const NoFreeDescriptor none;
    profile.readProfileLevelVariants();
  }
  EXPECT_EQ(profile.rename(text("ac")), 0U);
  profile_.reset();
  EXPECT_EQ(contentOf(topFolder() + "/ac/ac_profile.inc"), kContent);
  EXPECT_EQ(contentOf(listPath()), kContent);
}

TEST_F(FailingIncludeList, ThatIsAFifoIsNoFileAndStays) {
  ASSERT_EQ(mkfifo(listPath().c_str(), 0600), 0);
  CTervixProfile& profile = open();
  EXPECT_EQ(profile.readProfileLevelVariants(), 10104U);
  add(profile, "x.lib", VARIANTFILE_TYPE_LIBRARY);
  EXPECT_NE(profile.writeProfileLevelVariants(), 0U);
  profile_.reset();
  EXPECT_TRUE(fs::is_fifo(listPath()));
}

TEST_F(FailingIncludeList, ThatIsALinkToItselfStays) {
  fs::create_symlink("tran_profile.inc", listPath());
  CTervixProfile& profile = open();
  EXPECT_EQ(profile.readProfileLevelVariants(), 10104U);
  profile_.reset();
  EXPECT_TRUE(fs::is_symlink(listPath()));
}

TEST_F(FailingIncludeList, BehindALinkIsSavedThroughIt) {
  const std::string real = file("real.inc", kContent);
  fs::create_symlink(real, listPath());
  CTervixProfile& profile = open();
  add(profile, "y.lib", VARIANTFILE_TYPE_LIBRARY);
  EXPECT_EQ(profile.writeProfileLevelVariants(), 0U);
  EXPECT_TRUE(fs::is_symlink(listPath()));
  EXPECT_EQ(contentOf(real), ".LIB\t\"x.lib\" \n.LIB\t\"y.lib\" \n");
}

TEST_F(FailingIncludeList, ThatMayNotBeReadIsNotLost) {
  writeList(kContent);
  fs::permissions(listPath(), fs::perms::none);
  unsigned long read = 0;
  bool inForce = false;
  {
    const UnprivilegedUser user;
    inForce = user.isInForce();
    CTervixProfile& profile = open();
    read = profile.readProfileLevelVariants();
    profile_.reset();
  }
  ASSERT_TRUE(isFile(listPath()));
  fs::permissions(listPath(), fs::perms::owner_all);
  if (!inForce)
    GTEST_SKIP() << "root cannot become another user here";
  EXPECT_EQ(read, 10104U);
  EXPECT_EQ(contentOf(listPath()), kContent);
}

class FailingSimFile : public ModelTree {};

TEST_F(FailingSimFile, ThatCannotBeOpenedIsNotMissing) {
  const std::string path = file("a.sim", "ProfileName=\"a\"\n");
  std::string root;
  std::string name;
  unsigned long status = 0;
  {
    const NoFreeDescriptor none;
    status = readProfileNameAndRoot(root, name, path);
  }
  EXPECT_EQ(status, 10105U);
  expectLastError(10105, cannotRead(path));
}

TEST_F(FailingSimFile, ThatCannotBeReadIsNotInvalid) {
  const std::string path = "/proc/self/mem"; // opens, and then fails on every read at its start
  if (!fs::exists(path))
    GTEST_SKIP() << "needs " << path;
  std::string root;
  std::string name;
  EXPECT_EQ(readProfileNameAndRoot(root, name, path), 10105U);
  expectLastError(10105, cannotRead(path));
}

TEST_F(FailingSimFile, ThatIsAFifoOrALoopDoesNotExist) {
  const std::string pipe = folder_.path("pipe.sim");
  const std::string loop = folder_.path("loop.sim");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  fs::create_symlink("loop.sim", loop);
  SimProjectInfo info;
  for (const std::string& path : {pipe, loop}) {
    EXPECT_EQ(readSimProjectInfo(info, path), 10104U);
    expectLastError(10104, "File \"" + path + "\" does not exist.");
  }
}

TEST_F(FailingSimFile, ThatCannotBeRewrittenIsAsItWas) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  // The backup fits on the disk, the longer names do not.
  const std::string content = "NetlistFile\nProjectFile\n" + std::string(1000, '#') + "\n";
  const std::string path = file("amp-TOP-tran.sim", content);
  file("amp-TOP-old.dat", "data");
  const auto profile = makeProfile(path);
  unsigned long status = 0;
  {
    const FullDisk full(content.size());
    status = profile->syncUpProfileFiles(text(place("amp-TOP-old.sim")), text(std::string(path)));
  }
  EXPECT_EQ(status, 1U);
  expectNoLastError();
  EXPECT_EQ(snapshot(), (Snapshot{{"amp-TOP-tran.sim", content},
                                  {"amp-TOP-old.dat", "data"},
                                  {"amp-TOP-tran.dat", "data"}}));
}

TEST_F(FailingSimFile, WithoutRoomForABackupIsAsItWas) {
  const std::string content = "NetlistFile\n" + std::string(1000, '#');
  const std::string path = file("a.sim", content);
  unsigned long status = 0;
  {
    const FullDisk full(100);
    status = rewriteSimKeys(path, {{"NetlistFile", "x"}});
  }
  EXPECT_EQ(status, 10108U);
  EXPECT_EQ(snapshot(), (Snapshot{{"a.sim", content}}));
}

class FailingSync : public ModelTree {};

TEST_F(FailingSync, OnAFullDiskKeepsTheOldFolderAndRecordsBoth) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  const std::string big(20000, 'x');
  file("prj-TervixFiles/TOP/tran.sim", "sim");
  file("prj-TervixFiles/TOP/tran/tran.dat", big);
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  unsigned long status = 0;
  {
    const FullDisk full(10000);
    status = profile->rename(text("ac"));
  }
  EXPECT_EQ(status, 10123U);
  expectLastError(10123, "Failed to copy contents of directory \"" + topFolder() +
                             "/tran\" to directory \"" + topFolder() +
                             "/ac\". Check disk space and access permissions.");
  EXPECT_EQ(contentOf(topFolder() + "/tran/tran.dat"), big);
  // Half a copy would pass for a whole one the next time.
  EXPECT_EQ(snapshotOf(topFolder() + "/ac"), (Snapshot{}));
  EXPECT_EQ(contentOf(topFolder() + "/tran.sim"), "sim");
}

TEST_F(FailingSync, OfAFolderThatLinksBackToItselfEnds) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  file("prj-TervixFiles/TOP/tran/tran.dat", "data");
  fs::create_symlink(".", topFolder() + "/tran/here");
  fs::create_symlink(".", topFolder() + "/tran/here2");
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  EXPECT_EQ(profile->rename(text("ac")), 10123U);
  EXPECT_EQ(contentOf(topFolder() + "/tran/tran.dat"), "data");
}

TEST_F(FailingSync, BetweenTwoLinksToOneFolderLosesNothing) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  file("prj-TervixFiles/TOP/tran.sim", "sim");
  file("prj-TervixFiles/TOP/tran/tran.dat", "data");
  // As on a disk that ignores case.
  fs::create_symlink("tran", topFolder() + "/TRAN");
  fs::create_symlink("tran.sim", topFolder() + "/TRAN.sim");
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  forgetLastError();
  EXPECT_EQ(profile->rename(text("TRAN")), 0U);
  expectNoLastError();
  EXPECT_EQ(contentOf(topFolder() + "/tran/tran.dat"), "data");
  EXPECT_EQ(contentOf(topFolder() + "/tran.sim"), "sim");
}

TEST_F(FailingSync, OfAFileThatCannotBeCopiedNamesBoth) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  file("amp-TOP-tran.dat", std::string(20000, 'x'));
  file("amp-TOP-tran.mrk", "marker");
  const auto profile = makeProfile(place("amp-TOP-tran.sim"));
  unsigned long status = 0;
  {
    const FullDisk full(10000);
    status = profile->rename(text("ac"));
  }
  EXPECT_EQ(status, 10108U);
  expectLastError(10108, "Failed to copy file \"" + place("amp-TOP-tran.dat") + "\" to file \"" +
                             place("amp-TOP-ac.dat") +
                             "\". Check disk space and access permissions.");
  EXPECT_EQ(contentOf(place("amp-TOP-ac.mrk")), "marker");
  EXPECT_FALSE(isFile(place("amp-TOP-ac.dat")));
}

TEST_F(FailingSync, TouchesNothingThatStandsUnderANewName) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  file("amp-TOP-tran.dat", "data");
  file("amp-TOP-tran.mrk", "marker");
  const std::string pipe = place("amp-TOP-ac.dat");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  fs::create_symlink("nowhere", place("amp-TOP-ac.mrk"));
  EXPECT_EQ(makeProfile(place("amp-TOP-tran.sim"))->rename(text("ac")), 0U);
  EXPECT_TRUE(fs::is_fifo(pipe));
  EXPECT_TRUE(fs::is_symlink(place("amp-TOP-ac.mrk")));
  EXPECT_FALSE(fs::exists(place("nowhere")));
}

} // namespace
} // namespace tervix::testing
