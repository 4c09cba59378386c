#include <memory>

#include <gtest/gtest.h>

#include "tests/project/LayoutTest.h"

// A project as an object: its construction, fields, copies and end.

namespace tervix::testing {
namespace {

void expectEmpty(CTervixProject& project) {
  EXPECT_EQ(textOf(project, &CTervixProject::getInitializationPath), "");
  EXPECT_EQ(textOf(project, &CTervixProject::getDesignName), "");
  EXPECT_EQ(textOf(project, &CTervixProject::getDesignPath), "");
  EXPECT_EQ(textOf(project, &CTervixProject::getDesignFolderPath), "");
  EXPECT_EQ(textOf(project, &CTervixProject::getTervixOutputFile), "");
  EXPECT_EQ(textOf(project, &CTervixNode::getName), "");
  EXPECT_EQ(textOf(project, &CTervixNode::getPath), "");
  EXPECT_EQ(textOf(project, &CTervixNode::getFolderPath), "");
  EXPECT_EQ(frontEndIn(project), 0);
  EXPECT_EQ(projectTypeIn(project), PROJECT_TYPE_UNSET);
  EXPECT_EQ(treeOf(project), Lines());
  for (int type = 0; type < 3; ++type)
    EXPECT_EQ(designLevelFiles(project, static_cast<VARIANTFILE_TYPE>(type)), Lines());
  unsigned int references = 0;
  EXPECT_EQ(project.getRefCount(references), 0u);
  EXPECT_EQ(references, 1u);
  bool stale = false;
  EXPECT_EQ(project.isPrpIndexStale(stale), 0u);
  EXPECT_TRUE(stale);
  long seconds = 7;
  EXPECT_EQ(project.getInitializationTime(seconds), 0u);
  EXPECT_EQ(seconds, 0);
  NODE_TYPE type = NODE_TYPE_UNSET;
  EXPECT_EQ(project.getType(type), 0u);
  EXPECT_EQ(type, NODE_TYPE_PROJECT);
}

TEST(ProjectConstruction, WithoutPathIsEmpty) {
  CTervixProject project;
  expectEmpty(project);
}

TEST(ProjectConstruction, FromNullPathIsEmptyForEveryFrontEnd) {
  recordOtherError();
  for (int frontEnd = 0; frontEnd < 4; ++frontEnd) {
    CTervixProject project(nullptr, static_cast<FRONTEND_ID>(frontEnd), true, "amp");
    expectEmpty(project);
    EXPECT_EQ(project.initialize(), 1u);
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(ProjectConstruction, FromEmptyPathIsEmptyForEveryFrontEnd) {
  for (int frontEnd = 0; frontEnd < 4; ++frontEnd) {
    OpenedProject project("", frontEnd);
    expectEmpty(*project);
    EXPECT_EQ(project->initialize(), 1u);
  }
}

TEST(ProjectConstruction, KeepsThePathAsGivenAndWorksWithForwardSlashes) {
  OpenedProject project("C:\\Work\\DESIGN.TVP", 2);
  EXPECT_EQ(textOf(*project, &CTervixProject::getInitializationPath), "C:\\Work\\DESIGN.TVP");
  EXPECT_EQ(textOf(*project, &CTervixNode::getPath), "C:/Work/DESIGN.TVP");
  EXPECT_EQ(textOf(*project, &CTervixNode::getFolderPath), "C:/Work");
  EXPECT_EQ(textOf(*project, &CTervixNode::getName), "DESIGN");
  EXPECT_EQ(frontEndIn(*project), 2);
}

TEST(ProjectConstruction, TakesTheProjectEndingAnywhereInThePath) {
  OpenedProject project("/w/old.Tvp.d/amp.txt", 2);
  EXPECT_EQ(textOf(*project, &CTervixProject::getInitializationPath), "/w/old.Tvp.d/amp.txt");
  EXPECT_EQ(textOf(*project, &CTervixNode::getName), "amp");
}

TEST(ProjectConstruction, OfADesignFrontEndKnowsOnlyProjectFiles) {
  recordOtherError();
  for (const char* path : {"/w/tran.sim", "/w/amp.aap", "/w/amp.$ap", "/w/amp.dsn", "/w/tvp"})
    for (int frontEnd = 1; frontEnd < 4; ++frontEnd) {
      OpenedProject project(path, frontEnd);
      expectEmpty(*project);
      EXPECT_EQ(project->initialize(), 1u) << path;
    }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(ProjectConstruction, OfTheSimulatorKnowsNoProjectFile) {
  recordOtherError();
  OpenedProject project("/w/amp.tvp", 0);
  expectEmpty(*project);
  EXPECT_EQ(project->initialize(), 1u);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(ProjectConstruction, OfTheSimulatorKnowsLowerCaseEndingsOnly) {
  recordOtherError();
  for (const char* path : {"/w/tran.SIM", "/w/amp.AAP", "/w/amp.$AP", "/w/tran.Sim"}) {
    OpenedProject project(path, 0);
    expectEmpty(*project);
    EXPECT_EQ(project->initialize(), 1u) << path;
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(ProjectConstruction, TreatsAProfileBeforeAnAnalysis) {
  const TemporaryFolder folder;
  folder.file("P/flt.tvp");
  const std::string path = folder.file(
      "P/run.aap.sim", simText("run", "P-TOP-run.sim", "flt.dsn", "flt.tvp", "TOP", "", ""));
  OpenedProject project(path, 0);
  // Only the text of the profile names this project file.
  EXPECT_EQ(textOf(*project, &CTervixNode::getPath), folder.path("P/flt.tvp"));
  EXPECT_EQ(frontEndIn(*project), 2);
}

TEST(ProjectConstruction, TakesBackslashesInARunFilesPath) {
  const TemporaryFolder folder;
  writeProject(folder, Layout::kDesignSimulation);
  for (const char* path :
       {"\\P\\amp-TervixFiles\\TOP\\tran.sim", "\\P\\amp-TervixFiles\\TOP.aap"}) {
    OpenedProject project(folder.path() + path, 0);
    EXPECT_EQ(textOf(*project, &CTervixNode::getPath), folder.path("P/amp.tvp")) << path;
  }
}

TEST(ProjectConstruction, FromARunFileWithoutProjectFileHasNoInitializationPath) {
  const TemporaryFolder folder;
  const std::string sim = folder.file("P/amp-TervixFiles/TOP/tran.sim",
                                      simText("tran", "tran.sim", "", "", "", "", ""));
  for (const std::string& path : {sim, folder.path("P/amp-TervixFiles/TOP/TOP.aap")}) {
    OpenedProject project(path, 0);
    EXPECT_EQ(textOf(*project, &CTervixProject::getInitializationPath), "");
    EXPECT_EQ(textOf(*project, &CTervixNode::getPath), "");
    EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_SIMULATION);
  }
}

TEST(ProjectFields, AreStoredAsGivenAndCanBeEmptied) {
  using Setter = unsigned long (CTervixProject::*)(std::string&);
  using Getter = unsigned long (CTervixProject::*)(std::string&) const;
  const std::pair<Setter, Getter> fields[] = {
      {&CTervixProject::setInitializationPath, &CTervixProject::getInitializationPath},
      {&CTervixProject::setDesignName, &CTervixProject::getDesignName},
      {&CTervixProject::setDesignPath, &CTervixProject::getDesignPath},
      {&CTervixProject::setDesignFolderPath, &CTervixProject::getDesignFolderPath},
      {&CTervixProject::setTervixOutputFile, &CTervixProject::getTervixOutputFile}};
  CTervixProject project;
  for (const auto& [set, get] : fields)
    for (const std::string& value : {std::string("a\\b %s \"q\" \xc3\xa4\n"), std::string()}) {
      std::string text = value;
      EXPECT_EQ((project.*set)(text), 0u);
      std::string read = "other";
      EXPECT_EQ((project.*get)(read), 0u);
      EXPECT_EQ(read, value);
    }
}

TEST(ProjectFields, HoldTheInitializationTime) {
  CTervixProject project;
  EXPECT_EQ(project.setInitializationTime(-3), 0u);
  long seconds = 0;
  EXPECT_EQ(project.getInitializationTime(seconds), 0u);
  EXPECT_EQ(seconds, -3);
}

TEST(ProjectFields, HoldWhetherThePropertyIndexIsStale) {
  CTervixProject project;
  EXPECT_EQ(project.setPrpIndexStale(false), 0u);
  bool stale = true;
  EXPECT_EQ(project.isPrpIndexStale(stale), 0u);
  EXPECT_FALSE(stale);
}

TEST(ProjectFields, TellAnUnsetProjectTypeWithoutFailing) {
  CTervixProject project;
  PROJECT_TYPE type = PROJECT_TYPE_SIMULATION;
  EXPECT_EQ(project.getProjectType(type), 0u);
  EXPECT_EQ(type, PROJECT_TYPE_UNSET);
  project.setProjectType(PROJECT_TYPE_OTHER);
  EXPECT_EQ(project.getProjectType(type), 0u);
  EXPECT_EQ(type, PROJECT_TYPE_OTHER);
}

TEST(ProjectFields, HoldTheNodesOwnParent) {
  CTervixProject parent;
  CTervixProject project;
  CTervixNode* found = nullptr;
  EXPECT_EQ(project.getParent(found), 1u);
  EXPECT_EQ(project.setParent(&parent), 0u);
  EXPECT_EQ(project.getParent(found), 0u);
  EXPECT_EQ(found, &parent);
  EXPECT_EQ(project.setParent(nullptr), 0u);
  EXPECT_EQ(static_cast<CTervixNode&>(project).getParent(found), 0u);
  EXPECT_EQ(found, &parent);
}

TEST(ProjectReferences, AreCounted) {
  CTervixProject project;
  EXPECT_EQ(project.addRef(), 0u);
  unsigned int count = 0;
  project.getRefCount(count);
  EXPECT_EQ(count, 2u);
  EXPECT_EQ(project.setRefCount(41), 0u);
  EXPECT_EQ(project.release(), 0u);
  project.getRefCount(count);
  EXPECT_EQ(count, 40u);
}

TEST(ProjectReferences, GoBelowZeroWithoutDeletingTheProject) {
  CTervixProject project;
  project.release();
  EXPECT_EQ(project.release(), 0u);
  unsigned int count = 0;
  EXPECT_EQ(project.getRefCount(count), 0u);
  EXPECT_EQ(count, 4294967295u);
}

TEST(ProjectFolders, AreMadeWithTheirParents) {
  const TemporaryFolder folder;
  std::string path = folder.path("a/b/c");
  EXPECT_EQ(CTervixProject().createFolder(path), 0u);
  EXPECT_TRUE(isFolder(path));
}

TEST(ProjectFolders, ThatCannotBeMadeAreReported) {
  const TemporaryFolder folder;
  std::string path = folder.file("a") + "/b";
  EXPECT_EQ(CTervixProject().createFolder(path), 10102u);
  EXPECT_EQ(lastError(), "10102 Failed to create directory \"" + path +
                             "\". Check write permissions on the parent directory.");
}

TEST(ProjectFolders, WithTooLongAPathAreNotMade) {
  const TemporaryFolder folder;
  std::string path = folder.path("first") + "/" + std::string(260, 'x');
  EXPECT_EQ(CTervixProject().createFolder(path), 10102u);
  EXPECT_EQ(lastError(), "10102 Failed to create directory \"" + path +
                             "\". Check write permissions on the parent directory.");
  EXPECT_FALSE(isFolder(folder.path("first")));
}

TEST(ProjectFolders, AreCopiedWithWhatTheyHold) {
  const TemporaryFolder folder;
  folder.file("from/sub/a.txt", "text");
  std::string from = folder.path("from");
  std::string to = folder.path("new/to");
  EXPECT_EQ(CTervixProject().copyFolder(from, to), 0u);
  EXPECT_EQ(snapshotOf(from), snapshotOf(to));
  EXPECT_EQ(CTervixProject().copyFolder(arg(folder.path("none")), to), 1u);
}

TEST(ProjectAssignment, ChangesNothingInTheTarget) {
  OpenedProject source("/w/other.tvp", 2, true, "other");
  source->setDesignName(arg("other"));
  source->setDesignPath(arg("/w/other.dsn"));
  source->setDesignFolderPath(arg("/w"));
  source->setTervixOutputFile(arg("other.out"));
  source->setInitializationTime(5);
  source->setRefCount(9);
  source->setPrpIndexStale(false);
  source->setChangedName(arg("TOP"), arg("NEW"), RENAME_TYPE_SCHEMATIC);
  source->addDesignLevelFile(arg("other.lib"), VARIANTFILE_TYPE_LIBRARY);
  addProfile(*source, "TOP", "tran");
  source->setRootSchematic(arg("TOP"));
  CTervixProject target;
  target.setDesignName(arg("amp"));
  EXPECT_EQ(&(target = *source), &target);
  EXPECT_EQ(target.clone(*source), 0u);

  EXPECT_EQ(textOf(target, &CTervixProject::getDesignName), "amp");
  for (const auto getter :
       {&CTervixProject::getDesignPath, &CTervixProject::getDesignFolderPath,
        &CTervixProject::getTervixOutputFile, &CTervixProject::getInitializationPath})
    EXPECT_EQ(textOf(target, getter), "");
  EXPECT_EQ(textOf(target, &CTervixNode::getName), "");
  EXPECT_EQ(textOf(target, &CTervixNode::getPath), "");
  std::string root;
  EXPECT_EQ(target.getRootSchematic(root), 1u);
  int schematics = -1;
  target.numberOfSchematics(schematics);
  EXPECT_EQ(schematics, 0);
  int libraries = -1;
  target.numberOfDesignLevelFiles(libraries, VARIANTFILE_TYPE_LIBRARY);
  EXPECT_EQ(libraries, 0);
  unsigned int references = 9;
  target.getRefCount(references);
  EXPECT_NE(references, 9u);
  bool isStale = false;
  target.isPrpIndexStale(isStale);
  EXPECT_TRUE(isStale);
}

TEST(ProjectCopy, HoldsEveryField) {
  OpenedProject project("/w/amp.tvp", 2, true, "amp");
  project->setDesignName(arg("amp"));
  project->setDesignPath(arg("/w/amp.dsn"));
  project->setDesignFolderPath(arg("/w"));
  project->setTervixOutputFile(arg("amp.out"));
  project->setInitializationTime(5);
  project->setRefCount(9);
  project->setPrpIndexStale(false);
  project->setChangedName(arg("TOP"), arg("NEW"), RENAME_TYPE_SCHEMATIC);
  addProfile(*project, "TOP", "tran")->setActive(true);
  project->setRootSchematic(arg("TOP"));
  project->setActiveProfile(arg("TOP-tran"));

  CTervixProject copy(*project);
  EXPECT_EQ(textOf(copy, &CTervixNode::getName), "amp");
  EXPECT_EQ(textOf(copy, &CTervixNode::getPath), "/w/amp.tvp");
  EXPECT_EQ(textOf(copy, &CTervixNode::getFolderPath), "/w");
  EXPECT_EQ(frontEndIn(copy), 2);
  EXPECT_EQ(projectTypeIn(copy), PROJECT_TYPE_SIMULATION);
  EXPECT_EQ(textOf(copy, &CTervixProject::getInitializationPath), "/w/amp.tvp");
  EXPECT_EQ(textOf(copy, &CTervixProject::getDesignName), "amp");
  EXPECT_EQ(textOf(copy, &CTervixProject::getDesignPath), "/w/amp.dsn");
  EXPECT_EQ(textOf(copy, &CTervixProject::getDesignFolderPath), "/w");
  EXPECT_EQ(textOf(copy, &CTervixProject::getTervixOutputFile), "amp.out");
  EXPECT_EQ(textOf(copy, &CTervixProject::getActiveProfile), "TOP-tran");
  EXPECT_EQ(textOf(copy, &CTervixProject::getRootSchematic), "TOP");
  long seconds = 0;
  copy.getInitializationTime(seconds);
  EXPECT_EQ(seconds, 5);
  unsigned int references = 0;
  copy.getRefCount(references);
  EXPECT_EQ(references, 9u);
  bool stale = true;
  copy.isPrpIndexStale(stale);
  EXPECT_FALSE(stale);
  std::string former;
  std::string changed;
  RENAME_TYPE kind = RENAME_TYPE_NONE;
  copy.getChangedName(former, changed, kind);
  EXPECT_EQ(former + changed, "TOPNEW");
  EXPECT_EQ(kind, RENAME_TYPE_SCHEMATIC);
}

TEST(ProjectCopy, SharesTheSchematicsAndLeavesThemAlive) {
  OpenedProject project("/w/amp.tvp", 2, true);
  CTervixSchematic* const top = addSchematic(*project, "TOP");
  {
    CTervixProject copy(*project);
    EXPECT_EQ(schematicIn(copy, "TOP"), top);
    CTervixSchematic* const mine = addSchematic(copy, "MINE");
    EXPECT_EQ(treeOf(copy), (Lines{"TOP", "MINE"}));
    EXPECT_EQ(treeOf(*project), Lines{"TOP"});
    delete mine;
    copy.deleteAllSchematics();
  }
  EXPECT_EQ(nameOfNode(top), "TOP");
  EXPECT_EQ(treeOf(*project), Lines{"TOP"});
}

TEST(ProjectCopy, HasDesignLevelListsAndCursorsOfItsOwn) {
  CTervixProject project;
  for (const char* file : {"a.lib", "b.lib", "c.lib"})
    project.addDesignLevelFile(arg(file), VARIANTFILE_TYPE_LIBRARY);
  std::string file;
  project.getTopDesignLevelFile(file, VARIANTFILE_TYPE_LIBRARY);
  project.getNextDesignLevelFile(file, VARIANTFILE_TYPE_LIBRARY);
  CTervixProject copy(project);
  project.deleteAllDesignLevelFiles();
  EXPECT_EQ(copy.getNextDesignLevelFile(file, VARIANTFILE_TYPE_LIBRARY), 0u);
  EXPECT_EQ(file, "c.lib");
}

TEST(ProjectDestruction, ForgetsTheSchematicsWithoutDestroyingThem) {
  auto project =
      std::make_unique<CTervixProject>("/w/amp.tvp", FRONTEND_ID_DESIGN_FILE, true, nullptr);
  const std::unique_ptr<CTervixSchematic> top(addSchematic(*project, "TOP"));
  project->setRefCount(3);
  project.reset();
  EXPECT_EQ(nameOfNode(top.get()), "TOP");
}

TEST(ProjectVariants, AreNoMatterWithoutSchematics) {
  CTervixProject project;
  EXPECT_EQ(project.writeVariants(), 0u);
  EXPECT_EQ(project.readVariants(), 0u);
}

class ProjectVariantsOnDisk : public ::testing::Test {
protected:
  ProjectVariantsOnDisk() : path(writeProject(folder, Layout::kDesignSimulation, plan)) {}

  TemporaryFolder folder;
  ProjectPlan plan = {"amp", {"TOP", "SUB"}, "TOP", {{"TOP", "tran"}, {"SUB", "ac"}}, ""};
  std::string path;
};

TEST_F(ProjectVariantsOnDisk, AreSavedAndLoadedForEveryProfile) {
  OpenedProject project(path, 2);
  ASSERT_EQ(project->initialize(), 0u);
  CTervixProfile* const tran = profileIn(*project, "TOP", "tran");
  CTervixProfile* const ac = profileIn(*project, "SUB", "ac");
  for (CTervixProfile* profile : {tran, ac})
    profile->addProfileLevelFile(arg("./new.lib"), VARIANTFILE_TYPE_LIBRARY, true, false);
  EXPECT_EQ(project->writeVariants(), 0u);
  for (const char* list : {"TOP/tran/tran_profile.inc", "SUB/ac/ac_profile.inc"}) {
    const std::string file = folder.path("P/amp-TervixFiles/") + list;
    EXPECT_NE(contentOf(file).find("new.lib"), std::string::npos);
    writeFile(file, ".INC\t\".\\read.inc\" \n");
  }
  EXPECT_EQ(project->readVariants(), 0u);
  for (CTervixProfile* profile : {tran, ac}) {
    std::string file;
    profile->getTopProfileLevelFile(file, VARIANTFILE_TYPE_INCLUDE);
    EXPECT_NE(file.find("read.inc"), std::string::npos) << file;
    int count = -1;
    profile->numberOfProfileLevelFiles(count, VARIANTFILE_TYPE_LIBRARY);
    EXPECT_EQ(count, 0);
  }
}

TEST_F(ProjectVariantsOnDisk, LeaveTheClientsCursorWhereItIs) {
  OpenedProject project(path, 2);
  ASSERT_EQ(project->initialize(), 0u);
  CTervixNode* schematic = nullptr;
  project->getTopSchematic(schematic);
  project->writeVariants();
  project->readVariants();
  project->getNextSchematic(schematic);
  EXPECT_EQ(nameOfNode(schematic), "SUB");
}

TEST_F(ProjectVariantsOnDisk, ThatFailForOneProfileAreSavedForTheOthers) {
  OpenedProject project(path, 2);
  ASSERT_EQ(project->initialize(), 0u);
  addProfile(*project, "TOP", "gone")
      ->addProfileLevelFile(arg("./x.lib"), VARIANTFILE_TYPE_LIBRARY, true, false);
  profileIn(*project, "SUB", "ac")
      ->addProfileLevelFile(arg("./new.lib"), VARIANTFILE_TYPE_LIBRARY, true, false);
  EXPECT_EQ(project->writeVariants(), 0u);
  EXPECT_EQ(project->readVariants(), 0u);
  EXPECT_NE(contentOf(folder.path("P/amp-TervixFiles/SUB/ac/ac_profile.inc")).find("new.lib"),
            std::string::npos);
}

} // namespace
} // namespace tervix::testing
