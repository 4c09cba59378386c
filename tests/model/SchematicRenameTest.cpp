#include "tests/model/ModelTree.h"
#include "tests/support/ProjectBuilder.h"
#include "tests/support/System.h"

namespace tervix::testing {
namespace {

class SchematicRename : public ModelTree {
protected:
  void record(const char* former, const char* changed, RENAME_TYPE kind) {
    project_.setChangedName(text(former), text(changed), kind);
  }
  // What getNewPath gives, "kept" when it leaves its output as it was.
  std::string newPath() {
    std::string path = "kept";
    EXPECT_EQ(top_->getNewPath(path), 0U);
    return path;
  }
};

TEST_F(SchematicRename, GivesNoNewPathWithoutARecord) {
  for (const PROJECT_TYPE type : {PROJECT_TYPE_OTHER, PROJECT_TYPE_SIMULATION}) {
    makeTop(FRONTEND_ID_DESIGN_FILE, type);
    record("", "", RENAME_TYPE_NONE);
    EXPECT_EQ(newPath(), "kept");
    record("TOP", "NEW", RENAME_TYPE_PROFILE);
    EXPECT_EQ(newPath(), "kept");
    record("prj", "other", RENAME_TYPE_PROJECT);
    EXPECT_EQ(newPath(), "kept");
    record("", "NEW", RENAME_TYPE_SCHEMATIC);
    EXPECT_EQ(newPath(), "kept");
    record("TOP", "", RENAME_TYPE_DESIGN);
    EXPECT_EQ(newPath(), "kept");
  }
}

TEST_F(SchematicRename, GivesTheDesignsFolderOutsideSimulation) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  project_.setDesignFolderPath(text("C:/design"));
  record("TOP", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(newPath(), "C:/design");
  record("amp", "mix", RENAME_TYPE_DESIGN);
  EXPECT_EQ(newPath(), "C:/design");
}

TEST_F(SchematicRename, GivesAFolderOfTheNewNameInSimulation) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  record("TOP", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(newPath(), place("prj-TervixFiles/NEW"));
  record("amp", "mix", RENAME_TYPE_DESIGN);
  EXPECT_EQ(newPath(), "kept");
}

TEST_F(SchematicRename, NeedsAProject) {
  CTervixSchematic alone("C:/w", "TOP", FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER, nullptr);
  std::string path = "kept";
  EXPECT_EQ(alone.getNewPath(path), 1U);
  EXPECT_EQ(path, "kept");
  EXPECT_EQ(alone.rename(text("NEW")), 1U);
  EXPECT_EQ(nameOf(alone), "TOP");
}

TEST_F(SchematicRename, NeedsAProjectType) {
  CTervixSchematic schematic("C:/w", "TOP", FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_UNSET, &project_);
  EXPECT_EQ(schematic.rename(text("NEW")), 1U);
  EXPECT_EQ(nameOf(schematic), "TOP");
}

TEST_F(SchematicRename, ToAnEmptyNameChangesNothing) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  CTervixProfile& tran = addProfile("tran");
  EXPECT_EQ(top_->rename(text("")), 1U);
  EXPECT_EQ(nameOf(*top_), "TOP");
  EXPECT_EQ(pathOf(tran), place("amp-TOP-tran.sim"));
}

TEST_F(SchematicRename, InASimulationProjectTakesProfilesAndFilesAlong) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  file("prj-TervixFiles/TOP/tran.sim", "NetlistFile = \"tran.cir\"\n");
  file("prj-TervixFiles/TOP/tran/tran.dat", "data");
  file("prj-TervixFiles/TOP/tran/tran_profile.inc", ".LIB\t\"x.lib\" \n");
  CTervixProfile& tran = addProfile("tran");
  record("TOP", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(top_->rename(text("NEW")), 0U);
  const std::string folder = place("prj-TervixFiles/NEW");
  EXPECT_EQ(nameOf(*top_), "NEW");
  EXPECT_EQ(pathOf(*top_), folder);
  EXPECT_EQ(folderOf(*top_), folder);
  EXPECT_EQ(folderOf(tran), folder + "/tran");
  EXPECT_EQ(got(tran, &CTervixProfile::getDisplayName), "NEW-tran");
  EXPECT_EQ(got(tran, &CTervixProfile::getMarkerKey), "amp-NEW-tran.mrk");
  EXPECT_EQ(got(tran, &CTervixProfile::getVariantFilePath), folder + "/tran/tran_profile.inc");
  // Inside the profile's own folder, one deeper than where it came from.
  EXPECT_EQ(pathOf(tran), folder + "/tran/tran.sim");
  EXPECT_EQ(snapshotOf(folder), (Snapshot{{"tran/tran.sim", "NetlistFile = \"tran.cir\"\n"},
                                          {"tran/tran/tran.dat", "data"},
                                          {"tran/tran/tran_profile.inc", ".LIB\t\"x.lib\" \n"}}));
  EXPECT_TRUE(isFile(topFolder() + "/tran/tran.dat"));
}

TEST_F(SchematicRename, OutsideSimulationTakesProfilesAndFilesAlong) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  file("amp-TOP-tran.sim", "ProfileName = \"tran\"\nNetlistFile = \"old\"\nProjectFile = \"o\"\n");
  file("amp-TOP-tran.dat", "data");
  file("amp-TOP-tran.sim.cir", "netlist");
  CTervixProfile& tran = addProfile("tran");
  record("TOP", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(top_->rename(text("NEW")), 0U);
  EXPECT_EQ(nameOf(*top_), "NEW");
  EXPECT_EQ(folderOf(*top_), place(""));
  EXPECT_EQ(folderOf(tran), place(""));
  EXPECT_EQ(pathOf(tran), place("amp-NEW-tran.sim"));
  EXPECT_EQ(got(tran, &CTervixProfile::getVariantFilePath), place("tran_profile.inc"));
  EXPECT_EQ(contentOf(place("amp-NEW-tran.sim")),
            inTextMode("ProfileName = \"tran\"\nNetlistFile= \"amp-NEW-tran.sim.cir\" \n"
                       "ProjectFile= \"prj.tvp\" \n"));
  EXPECT_EQ(contentOf(place("amp-NEW-tran.dat")), "data");
  EXPECT_EQ(contentOf(place("amp-NEW-tran.sim.cir")), "netlist");
  EXPECT_EQ(snapshot().size(), 6U); // the old ones stay, no backup does
}

TEST_F(SchematicRename, WithoutARecordKeepsTheFolder) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  file("prj-TervixFiles/TOP/tran.sim", "sim");
  file("prj-TervixFiles/TOP/tran/tran.dat", "data");
  CTervixProfile& tran = addProfile("tran");
  top_->rename(text("NEW"));
  EXPECT_EQ(nameOf(*top_), "NEW");
  EXPECT_EQ(folderOf(*top_), topFolder());
  EXPECT_EQ(folderOf(tran), topFolder() + "/tran");
  EXPECT_EQ(contentOf(topFolder() + "/tran/tran.dat"), "data");
  EXPECT_EQ(contentOf(topFolder() + "/tran.sim"), "sim");
}

TEST_F(SchematicRename, StopsAtTheProfileThatFailsAndKeepsWhatWasMoved) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  for (const char* name : {"a", "b", "c"}) {
    file(std::string("amp-TOP-") + name + ".dat", name);
    addProfile(name);
  }
  file("amp-TOP-b.sim", "NetlistFile=1\n");
  file("amp-NEW-b.sim/in the way");
  record("TOP", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(top_->rename(text("NEW")), 10108U);
  EXPECT_EQ(nameOf(*top_), "NEW");
  EXPECT_TRUE(isFile(place("amp-NEW-a.dat")));
  EXPECT_FALSE(isFile(place("amp-NEW-c.dat")));
  expectLastError(10108, "Failed to copy file \"" + place("amp-TOP-b.sim") + "\" to file \"" +
                             place("amp-NEW-b.sim") +
                             "\". Check disk space and access permissions.");
}

TEST_F(SchematicRename, TakesANameThatIsItsOwnOutput) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  std::string name = "NEW";
  record("TOP", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(top_->rename(name), 0U);
  EXPECT_EQ(name, "NEW");
}

} // namespace
} // namespace tervix::testing
