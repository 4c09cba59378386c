#include <gtest/gtest.h>

#include "tests/project/LayoutTest.h"

// Building the tree of a project from its files.

namespace tervix::testing {
namespace {

class Initialisation : public LayoutTest {
protected:
  std::string folderOfProject() const {
    if (isDesignFrontEnd())
      return folder.path("P");
    return folder.path(isSimulationProject() ? "amp/tvx_sim_1" : "amp/cfg_analog");
  }
};
TERVIX_IN_EACH_LAYOUT(Initialisation);

TEST_P(Initialisation, BuildsTheTree) {
  OpenedProject project(write(), frontEnd());
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), plannedTree());
  EXPECT_EQ(projectTypeIn(*project), type());
}

TEST_P(Initialisation, RecordsTheDesign) {
  OpenedProject project(write(), frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  EXPECT_EQ(textOf(*project, &CTervixProject::getDesignName), "amp");
  EXPECT_EQ(textOf(*project, &CTervixProject::getDesignPath),
            folderOfProject() + (isDesignFrontEnd() ? "/amp.dsn" : "/amp"));
  EXPECT_EQ(textOf(*project, &CTervixProject::getDesignFolderPath), folderOfProject());
}

TEST_P(Initialisation, MarksTheRootAndTheActiveProfile) {
  OpenedProject project(write(), frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  // A project file of the other front end names neither.
  const unsigned long expected = isDesignFrontEnd() ? 0 : 1;
  std::string name;
  EXPECT_EQ(project->getRootSchematic(name), expected);
  EXPECT_EQ(name, isDesignFrontEnd() ? "TOP" : "");
  EXPECT_EQ(project->getActiveProfile(name), expected);
  EXPECT_EQ(name, isDesignFrontEnd() ? "TOP-tran" : "");
  CTervixNode* node = nullptr;
  EXPECT_EQ(project->getRootSchematic(node), expected);
  EXPECT_EQ(nameOfNode(node), isDesignFrontEnd() ? "TOP" : "(null)");
  EXPECT_EQ(project->getActiveProfile(node), expected);
  EXPECT_EQ(nameOfNode(node), isDesignFrontEnd() ? "tran" : "(null)");
}

TEST_P(Initialisation, ReadsTheDesignLevelFiles) {
  OpenedProject project(write(), frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  EXPECT_EQ(designLevelFiles(*project, VARIANTFILE_TYPE_LIBRARY), Lines{"models.lib"});
  EXPECT_EQ(designLevelFiles(*project, VARIANTFILE_TYPE_STIMULUS), Lines{"pulse.stl"});
  EXPECT_EQ(designLevelFiles(*project, VARIANTFILE_TYPE_INCLUDE), Lines{"supply.inc"});
  EXPECT_EQ(textOf(*project, &CTervixProject::getTervixOutputFile),
            isDesignFrontEnd() ? "all.out" : "");
}

TEST_P(Initialisation, GivesEveryNodeItsPlace) {
  const ProjectPlan plan;
  OpenedProject project(write(), frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  const std::string name = isDesignFrontEnd() ? "TOP" : "amp";
  CTervixSchematic* const schematic = schematicIn(*project, name);
  CTervixProfile* const profile = profileIn(*project, name, "tran");
  ASSERT_NE(profile, nullptr);
  CTervixNode* parent = nullptr;
  schematic->getParent(parent);
  EXPECT_EQ(parent, &*project);
  profile->getParent(parent);
  EXPECT_EQ(parent, schematic);
  EXPECT_EQ(textOf(*profile, &CTervixNode::getPath), simPath(plan));
  EXPECT_EQ(textOf(*schematic, &CTervixNode::getFolderPath),
            GetParam() == Layout::kDesignSimulation ? folder.path("P/amp-TervixFiles/TOP")
                                                    : folderOfProject());
  EXPECT_EQ(textOf(*profile, &CTervixProfile::getMarkerKey), "amp-" + name + "-tran.mrk");
}

TEST_P(Initialisation, ReadsTheIncludeListsOfASimulationProject) {
  OpenedProject project(write(), frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  CTervixProfile* const profile = profileIn(*project, isDesignFrontEnd() ? "TOP" : "amp", "tran");
  ASSERT_NE(profile, nullptr);
  int count = -1;
  profile->numberOfProfileLevelFiles(count, VARIANTFILE_TYPE_INCLUDE);
  EXPECT_EQ(count, isSimulationProject() ? 1 : 0);
}

TEST_P(Initialisation, BuildsTheSameTreeFromAProfile) {
  const ProjectPlan plan;
  const std::string projectFile = write();
  OpenedProject project(simPath(plan), 0);
  EXPECT_EQ(textOf(*project, &CTervixProject::getInitializationPath), projectFile);
  EXPECT_EQ(frontEndIn(*project), frontEnd());
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), plannedTree());
}

TEST_P(Initialisation, BuildsTheSameTreeFromAnAnalysis) {
  const std::string projectFile = write();
  const std::string name = GetParam() == Layout::kDesignSimulation ? "/amp-TervixFiles/TOP/TOP"
                           : isDesignFrontEnd()                    ? "/amp-TOP"
                                                                   : "/amp";
  for (const char* ending : {".aap", ".$ap"}) {
    OpenedProject project(folderOfProject() + name + ending, 0);
    EXPECT_EQ(textOf(*project, &CTervixProject::getInitializationPath), projectFile);
    EXPECT_EQ(frontEndIn(*project), frontEnd());
    EXPECT_EQ(projectTypeIn(*project), type());
    EXPECT_EQ(project->initialize(), 0u);
    EXPECT_EQ(treeOf(*project), plannedTree());
  }
}

TEST_P(Initialisation, AgainAddsNothingThatIsThere) {
  OpenedProject project(write(), frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), plannedTree());
  EXPECT_EQ(designLevelFiles(*project, VARIANTFILE_TYPE_LIBRARY), Lines{"models.lib"});
}

TEST_P(Initialisation, AgainKeepsWhatAClientAdded) {
  OpenedProject project(write(), frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  addSchematic(*project, "EXTRA");
  ASSERT_EQ(project->initialize(), 0u);
  EXPECT_NE(schematicIn(*project, "extra"), nullptr);
}

TEST_P(Initialisation, LeavesTheClientsCursorWhereItIs) {
  OpenedProject project(write(), frontEnd());
  addSchematic(*project, "FIRST");
  addSchematic(*project, "SECOND");
  CTervixNode* node = nullptr;
  project->getTopSchematic(node);
  ASSERT_EQ(project->initialize(), 0u);
  project->getNextSchematic(node);
  EXPECT_EQ(nameOfNode(node), "SECOND");
}

TEST_P(Initialisation, TellsHowLongItTook) {
  OpenedProject project(write(), frontEnd());
  project->setInitializationTime(12345);
  ASSERT_EQ(project->initialize(), 0u);
  long seconds = -1;
  project->getInitializationTime(seconds);
  EXPECT_GE(seconds, 0);
  EXPECT_LT(seconds, 600);
}

TEST_P(Initialisation, ReportsAMissingProjectFile) {
  const std::string path = folderOfProject() + "/amp.tvp";
  folder.folder(isSimulationProject() ? "amp/tvx_sim_1/profiles" : "amp/cfg_analog");
  OpenedProject project(path, frontEnd());
  EXPECT_EQ(project->initialize(), 10109u);
  EXPECT_EQ(lastError(), "10109 Failed to read file \"" + path + "\". Check the file syntax.");
}

TEST_P(Initialisation, OfADesignWithoutProfilesIsFine) {
  ProjectPlan plan;
  plan.profiles.clear();
  plan.active.clear();
  OpenedProject project(write(plan), frontEnd());
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), isDesignFrontEnd() ? Lines{"TOP root"} : Lines{"amp"});
}

// ---- Projects of the front end that names designs and profiles in its project file ----

class DesignProject : public ::testing::Test {
protected:
  std::string write(const ProjectPlan& plan, Layout layout = Layout::kDesignSimulation) {
    return writeProject(folder, layout, plan);
  }

  TemporaryFolder folder;
};

TEST_F(DesignProject, HasSchematicsAndProfilesInTheOrderOfItsFiles) {
  const ProjectPlan plan = {"amp",
                            {"TOP", "BIAS", "OUT"},
                            "bias",
                            {{"OUT", "z"}, {"BIAS", "ac"}, {"OUT", "a"}, {"BIAS", "dc"}},
                            "bias-DC"};
  for (Layout layout : {Layout::kDesignSimulation, Layout::kDesignOther}) {
    const TemporaryFolder place;
    OpenedProject project(writeProject(place, layout, plan), 2);
    EXPECT_EQ(project->initialize(), 0u);
    EXPECT_EQ(treeOf(*project), (Lines{"TOP", "BIAS root", "  ac BIAS-ac", "  dc BIAS-dc active",
                                       "OUT", "  z OUT-z", "  a OUT-a"}));
    // The names are kept as the files spell them.
    EXPECT_EQ(textOf(*project, &CTervixProject::getRootSchematic), "bias");
    EXPECT_EQ(textOf(*project, &CTervixProject::getActiveProfile), "bias-DC");
  }
}

TEST_F(DesignProject, GainsASchematicThatOnlyAProfileNames) {
  ProjectPlan plan;
  plan.profiles.push_back({"NEW", "dc"});
  for (Layout layout : {Layout::kDesignSimulation, Layout::kDesignOther}) {
    const TemporaryFolder place;
    OpenedProject project(writeProject(place, layout, plan), 2);
    EXPECT_EQ(project->initialize(), 0u);
    EXPECT_EQ(treeOf(*project),
              (Lines{"TOP root", "  tran TOP-tran active", "NEW", "  dc NEW-dc"}));
  }
}

TEST_F(DesignProject, WithoutADesignStillHasItsResources) {
  const std::string path = folder.file(
      "P/amp.tvp", "[\"Design Resources\"]\nFiles = ['a.txt']\nTERVIX_Output_File = 'all.out'\n"
                   "[\"Tervix Resources\"]\n\"Model Libraries\" = ['a.lib']\n");
  OpenedProject project(path, 2);
  recordOtherError();
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(lastError(), "10124 Project file \"" + path + "\" does not contain any valid design.");
  EXPECT_EQ(treeOf(*project), Lines());
  EXPECT_EQ(textOf(*project, &CTervixProject::getDesignName), "");
  EXPECT_EQ(textOf(*project, &CTervixProject::getTervixOutputFile), "all.out");
  EXPECT_EQ(designLevelFiles(*project, VARIANTFILE_TYPE_LIBRARY), Lines{"a.lib"});
}

TEST_F(DesignProject, WithoutADesignReportsUnreadableResources) {
  for (const char* text : {"[\"Tervix Resources\"]\n\"Include Files\" = 3\n",
                           "[\"Design Resources\"]\nTERVIX_Output_File = 3\n"}) {
    const std::string path = folder.file("P/amp.tvp", text);
    OpenedProject project(path, 2);
    EXPECT_EQ(project->initialize(), 10109u) << text;
    EXPECT_EQ(lastError(), "10109 Failed to read file \"" + path + "\". Check the file syntax.");
  }
}

TEST_F(DesignProject, WithAMissingDesignHasNoSchematics) {
  const std::string path = write(ProjectPlan());
  ASSERT_EQ(rmFile(arg(folder.path("P/amp.dsn"))), 0u);
  OpenedProject project(path, 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(lastError(), "10124 Project file \"" + path + "\" does not contain any valid design.");
  EXPECT_EQ(treeOf(*project), Lines());
}

TEST_F(DesignProject, WithAnUnreadableDesignStops) {
  const std::string path = write(ProjectPlan());
  const std::string design = folder.file("P/amp.dsn", "[Design");
  OpenedProject project(path, 2);
  EXPECT_EQ(project->initialize(), 10110u);
  EXPECT_EQ(lastError(), "10110 Failed to read the design file \"" + design + "\".");
  EXPECT_EQ(treeOf(*project), Lines());
  // What was learnt before stays, what comes after is not read.
  EXPECT_EQ(textOf(*project, &CTervixProject::getDesignName), "amp");
  EXPECT_EQ(textOf(*project, &CTervixProject::getTervixOutputFile), "");
  EXPECT_EQ(designLevelFiles(*project, VARIANTFILE_TYPE_LIBRARY), Lines());
}

TEST_F(DesignProject, WithUnreadableProfilesKeepsItsSchematics) {
  folder.file("P/amp.dsn", "[Design]\nSchematics = ['TOP']\nRoot = 'TOP'\n");
  const std::string path = folder.file("P/amp.tvp", "[\"Design Resources\"]\nFiles = ['amp.dsn']\n"
                                                    "[\"Simulation Profiles\"]\nActive = []\n");
  OpenedProject project(path, 2);
  EXPECT_EQ(project->initialize(), 10109u);
  EXPECT_EQ(treeOf(*project), Lines{"TOP root"});
}

TEST_F(DesignProject, SkipsAProfileThatIsNotValid) {
  ProjectPlan plan;
  plan.profiles = {{"TOP", "bad"}, {"TOP", "tran"}};
  for (Layout layout : {Layout::kDesignSimulation, Layout::kDesignOther}) {
    const TemporaryFolder place;
    const std::string path = writeProject(place, layout, plan);
    place.file(simPathIn(layout, plan, plan.profiles[0]), "ProfileName = \"bad\"\n");
    OpenedProject project(path, 2);
    EXPECT_EQ(project->initialize(), 0u);
    EXPECT_EQ(treeOf(*project), (Lines{"TOP root", "  tran TOP-tran active"}));
  }
}

TEST_F(DesignProject, MarksBothProfilesThatBearTheActiveName) {
  const ProjectPlan plan = {"amp", {"A", "A-B"}, "A", {{"A", "B-C"}, {"A-B", "C"}}, "a-b-c"};
  OpenedProject project(write(plan), 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"A root", "  B-C A-B-C active", "A-B", "  C A-B-C active"}));
}

TEST_F(DesignProject, MarksAnActiveProfileOutsideTheRoot) {
  const ProjectPlan plan = {
      "amp", {"TOP", "SUB"}, "TOP", {{"TOP", "tran"}, {"SUB", "ac"}}, "SUB-ac"};
  OpenedProject project(write(plan), 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP root", "  tran TOP-tran", "SUB", "  ac SUB-ac active"}));
  // But as the project's own active profile it is not known.
  EXPECT_EQ(textOf(*project, &CTervixProject::getActiveProfile), "");
}

TEST_F(DesignProject, WithoutARootHasNone) {
  const ProjectPlan plan = {"amp", {"TOP"}, "", {{"TOP", "tran"}}, "TOP-tran"};
  OpenedProject project(write(plan), 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP", "  tran TOP-tran active"}));
  CTervixNode* root = nullptr;
  EXPECT_EQ(project->getRootSchematic(root), 1u);
}

TEST_F(DesignProject, WithARootThatIsNotListedHasNone) {
  const ProjectPlan plan = {"amp", {"TOP"}, "GONE", {}, ""};
  OpenedProject project(write(plan), 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), Lines{"TOP"});
}

TEST_F(DesignProject, IsNotBuiltFromALoneRunFile) {
  const std::string sim = folder.file("P/amp-TervixFiles/TOP/tran.sim",
                                      simText("tran", "tran.sim", "", "", "", "", ""));
  for (const std::string& path : {sim, folder.path("P/amp-TervixFiles/TOP/TOP.aap"),
                                  folder.path("none/x.sim"), folder.path("none/x.aap")}) {
    OpenedProject project(path, 0);
    project->setInitializationTime(12345);
    recordOtherError();
    EXPECT_EQ(project->initialize(), 0u) << path;
    EXPECT_EQ(lastError(), kOtherError);
    EXPECT_EQ(treeOf(*project), Lines());
    long seconds = -1;
    project->getInitializationTime(seconds);
    EXPECT_LT(seconds, 600);
  }
}

TEST_F(DesignProject, CanBeMovedToAnotherInitializationPath) {
  OpenedProject project(write(ProjectPlan()), 2);
  project->setInitializationPath(arg("elsewhere"));
  recordOtherError();
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), Lines());
  EXPECT_EQ(lastError(), kOtherError);
}

// ---- Projects of the other front end ----

TEST(FolderProject, NeedsOneOfItsTwoFolders) {
  const TemporaryFolder folder;
  const std::string path = folder.file("amp/other/amp.tvp");
  OpenedProject project(path, 1);
  recordOtherError();
  EXPECT_EQ(project->initialize(), 1u);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(FolderProject, OfAnUnknownFrontEndIsNotRead) {
  const TemporaryFolder folder;
  OpenedProject project(writeProject(folder, Layout::kDesignSimulation), 3);
  recordOtherError();
  EXPECT_EQ(project->initialize(), 1u);
  EXPECT_EQ(lastError(), kOtherError);
  EXPECT_EQ(treeOf(*project), Lines());
}

TEST(FolderProject, NeedsItsProfilesFolder) {
  const TemporaryFolder folder;
  const std::string path = folder.file("amp/tvx_sim_1/amp.tvp");
  OpenedProject project(path, 1);
  EXPECT_EQ(project->initialize(), 10122u);
  EXPECT_EQ(lastError(), "10122 Profiles directory does not exist.");
  EXPECT_EQ(treeOf(*project), Lines{"amp"});
}

TEST(FolderProject, NeedsItsProfilesFolderToBeOne) {
  const TemporaryFolder folder;
  const std::string path = folder.file("amp/tvx_sim_1/amp.tvp");
  const std::string profiles = folder.file("amp/tvx_sim_1/profiles");
  OpenedProject project(path, 1);
  EXPECT_EQ(project->initialize(), 10103u);
  EXPECT_EQ(lastError(), "10103 Failed to open directory \"" + profiles +
                             "\". Check its existence on the disk.");
}

TEST(FolderProject, MarksNoProfileActive) {
  const TemporaryFolder folder;
  ProjectPlan plan;
  plan.profiles = {{"amp", "ac"}};
  for (Layout layout : {Layout::kProjectSimulation, Layout::kProjectOther}) {
    OpenedProject project(writeProject(folder, layout, plan), 1);
    EXPECT_EQ(project->initialize(), 0u);
    EXPECT_EQ(treeOf(*project), (Lines{"amp", "  ac"}));
  }
}

TEST(FolderProject, TakesOnlyWholeProfilesIntoAnAnalogProject) {
  const TemporaryFolder folder;
  const std::string path = writeProject(folder, Layout::kProjectOther);
  folder.file("amp/cfg_analog/bare.sim", "ProfileName = \"bare\"\nRootSchematics = \"amp\"\n");
  folder.file("amp/cfg_analog/named.sim",
              simText("other", "named.sim", "amp", "amp.tvp", "amp", "", ""));
  OpenedProject project(path, 1);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"amp", "  tran"}));
}

// ---- Recording a design ----

class DesignConfiguration : public ::testing::Test {
protected:
  unsigned long configure(CTervixProject& project, PROJECT_TYPE type,
                          FRONTEND_ID frontEnd = FRONTEND_ID_DESIGN_FILE) {
    std::string path = design;
    std::string place = folder.path("P");
    return project.initializeDesignConfiguration(folders, path, place, arg("amp"), frontEnd, type);
  }

  TemporaryFolder folder;
  std::string design =
      folder.file("P/amp.dsn", "[Design]\nSchematics = ['A', 'B', 'C']\nRoot = 'b'\n");
  Lines folders;
};

TEST_F(DesignConfiguration, OfASimulationProjectCollectsEveryFolder) {
  OpenedProject project(folder.path("P/amp.tvp"), 2, true);
  EXPECT_EQ(configure(*project, PROJECT_TYPE_SIMULATION), 0u);
  const std::string files = folder.path("P/amp-TervixFiles/");
  EXPECT_EQ(folders, (Lines{files + "A", files + "B", files + "C"}));
  EXPECT_EQ(treeOf(*project), (Lines{"A", "B root", "C"}));
  EXPECT_EQ(textOf(*project, &CTervixProject::getRootSchematic), "b");
  EXPECT_EQ(textOf(*project, &CTervixProject::getDesignPath), design);
  EXPECT_EQ(textOf(*project, &CTervixProject::getDesignFolderPath), folder.path("P"));
  EXPECT_EQ(textOf(*project, &CTervixProject::getDesignName), "amp");
}

TEST_F(DesignConfiguration, OfAnotherProjectCollectsTheFirstFolderOnly) {
  OpenedProject project(folder.path("P/amp.tvp"), 2);
  EXPECT_EQ(configure(*project, PROJECT_TYPE_OTHER), 0u);
  EXPECT_EQ(folders, Lines{folder.path("P")});
  EXPECT_EQ(treeOf(*project), (Lines{"A", "B root", "C"}));
}

TEST_F(DesignConfiguration, AppendsToTheFolders) {
  OpenedProject project(folder.path("P/amp.tvp"), 2);
  folders = {"before"};
  EXPECT_EQ(configure(*project, PROJECT_TYPE_OTHER), 0u);
  EXPECT_EQ(folders, (Lines{"before", folder.path("P")}));
}

TEST_F(DesignConfiguration, OfAnUnreadableDesignRecordsItAllTheSame) {
  writeFile(design, "[Design");
  OpenedProject project(folder.path("P/amp.tvp"), 2);
  EXPECT_EQ(configure(*project, PROJECT_TYPE_OTHER), 10110u);
  EXPECT_EQ(lastError(), "10110 Failed to read the design file \"" + design + "\".");
  EXPECT_EQ(textOf(*project, &CTervixProject::getDesignName), "amp");
  EXPECT_EQ(folders, Lines());
}

TEST_F(DesignConfiguration, ThroughTheProjectFileHasOneSchematic) {
  OpenedProject project(folder.path("flt/cfg_analog/flt.tvp"), 1);
  EXPECT_EQ(configure(*project, PROJECT_TYPE_OTHER, FRONTEND_ID_PROJECT_FILE), 0u);
  EXPECT_EQ(treeOf(*project), Lines{"amp"});
  EXPECT_EQ(folders, Lines{folder.path("flt/cfg_analog")});
  std::string root;
  EXPECT_EQ(project->getRootSchematic(root), 1u);
}

} // namespace
} // namespace tervix::testing
