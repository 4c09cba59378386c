#include "tests/project/operations/SampleProject.h"

// The folder of a profile, asked by its ".sim" file.

namespace tervix::testing {
namespace {

Answer folderFor(CTervixProject& project, std::string& sim) {
  return answerOf([&](std::string& folder) { return project.getProfileDir(folder, sim); });
}

class ProfileFolder : public InEachLayout {
protected:
  static std::string renamedPath(const SampleProject& amp, const std::string& name) {
    const std::string sim = amp.simPath();
    return sim.substr(0, sim.size() - 8) + name + ".sim";
  }
};
TERVIX_IN_EACH_LAYOUT(ProfileFolder);

TEST_P(ProfileFolder, IsTheProfilesOwn) {
  SampleProject amp(GetParam(), twoSchematics());
  for (std::size_t profile = 0; profile < 3; ++profile) {
    std::string sim = amp.simPath(profile);
    EXPECT_EQ(folderFor(*amp, sim), (Answer{0, amp.folderOf(profile)}));
    EXPECT_EQ(sim, amp.simPath(profile));
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(ProfileFolder, IsFoundByABackupWhoseEndingIsCut) {
  SampleProject amp(GetParam());
  for (const char* ending : {".bak", ".bak.bak", ".bak2"}) {
    std::string sim = amp.simPath() + ending;
    EXPECT_EQ(folderFor(*amp, sim), (Answer{0, amp.folderOf()})) << ending;
    EXPECT_EQ(sim, amp.simPath()) << ending;
  }
}

TEST_P(ProfileFolder, IsFoundByABackupThatExistsToo) {
  SampleProject amp(GetParam());
  std::string sim = amp.simPath() + ".bak";
  writeFile(sim, contentOf(amp.simPath()));
  EXPECT_EQ(folderFor(*amp, sim), (Answer{0, amp.folderOf()}));
  EXPECT_EQ(sim, amp.simPath());
}

TEST_P(ProfileFolder, CanAnswerInTheStringThatAsks) {
  SampleProject amp(GetParam());
  for (std::string text : {amp.simPath(), amp.simPath() + ".bak"}) {
    EXPECT_EQ(amp->getProfileDir(text, text), 0u);
    EXPECT_EQ(text, amp.folderOf());
  }
  std::string none = "/none.sim.bak";
  EXPECT_EQ(amp->getProfileDir(none, none), 10104u);
  EXPECT_EQ(none, "");
}

TEST_P(ProfileFolder, OfAnUnknownFileIsNone) {
  SampleProject amp(GetParam());
  const auto expectMiss = [&](std::string sim, const std::string& left, unsigned long status,
                              const std::string& error) {
    recordOtherError();
    EXPECT_EQ(folderFor(*amp, sim), (Answer{status, ""}));
    EXPECT_EQ(sim, left);
    EXPECT_EQ(lastError(), error);
  };
  expectMiss("", "", 10104, "10104 File \"\" does not exist.");
  expectMiss("/d/none.sim.bak", "/d/none.sim", 10104, "10104 File \"/d/none.sim\" does not exist.");
  expectMiss(amp.path(""), amp.path(""), 10104,
             "10104 File \"" + amp.path("") + "\" does not exist.");
  const std::string junk = amp.disk().file("junk.sim", "ProfileName\n");
  expectMiss(junk, junk, 10121, "10121 Invalid simulation profile \"" + junk + "\".");
  const std::string foreign =
      amp.disk().file("o/new.sim", simText("new", "new.sim", "x.dsn", "x.tvp", "OTHER", "", ""));
  expectMiss(foreign, foreign, 1, kOtherError);
}

TEST(ProfileFolderBelowABackup, KeepsThePathOfTheFolder) {
  const TemporaryFolder disk;
  const std::string file = writeProject(disk, Layout::kDesignOther);
  std::filesystem::rename(disk.path("P"), disk.path("old.bak"));
  OpenedProject amp(disk.path("old.bak/amp.tvp"), 2);
  amp->initialize();
  std::string sim = disk.path("old.bak/amp-TOP-tran.sim");
  EXPECT_EQ(folderFor(*amp, sim), (Answer{0, disk.path("old.bak")}));
  EXPECT_EQ(sim, disk.path("old.bak/amp-TOP-tran.sim"));
}

// ---- While a rename is recorded ----

TEST_P(ProfileFolder, OfARenamedProfileIsNamedAfterItsNewNameInTheSchematicsFolder) {
  SampleProject amp(GetParam());
  amp.setChangedName("tran", "pulse", RENAME_TYPE_PROFILE);
  const std::string expected = amp.schematicFolder() + "/pulse";
  for (std::string sim : {amp.simPath(), renamedPath(amp, "pulse")})
    EXPECT_EQ(folderFor(*amp, sim), (Answer{0, expected})) << sim;
  EXPECT_FALSE(isFolder(expected));
}

// The former name counts as the file spells it.
TEST_P(ProfileFolder, OfAProfileWhoseRecordedNameIsSpeltOtherwiseIsItsOwn) {
  SampleProject amp(GetParam());
  amp.setChangedName("TRAN", "pulse", RENAME_TYPE_PROFILE);
  std::string sim = amp.simPath();
  EXPECT_EQ(folderFor(*amp, sim), (Answer{0, amp.folderOf()}));
}

TEST_P(ProfileFolder, OfAnotherProfileIsItsOwn) {
  SampleProject amp(GetParam(), twoSchematics());
  amp.setChangedName("ac", "pulse", RENAME_TYPE_PROFILE);
  std::string sim = amp.simPath();
  EXPECT_EQ(folderFor(*amp, sim), (Answer{0, amp.folderOf()}));
}

TEST_P(ProfileFolder, IsItsOwnWithARecordThatIsNotWholeOrOfAnotherKind) {
  SampleProject amp(GetParam());
  std::string sim = amp.simPath();
  amp.setChangedName("tran", "", RENAME_TYPE_PROFILE);
  EXPECT_EQ(folderFor(*amp, sim), (Answer{0, amp.folderOf()}));
  for (const RENAME_TYPE kind : {RENAME_TYPE_NONE, RENAME_TYPE_DESIGN, RENAME_TYPE_PROJECT}) {
    amp.setChangedName("tran", amp.schematicOf(), kind);
    EXPECT_EQ(folderFor(*amp, sim), (Answer{0, amp.folderOf()}));
  }
}

// Deliberate: a schematic is recognised by its new name, which the ".sim" file names once it is
// in its new place.
TEST(ProfileFolderOfARenamedSchematic, IsTheNewOneOnlyForTheFileInItsNewPlace) {
  SampleProject amp(Layout::kDesignSimulation);
  amp.setChangedName("TOP", "MAIN", RENAME_TYPE_SCHEMATIC);
  std::string sim = amp.simPath();
  EXPECT_EQ(folderFor(*amp, sim), (Answer{0, amp.folderOf()}));
  const std::string moved =
      amp.disk().file("P/amp-TervixFiles/MAIN/tran.sim", contentOf(amp.simPath()));
  sim = moved;
  EXPECT_EQ(folderFor(*amp, sim), (Answer{0, amp.path("P/amp-TervixFiles/MAIN/tran")}));
}

TEST(ProfileFolderOfARenamedSchematic, IsComposedWhateverTheProjectType) {
  SampleProject amp(Layout::kDesignOther);
  amp.setChangedName("TOP", "MAIN", RENAME_TYPE_SCHEMATIC);
  std::string sim =
      amp.disk().file("P/amp-MAIN-tran.sim", simText("tran", "amp-MAIN-tran.sim", "amp.dsn",
                                                     "amp.tvp", "MAIN", "tran.dat", "tran.out"));
  EXPECT_EQ(folderFor(*amp, sim), (Answer{0, amp.path("P/amp-TervixFiles/MAIN/tran")}));
}

} // namespace
} // namespace tervix::testing
