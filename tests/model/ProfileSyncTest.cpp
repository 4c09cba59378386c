#include "tests/model/ModelTree.h"
#include "tests/support/System.h"

namespace tervix::testing {
namespace {

const std::vector<std::string> kSuffixes = {
    "csd",   "dat",     "opt.dat", "mc.dat",   "sens.dat", "opt.csd", "mc.csd", "sens.csd", "out",
    "out.1", "opt.out", "mc.out",  "sens.out", "prb",      "mrk",     "1op",    "cir",      "mif"};

std::string copyFailure(const std::string& from, const std::string& to) {
  return "Failed to copy file \"" + from + "\" to file \"" + to +
         "\". Check disk space and access permissions.";
}

TEST(ProfileSync, NeedsASchematicAndAProject) {
  CTervixProfile orphan("C:/w/tran.sim", "tran", nullptr, FRONTEND_ID_DESIGN_FILE,
                        PROJECT_TYPE_OTHER, nullptr);
  orphan.setDatFilePath(text("C:/d.dat"));
  orphan.setOutFilePath(text("C:/o.out"));
  EXPECT_EQ(orphan.syncUpProfileFiles(text("C:/w/a.sim"), text("C:/w/b.sim")), 1U);
  // Dropped before all else, to be read afresh.
  EXPECT_EQ(got(orphan, &CTervixProfile::getDatFilePath), "-");
  EXPECT_EQ(got(orphan, &CTervixProfile::getOutFilePath), "-");
}

// Each profile has a folder of its own.
class FolderSync : public ModelTree {
protected:
  FolderSync() {
    makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
    profile_ = makeProfile(topFolder() + "/new.sim", "new");
    forgetLastError();
  }

  void put(const std::string& name, const std::string& content) {
    file("prj-TervixFiles/TOP/" + name, content);
  }
  unsigned long sync(const std::string& from = "old.sim", const std::string& to = "new.sim") {
    return profile_->syncUpProfileFiles(text(topFolder() + "/" + from),
                                        text(topFolder() + "/" + to));
  }
  Snapshot top() const { return snapshotOf(topFolder()); }

  std::unique_ptr<CTervixProfile> profile_;
};

TEST_F(FolderSync, CopiesTheFolderAndGivesEveryFileTheNewName) {
  Snapshot expected = {{"old_profile.inc", "kept"}};
  for (const std::string& suffix : kSuffixes)
    put("old/old." + suffix, suffix);
  put("old/old_profile.inc", "list");
  put("old/own.txt", "own");
  put("old/sub/deep.txt", "deep");
  EXPECT_EQ(sync(), 0U);
  expected = {{"new_profile.inc", "list"}, {"own.txt", "own"}, {"sub/deep.txt", "deep"}};
  for (const std::string& suffix : kSuffixes)
    expected["new." + suffix] = suffix;
  EXPECT_EQ(snapshotOf(topFolder() + "/new"), expected);
  EXPECT_EQ(snapshotOf(topFolder() + "/old").size(), 18U + 3U);
  expectNoLastError();
}

TEST_F(FolderSync, KeepsAFileThatHasTheNewNameAlready) {
  put("old/old.dat", "old");
  put("new/new.dat", "new");
  EXPECT_EQ(sync(), 0U);
  EXPECT_EQ(top(), (Snapshot{{"old/old.dat", "old"}, {"new/new.dat", "new"}}));
}

TEST_F(FolderSync, WithTheSameNameInAnotherFolderRenamesNothing) {
  put("old/old.dat", "data");
  EXPECT_EQ(sync("old.sim", "elsewhere/OLD.sim"), 0U);
  EXPECT_EQ(contentOf(topFolder() + "/elsewhere/OLD/old.dat"), "data");
}

TEST_F(FolderSync, CarriesTheSimFileMakingItsFolder) {
  put("old.sim", "sim");
  put("old/old.dat", "data");
  EXPECT_EQ(sync("old.sim", "far/away/new.sim"), 0U);
  EXPECT_EQ(contentOf(topFolder() + "/far/away/new.sim"), "sim");
  EXPECT_EQ(contentOf(topFolder() + "/far/away/new/new.dat"), "data");
  EXPECT_EQ(contentOf(topFolder() + "/old.sim"), "sim");
}

TEST_F(FolderSync, NeverReplacesASimFileThatIsThere) {
  put("old.sim", "old");
  put("new.sim", "new");
  put("old/own.txt", "");
  EXPECT_EQ(sync(), 0U);
  EXPECT_EQ(contentOf(topFolder() + "/new.sim"), "new");
  EXPECT_EQ(contentOf(topFolder() + "/old.sim"), "old");
}

TEST_F(FolderSync, ThatCannotCopyTheSimFileDoesNothingFurther) {
  put("old.sim", "sim");
  put("old/old.dat", "data");
  put("new.sim/in the way", "");
  EXPECT_EQ(sync(), 10108U);
  expectLastError(10108, copyFailure(topFolder() + "/old.sim", topFolder() + "/new.sim"));
  EXPECT_FALSE(isFolder(topFolder() + "/new"));
}

TEST_F(FolderSync, ThatCannotMakeTheSimFilesFolderRecordsTheCopy) {
  put("old.sim", "sim");
  put("blocked", "file");
  EXPECT_EQ(sync("old.sim", "blocked/new.sim"), 10108U);
  expectLastError(10108, copyFailure(topFolder() + "/old.sim", topFolder() + "/blocked/new.sim"));
}

TEST_F(FolderSync, OfAMissingFolderRecordsBothFolders) {
  EXPECT_EQ(sync(), 10123U);
  expectLastError(10123, "Failed to copy contents of directory \"" + topFolder() +
                             "/old\" to directory \"" + topFolder() +
                             "/new\". Check disk space and access permissions.");
}

TEST_F(FolderSync, ThatCannotCopyTheFolderStillRenamesWhatArrived) {
  put("new/old.dat", "arrived before");
  EXPECT_EQ(sync(), 10123U);
  EXPECT_EQ(contentOf(topFolder() + "/new/new.dat"), "arrived before");
}

TEST_F(FolderSync, OfTwoSpellingsOfOneFolderLosesNothing) {
  put("old.sim", "sim");
  put("old/old.dat", "data");
  const Snapshot before = top();
  EXPECT_EQ(sync("old.sim", "old.sim"), 0U);
  EXPECT_EQ(sync("old.sim", "./old.sim"), 0U);
  EXPECT_EQ(sync("old.sim", "old/../old.sim"), 0U);
  EXPECT_EQ(top(), before);
  expectNoLastError();
}

TEST_F(FolderSync, IntoTheFolderItselfIsRefusedAndLosesNothing) {
  put("old.sim", "sim");
  put("old/old.dat", "data");
  EXPECT_EQ(sync("old.sim", "old/new.sim"), 10123U);
  EXPECT_EQ(top(), (Snapshot{{"old.sim", "sim"}, {"old/old.dat", "data"}, {"old/new.sim", "sim"}}));
}

TEST_F(FolderSync, OfPathsTooShortForAnEndingLosesNothing) {
  put("old/old.dat", "data");
  const Snapshot before = top();
  for (const char* path : {"", "a", ".sim"})
    EXPECT_EQ(profile_->syncUpProfileFiles(text(path), text(path)), 10123U) << path;
  EXPECT_EQ(top(), before);
}

TEST_F(FolderSync, DropsTheStoredRunFiles) {
  put("old/old.dat", "data");
  profile_->setDatFilePath(text("C:/d.dat"));
  profile_->setOutFilePath(text("C:/o.out"));
  EXPECT_EQ(sync(), 0U);
  EXPECT_EQ(got(*profile_, &CTervixProfile::getDatFilePath), "-");
  EXPECT_EQ(got(*profile_, &CTervixProfile::getOutFilePath), "-");
}

// All files lie beside the ".sim" file.
class FileSync : public ModelTree {
protected:
  FileSync() {
    makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
    profile_ = makeProfile(place("amp-TOP-new.sim"), "new");
  }

  unsigned long sync() {
    return profile_->syncUpProfileFiles(text(place("amp-TOP-old.sim")),
                                        text(place("amp-TOP-new.sim")));
  }

  std::unique_ptr<CTervixProfile> profile_;
};

TEST_F(FileSync, CopiesEveryFileAndKeepsTheOldOnes) {
  Snapshot expected;
  for (const std::string& suffix : kSuffixes) {
    const bool isNetlistSide = suffix == "1op" || suffix == "cir" || suffix == "mif";
    const std::string ending = (isNetlistSide ? ".sim." : ".") + suffix;
    file("amp-TOP-old" + ending, suffix);
    expected["amp-TOP-old" + ending] = suffix;
    expected["amp-TOP-new" + ending] = suffix;
  }
  EXPECT_EQ(sync(), 0U);
  EXPECT_EQ(snapshot(), expected);
  expectNoLastError();
}

TEST_F(FileSync, TakesOnlyTheNamesOfTheProfilesFiles) {
  file("amp-TOP-old.cir", "not with .sim");
  file("amp-TOP-old.txt", "own");
  EXPECT_EQ(sync(), 0U);
  EXPECT_EQ(snapshot().size(), 2U);
}

TEST_F(FileSync, LeavesAFileThatHasTheNewNameAlready) {
  file("amp-TOP-old.sim.cir", "old");
  file("amp-TOP-new.sim.cir", "new");
  EXPECT_EQ(sync(), 0U);
  EXPECT_EQ(contentOf(place("amp-TOP-new.sim.cir")), "new");
  EXPECT_EQ(contentOf(place("amp-TOP-old.sim.cir")), "old");
}

TEST_F(FileSync, CarriesTheSimFileAndRewritesItsReferences) {
  const std::string old = "ProfileName = \"old\"\nnetlistfile = \"x\"\n ProjectFile = \"y\"\n"
                          "PROJECTFILE \"z\"\n";
  file("amp-TOP-old.sim", old);
  EXPECT_EQ(sync(), 0U);
  EXPECT_EQ(snapshot(),
            (Snapshot{{"amp-TOP-old.sim", old},
                      {"amp-TOP-new.sim",
                       inTextMode("ProfileName = \"old\"\n"
                                  "NetlistFile= \"amp-TOP-new.sim.cir\" \n"
                                  " ProjectFile = \"y\"\nProjectFile= \"prj.tvp\" \n")}}));
}

TEST_F(FileSync, RewritesASimFileThatIsThereAndNeverReplacesIt) {
  file("amp-TOP-old.sim", "ProfileName = \"old\"\n");
  file("amp-TOP-new.sim", "ProfileName = \"new\"\nNetlistFile\n");
  EXPECT_EQ(sync(), 0U);
  EXPECT_EQ(contentOf(place("amp-TOP-new.sim")),
            inTextMode("ProfileName = \"new\"\nNetlistFile= \"amp-TOP-new.sim.cir\" \n"));
}

TEST_F(FileSync, WithoutABackupSkipsTheRewriteAndGoesOn) {
  file("amp-TOP-new.sim", "NetlistFile\n");
  file("amp-TOP-new.sim.bak/in the way");
  file("amp-TOP-old.dat", "data");
  EXPECT_EQ(sync(), 10108U);
  expectLastError(10108, copyFailure(place("amp-TOP-new.sim"), place("amp-TOP-new.sim.bak")));
  EXPECT_EQ(contentOf(place("amp-TOP-new.sim")), "NetlistFile\n");
  EXPECT_EQ(contentOf(place("amp-TOP-new.dat")), "data");
}

TEST_F(FileSync, GoesOnAfterAFileThatCannotBeCopied) {
  file("amp-TOP-old.csd", "csd");
  file("amp-TOP-new.csd/in the way");
  file("amp-TOP-old.mif", "not beside");
  file("amp-TOP-old.dat", "data");
  EXPECT_EQ(sync(), 10108U);
  expectLastError(10108, copyFailure(place("amp-TOP-old.csd"), place("amp-TOP-new.csd")));
  EXPECT_EQ(contentOf(place("amp-TOP-new.dat")), "data");
}

TEST_F(FileSync, ReportsTheLastFailure) {
  for (const char* suffix : {"csd", "prb"}) {
    file(std::string("amp-TOP-old.") + suffix, "x");
    file(std::string("amp-TOP-new.") + suffix + "/in the way");
  }
  EXPECT_EQ(sync(), 10108U);
  expectLastError(10108, copyFailure(place("amp-TOP-old.prb"), place("amp-TOP-new.prb")));
}

TEST_F(FileSync, OntoItselfRewritesTheReferencesAndKeepsTheFiles) {
  file("amp-TOP-new.sim", "NetlistFile = \"x\"\n");
  file("amp-TOP-new.dat", "data");
  EXPECT_EQ(
      profile_->syncUpProfileFiles(text(place("amp-TOP-new.sim")), text(place("amp-TOP-new.sim"))),
      0U);
  EXPECT_EQ(snapshot(),
            (Snapshot{{"amp-TOP-new.sim", inTextMode("NetlistFile= \"amp-TOP-new.sim.cir\" \n")},
                      {"amp-TOP-new.dat", "data"}}));
}

TEST_F(FileSync, OfPathsTooShortForAnEndingLosesNothing) {
  file("amp-TOP-old.dat", "data");
  const Snapshot before = snapshot();
  for (const char* path : {"", "a", ".sim"})
    EXPECT_EQ(profile_->syncUpProfileFiles(text(path), text(path)), 0U) << path;
  EXPECT_EQ(snapshot(), before);
}

} // namespace
} // namespace tervix::testing
