#include <filesystem>

#include <gtest/gtest.h>

#include "tests/project/LayoutTest.h"

// Finding and adding the profile that a ".sim" file belongs to.

namespace tervix::testing {
namespace {

// A look-up by file, with what it hands out.
struct LookUp {
  explicit LookUp(std::string file) : path(std::move(file)) {}
  unsigned long in(CTervixProject& project) {
    profile = &project;
    return project.findProfile(profile, schematic, name, path);
  }

  std::string path;
  std::string schematic = "old schematic";
  std::string name = "old name";
  CTervixNode* profile = nullptr;
};

class ProfileOfFile : public LayoutTest {
protected:
  std::string schematic() const { return isDesignFrontEnd() ? "TOP" : "amp"; }
  // A file of a profile with names that the file itself does not tell by its place.
  std::string text(const std::string& root, const std::string& name,
                   const std::string& file) const {
    return isSimulationProject() ? simText(name, file, "", "", root, "", "")
                                 : simText(name, file, "amp.dsn", "amp.tvp", root, "", "");
  }

  const ProjectPlan plan;
  const std::string projectFile = write();
  const std::string sim = simPath(plan);
};
TERVIX_IN_EACH_LAYOUT(ProfileOfFile);

TEST_P(ProfileOfFile, IsFound) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  LookUp lookUp(sim);
  EXPECT_EQ(lookUp.in(*project), 0u);
  EXPECT_EQ(lookUp.profile, profileIn(*project, schematic(), "tran"));
  EXPECT_EQ(lookUp.schematic, schematic());
  EXPECT_EQ(lookUp.name, "tran");
  EXPECT_EQ(lookUp.path, sim);
}

TEST_P(ProfileOfFile, IsFoundByTheNamesInAFileElsewhere) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  LookUp lookUp(folder.file("elsewhere/copy.sim", text(schematic(), "TRAN", "copy.sim")));
  const std::string path = lookUp.path;
  EXPECT_EQ(lookUp.in(*project), 0u);
  EXPECT_EQ(lookUp.profile, profileIn(*project, schematic(), "tran"));
  EXPECT_EQ(lookUp.path, path);
}

TEST_P(ProfileOfFile, IsFoundByItsPathWhenTheNamesDoNotTell) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  CTervixProfile* const tran = profileIn(*project, schematic(), "tran");
  for (const std::string& content : {text("OTHER", "stranger", "x.sim"), std::string("junk"),
                                     std::string("ProfileName = \"half\"\n")}) {
    writeFile(sim, content);
    LookUp lookUp(sim);
    EXPECT_EQ(lookUp.in(*project), 0u) << content;
    EXPECT_EQ(lookUp.profile, tran);
    EXPECT_EQ(lookUp.schematic, schematic());
    EXPECT_EQ(lookUp.name, "tran");
  }
}

TEST_P(ProfileOfFile, IsFoundByItsPathWhenTheFileIsGone) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  std::filesystem::remove(sim);
  LookUp lookUp(sim + ".bak");
  EXPECT_EQ(lookUp.in(*project), 0u);
  EXPECT_EQ(lookUp.profile, profileIn(*project, schematic(), "tran"));
  EXPECT_EQ(lookUp.path, sim);
}

TEST_P(ProfileOfFile, IsFoundByItsPathInAnyCaseAndSpelling) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  std::string spelt = sim;
  for (char& c : spelt)
    c = c == '/' ? '\\' : c;
  spelt.replace(spelt.size() - 4, 4, ".SIM");
  LookUp lookUp(spelt);
  EXPECT_EQ(lookUp.in(*project), 0u);
  EXPECT_EQ(lookUp.profile, profileIn(*project, schematic(), "tran"));
}

TEST_P(ProfileOfFile, IsFoundBesideAFileOfItsName) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  const std::string place = sim.substr(0, sim.rfind('/'));
  // The schematic of the file is none of the project's; the path that its names give is one.
  const std::string stem = std::filesystem::path(sim).stem().string();
  LookUp lookUp(place + "/other.sim");
  writeFile(lookUp.path, text("X", stem, "other.sim"));
  EXPECT_EQ(lookUp.in(*project), 0u);
  EXPECT_EQ(lookUp.profile, profileIn(*project, schematic(), "tran"));
  EXPECT_EQ(lookUp.path, sim);
  EXPECT_EQ(lookUp.schematic, schematic());
  EXPECT_EQ(lookUp.name, "tran");
}

TEST_P(ProfileOfFile, MissesAMissingFile) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  LookUp lookUp(folder.path("none/gone.sim"));
  const std::string path = lookUp.path;
  EXPECT_EQ(lookUp.in(*project), 10104u);
  EXPECT_EQ(lastError(), "10104 File \"" + path + "\" does not exist.");
  EXPECT_EQ(lookUp.profile, nullptr);
  EXPECT_EQ(lookUp.path, path);
  EXPECT_EQ(lookUp.schematic + lookUp.name, "old schematicold name");
}

TEST_P(ProfileOfFile, MissesAnInvalidFile) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  LookUp lookUp(folder.file("none/junk.sim", "junk"));
  const std::string path = lookUp.path;
  EXPECT_EQ(lookUp.in(*project), 10121u);
  EXPECT_EQ(lastError(), "10121 Invalid simulation profile \"" + path + "\".");
  EXPECT_EQ(lookUp.profile, nullptr);
  EXPECT_EQ(lookUp.path, path);
}

TEST_P(ProfileOfFile, MissesAnUnknownProfileButTellsItsNames) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  LookUp lookUp(folder.file("none/new.sim", text("NEW", "fresh", "new.sim")));
  const std::string path = lookUp.path;
  EXPECT_EQ(lookUp.in(*project), 1u);
  EXPECT_EQ(lookUp.profile, nullptr);
  EXPECT_EQ(lookUp.schematic, "NEW");
  EXPECT_EQ(lookUp.name, "fresh");
  EXPECT_EQ(lookUp.path, path);
}

TEST_P(ProfileOfFile, NeedsAFrontEnd) {
  CTervixProject project;
  LookUp lookUp(sim);
  EXPECT_EQ(lookUp.in(project), 1u);
  EXPECT_EQ(lookUp.profile, nullptr);
}

TEST_P(ProfileOfFile, SurvivesPathsThatAreNone) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  for (const std::string& path :
       {std::string(), std::string(".sim"), std::string("/"), std::string(".bak"),
        std::string("\0.sim", 5), std::string(100000, 'x') + ".sim"}) {
    LookUp lookUp(path);
    EXPECT_EQ(lookUp.in(*project), 10104u);
    EXPECT_EQ(lookUp.profile, nullptr);
    EXPECT_EQ(lookUp.path, path);
  }
}

TEST_P(ProfileOfFile, MayReceiveItsNamesInPlaceOfThePath) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  writeFile(sim, text("OTHER", "stranger", "x.sim"));
  std::string path = sim;
  std::string name;
  CTervixNode* profile = nullptr;
  EXPECT_EQ(project->findProfile(profile, path, name, path), 0u);
  EXPECT_EQ(profile, profileIn(*project, schematic(), "tran"));
  EXPECT_EQ(path, schematic());
}

TEST_P(ProfileOfFile, LeavesTheClientsCursorsWhereTheyAre) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  addProfile(*project, schematic(), "second");
  CTervixSchematic* const top = schematicIn(*project, schematic());
  CTervixNode* node = nullptr;
  top->getTopProfile(node);
  LookUp(sim).in(*project);
  LookUp(folder.path("gone.sim")).in(*project);
  top->getNextProfile(node);
  EXPECT_EQ(nameOfNode(node), "second");
}

// ---- While a profile rename is recorded ----

TEST_P(ProfileOfFile, IsFoundUnderItsNewNameWithoutReadingTheFile) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  project->setChangedName(arg("tran"), arg("Fresh"), RENAME_TYPE_PROFILE);
  CTervixProfile* const tran = profileIn(*project, schematic(), "tran");
  recordOtherError();
  for (const char* file : {"none/fresh.sim", "none/amp-TOP-FRESH.sim"}) {
    LookUp lookUp(folder.path(file));
    const std::string path = lookUp.path;
    EXPECT_EQ(lookUp.in(*project), 0u) << file;
    EXPECT_EQ(lookUp.profile, tran);
    EXPECT_EQ(lookUp.schematic, schematic());
    EXPECT_EQ(lookUp.name, "tran");
    EXPECT_EQ(lookUp.path, path);
  }
  EXPECT_EQ(lastError(), kOtherError);
  LookUp other(folder.path("none/afresh.sim"));
  EXPECT_EQ(other.in(*project), 10104u);
}

TEST_P(ProfileOfFile, IsFoundByItsFileWhenTheRecordIsNotWhole) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  const std::string fresh = folder.path("none/fresh.sim");
  for (RENAME_TYPE kind :
       {RENAME_TYPE_NONE, RENAME_TYPE_SCHEMATIC, RENAME_TYPE_DESIGN, RENAME_TYPE_PROJECT}) {
    project->setChangedName(arg("tran"), arg("fresh"), kind);
    EXPECT_EQ(LookUp(fresh).in(*project), 10104u);
    EXPECT_EQ(LookUp(sim).in(*project), 0u);
  }
  project->setChangedName(arg(""), arg("fresh"), RENAME_TYPE_PROFILE);
  EXPECT_EQ(LookUp(fresh).in(*project), 10104u);
  project->setChangedName(arg("gone"), arg("tran"), RENAME_TYPE_PROFILE);
  EXPECT_EQ(LookUp(sim).in(*project), 0u);
}

// ---- Adding ----

TEST_P(ProfileOfFile, IsAddedOnce) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  CTervixNode* node = nullptr;
  bool added = false;
  std::string path = sim;
  EXPECT_EQ(project->addProfile(node, added, path), 0u);
  EXPECT_TRUE(added);
  EXPECT_EQ(node, profileIn(*project, schematic(), "tran"));
  EXPECT_EQ(treeOf(*project), plannedTree());
}

TEST_P(ProfileOfFile, IsAddedWithItsSchematic) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  CTervixNode* node = nullptr;
  bool added = false;
  std::string path = folder.file("elsewhere/fresh.sim", text("NEW", "fresh", "fresh.sim"));
  EXPECT_EQ(project->addProfile(node, added, path), 0u);
  EXPECT_TRUE(added);
  EXPECT_EQ(nameOfNode(node), "fresh");
  EXPECT_EQ(node, profileIn(*project, "NEW", "fresh"));
}

TEST_P(ProfileOfFile, IsNotAddedForAnInvalidOrMissingFile) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  CTervixNode* node = &*project;
  bool added = true;
  std::string path = folder.file("none/fresh.sim", "ProfileName = \"fresh\"\n");
  EXPECT_EQ(project->addProfile(node, added, path), 10121u);
  EXPECT_EQ(lastError(), "10121 Invalid simulation profile \"" + path + "\".");
  EXPECT_FALSE(added);
  EXPECT_EQ(node, nullptr);
  path = folder.path("none/gone.sim");
  added = true;
  EXPECT_EQ(project->addProfile(node, added, path), 10104u);
  EXPECT_FALSE(added);
  EXPECT_EQ(node, nullptr);
  EXPECT_EQ(treeOf(*project), plannedTree());
}

TEST_P(ProfileOfFile, IsCheckedInAnAnalogProjectOnly) {
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  const bool checked = GetParam() == Layout::kProjectOther;
  int number = 0;
  for (const std::string& content :
       {simText("p1", "p1.sim", "", "amp.tvp", "amp", "", ""),
        simText("p2", "p2.sim", "amp", "", "amp", "", ""),
        simText("p3", "stranger.sim", "amp", "amp.tvp", "amp", "", ""),
        std::string("ProfileName = \"p4\"\nRootSchematics = \"amp\"\n")}) {
    std::string path = folder.file("elsewhere/p" + std::to_string(++number) + ".sim", content);
    CTervixNode* node = nullptr;
    bool added = !checked;
    EXPECT_EQ(project->addProfile(node, added, path), checked ? 10121u : 0u) << content;
    EXPECT_EQ(added, !checked);
    EXPECT_EQ(node == nullptr, checked);
    if (checked) {
      EXPECT_EQ(lastError(), "10121 Invalid simulation profile \"" + path + "\".");
    }
  }
}

// ---- Where a simulation project's file leaves its names empty ----

TEST(ProfileOfPlace, IsNamedAfterItsFileAndFolder) {
  const TemporaryFolder folder;
  OpenedProject project(writeProject(folder, Layout::kDesignSimulation), 2);
  ASSERT_EQ(project->initialize(), 0u);
  const std::string text = simText("", "", "", "", "", "", "");
  LookUp fresh(folder.file("P/amp-TervixFiles/NEW/run.v2.sim", text));
  EXPECT_EQ(fresh.in(*project), 1u);
  EXPECT_EQ(fresh.schematic, "NEW");
  EXPECT_EQ(fresh.name, "run.v2");
  LookUp known(folder.file("P/amp-TervixFiles/TOP/tran.sim", text));
  EXPECT_EQ(known.in(*project), 0u);
  EXPECT_EQ(known.name, "tran");
}

TEST(ProfileOfPlace, HasNoSchematicElsewhere) {
  const TemporaryFolder folder;
  OpenedProject project(writeProject(folder, Layout::kDesignSimulation), 2);
  ASSERT_EQ(project->initialize(), 0u);
  CTervixNode* node = nullptr;
  bool added = true;
  std::string path = folder.file("P/elsewhere/run.sim", simText("run", "", "", "", "", "", ""));
  EXPECT_EQ(project->addProfile(node, added, path), 1u);
  EXPECT_FALSE(added);
  EXPECT_EQ(node, nullptr);
}

TEST(ProfileOfPlace, BelongsToTheDesignOfAProjectFile) {
  const TemporaryFolder folder;
  OpenedProject project(writeProject(folder, Layout::kProjectSimulation), 1);
  ASSERT_EQ(project->initialize(), 0u);
  LookUp lookUp(folder.file("elsewhere/run.sim", simText("", "", "", "", "", "", "")));
  EXPECT_EQ(lookUp.in(*project), 1u);
  EXPECT_EQ(lookUp.schematic, "amp");
  EXPECT_EQ(lookUp.name, "run");
}

TEST(ProfileOfPlace, MayHaveOnlyTheTwoKeysOfAProfile) {
  const TemporaryFolder folder;
  OpenedProject project(writeProject(folder, Layout::kDesignSimulation), 2);
  ASSERT_EQ(project->initialize(), 0u);
  LookUp lookUp(
      folder.file("elsewhere/x.sim", "ProfileName = \"tran\"\nRootSchematics = \"TOP\"\n"));
  recordOtherError();
  EXPECT_EQ(lookUp.in(*project), 0u);
  EXPECT_EQ(lookUp.profile, profileIn(*project, "TOP", "tran"));
  EXPECT_EQ(lastError(), kOtherError); // the other keys are not missed
}

// ---- The paths that a file's names give beside it ----

class PathBesideFile : public ::testing::TestWithParam<const char*> {};

TEST_P(PathBesideFile, LeadsToTheProfile) {
  const TemporaryFolder folder;
  OpenedProject project(folder.path("P/amp.tvp"), 2);
  project->setDesignName(arg("amp"));
  project->setDesignFolderPath(arg(folder.path("P")));
  CTervixProfile* const other = addProfile(*project, "OTHER", "o");
  other->setPath(arg(folder.path(GetParam())));
  LookUp lookUp(folder.file("F/copy.sim", simText("run", "", "a", "b", "SCH", "", "")));
  EXPECT_EQ(lookUp.in(*project), 0u);
  EXPECT_EQ(lookUp.profile, other);
  EXPECT_EQ(lookUp.schematic, "OTHER");
  EXPECT_EQ(lookUp.name, "o");
  EXPECT_EQ(lookUp.path, folder.path(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(OfEachShape, PathBesideFile,
                         ::testing::Values("F/run.sim", "F/SCH-run.sim", "F/amp-SCH-run.sim",
                                           "F/SCH/run.sim"));

TEST(PathsBesideFile, AreTriedInTurn) {
  const TemporaryFolder folder;
  OpenedProject project(folder.path("P/amp.tvp"), 2);
  project->setDesignName(arg("amp"));
  project->setDesignFolderPath(arg(folder.path("P")));
  const char* const paths[] = {"F/SCH/run.sim", "F/amp-SCH-run.sim", "F/SCH-run.sim", "F/run.sim",
                               "F/copy.sim"};
  folder.file("F/copy.sim", simText("run", "", "a", "b", "SCH", "", ""));
  for (const char* path : paths) {
    addProfile(*project, "OTHER", path)->setPath(arg(folder.path(path)));
    LookUp lookUp(folder.path("F/copy.sim"));
    EXPECT_EQ(lookUp.in(*project), 0u);
    EXPECT_EQ(lookUp.name, path);
  }
}

TEST(RenamedProfiles, OfOneNameAreToldApartByTheirPaths) {
  const TemporaryFolder folder;
  const ProjectPlan plan = {"amp", {"A", "B"}, "A", {{"A", "run"}, {"B", "run"}}, ""};
  for (Layout layout : {Layout::kDesignSimulation, Layout::kDesignOther}) {
    OpenedProject project(writeProject(folder, layout, plan), 2);
    ASSERT_EQ(project->initialize(), 0u);
    project->setChangedName(arg("run"), arg("new"), RENAME_TYPE_PROFILE);
    for (const char* schematic : {"B", "A"}) {
      LookUp lookUp(folder.path(simPathIn(layout, plan, {schematic, "new"})));
      EXPECT_EQ(lookUp.in(*project), 0u);
      EXPECT_EQ(lookUp.schematic, schematic);
      EXPECT_EQ(lookUp.name, "run");
    }
    std::filesystem::remove_all(folder.path("P"));
  }
}

} // namespace
} // namespace tervix::testing
