#include <gtest/gtest.h>

#include "tests/project/LayoutTest.h"

// The files that apply to the whole design, and the paths proposed for new ones.

namespace tervix::testing {
namespace {

constexpr VARIANTFILE_TYPE kTypes[] = {VARIANTFILE_TYPE_LIBRARY, VARIANTFILE_TYPE_STIMULUS,
                                       VARIANTFILE_TYPE_INCLUDE};

class DesignLevelFiles : public ::testing::TestWithParam<VARIANTFILE_TYPE> {
protected:
  std::string top() {
    std::string file = "unset";
    EXPECT_EQ(project.getTopDesignLevelFile(file, GetParam()), 0u);
    return file;
  }
  std::string next() {
    std::string file = "unset";
    EXPECT_EQ(project.getNextDesignLevelFile(file, GetParam()), 0u);
    return file;
  }
  void add(std::string file) { EXPECT_EQ(project.addDesignLevelFile(file, GetParam()), 0u); }
  void remove(std::string file) { EXPECT_EQ(project.deleteDesignLevelFile(file, GetParam()), 0u); }
  int count() const {
    int number = -1;
    EXPECT_EQ(project.numberOfDesignLevelFiles(number, GetParam()), 0u);
    return number;
  }

  CTervixProject project;
};

TEST_P(DesignLevelFiles, AreNoneAtFirst) {
  EXPECT_EQ(count(), 0);
  EXPECT_EQ(top(), "");
  EXPECT_EQ(next(), "");
}

TEST_P(DesignLevelFiles, AreWalkedInTheOrderOfAdding) {
  add("a");
  add("b");
  EXPECT_EQ(top(), "a");
  EXPECT_EQ(next(), "b");
  EXPECT_EQ(next(), "");
  EXPECT_EQ(next(), "");
  EXPECT_EQ(count(), 2);
}

TEST_P(DesignLevelFiles, StartAtTheSecondWithoutATop) {
  add("a");
  add("b");
  EXPECT_EQ(next(), "b");
}

TEST_P(DesignLevelFiles, ContinueWithOneAddedAtTheEndOfAWalk) {
  add("a");
  EXPECT_EQ(top(), "a");
  EXPECT_EQ(next(), "");
  add("b");
  // The cursor rests where the new entry now is, and moves on from there.
  EXPECT_EQ(next(), "");
  EXPECT_EQ(top(), "a");
  EXPECT_EQ(next(), "b");
}

TEST_P(DesignLevelFiles, AreNotListedTwiceInAnyCase) {
  add("models/NPN.lib");
  add("MODELS/npn.LIB");
  EXPECT_EQ(count(), 1);
  EXPECT_EQ(top(), "models/NPN.lib");
}

TEST_P(DesignLevelFiles, DifferWhenTheirSeparatorsDo) {
  add("a/b");
  add("a\\b");
  EXPECT_EQ(count(), 2);
}

TEST_P(DesignLevelFiles, CompareOtherBytesAsTheyAre) {
  add("\xc3\xa4.lib");
  add("\xc3\x84.lib");
  EXPECT_EQ(count(), 2);
}

TEST_P(DesignLevelFiles, AreDeletedInAnyCase) {
  add("a");
  add("b");
  add("c");
  remove("B");
  EXPECT_EQ(top(), "a");
  EXPECT_EQ(next(), "c");
}

TEST_P(DesignLevelFiles, ThatAreNotListedAreDeletedWithoutAnError) {
  add("a");
  recordOtherError();
  remove("b");
  EXPECT_EQ(count(), 1);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(DesignLevelFiles, KeepTheCursorsPositionWhenOneIsDeleted) {
  for (const char* file : {"a", "b", "c", "d"})
    add(file);
  top();
  EXPECT_EQ(next(), "b");
  remove("a");
  EXPECT_EQ(next(), "d");
}

TEST_P(DesignLevelFiles, EndTheWalkWhenAllAreDeleted) {
  for (const char* file : {"a", "b", "c"})
    add(file);
  top();
  next();
  EXPECT_EQ(project.deleteAllDesignLevelFiles(GetParam()), 0u);
  EXPECT_EQ(count(), 0);
  EXPECT_EQ(next(), "");
  EXPECT_EQ(top(), "");
  for (const char* file : {"a", "b", "c"})
    add(file);
  // Neither the deletion nor the top of an empty list moved the cursor.
  EXPECT_EQ(next(), "c");
}

TEST_P(DesignLevelFiles, OfOneKindAreApartFromTheOthers) {
  for (VARIANTFILE_TYPE type : kTypes)
    project.addDesignLevelFile(arg("of " + std::to_string(type)), type);
  EXPECT_EQ(project.deleteAllDesignLevelFiles(GetParam()), 0u);
  for (VARIANTFILE_TYPE type : kTypes)
    EXPECT_EQ(designLevelFiles(project, type),
              type == GetParam() ? Lines() : Lines{"of " + std::to_string(type)});
}

TEST_P(DesignLevelFiles, CanHaveAnyText) {
  for (const std::string& file :
       {std::string("%s%n"), std::string("\"q\""), std::string("a\nb"), std::string(100000, 'x')}) {
    add(file);
    EXPECT_EQ(designLevelFiles(project, GetParam()).back(), file);
  }
}

INSTANTIATE_TEST_SUITE_P(OfEachKind, DesignLevelFiles, ::testing::ValuesIn(kTypes));

TEST(DesignLevelFileLists, AreAllEmptiedAtOnce) {
  CTervixProject project;
  for (VARIANTFILE_TYPE type : kTypes)
    project.addDesignLevelFile(arg("a"), type);
  EXPECT_EQ(project.deleteAllDesignLevelFiles(), 0u);
  for (VARIANTFILE_TYPE type : kTypes)
    EXPECT_EQ(designLevelFiles(project, type), Lines());
}

class UnknownDesignLevelType : public ::testing::TestWithParam<int> {
protected:
  UnknownDesignLevelType() {
    // Some other error, so that the one expected cannot be left over.
    project.createFolder(arg(""));
    addSchematic(project, "");
  }
  void expectRefused(unsigned long status) {
    EXPECT_EQ(status, 10120u);
    EXPECT_EQ(lastError(), "10120 Invalid design level variant type.");
  }

  const VARIANTFILE_TYPE type = static_cast<VARIANTFILE_TYPE>(GetParam());
  CTervixProject project;
  std::string file = "a";
};

TEST_P(UnknownDesignLevelType, HasNoTop) {
  expectRefused(project.getTopDesignLevelFile(file, type));
  EXPECT_EQ(file, "");
}
TEST_P(UnknownDesignLevelType, HasNoNext) {
  expectRefused(project.getNextDesignLevelFile(file, type));
  EXPECT_EQ(file, "");
}
TEST_P(UnknownDesignLevelType, TakesNoFile) {
  expectRefused(project.addDesignLevelFile(file, type));
}
TEST_P(UnknownDesignLevelType, DeletesNoFile) {
  expectRefused(project.deleteDesignLevelFile(file, type));
}
TEST_P(UnknownDesignLevelType, EmptiesNoList) {
  expectRefused(project.deleteAllDesignLevelFiles(type));
}
TEST_P(UnknownDesignLevelType, CountsNothing) {
  int count = 5;
  expectRefused(project.numberOfDesignLevelFiles(count, type));
}
TEST_P(UnknownDesignLevelType, HasNoDefaultPath) {
  expectRefused(project.getDefaultDesignLibPath(file, type));
  EXPECT_EQ(file, "");
}

INSTANTIATE_TEST_SUITE_P(BeyondTheEnumeration, UnknownDesignLevelType,
                         ::testing::Values(3, -1, 1 << 30));

class DefaultPaths : public LayoutTest {};
TERVIX_IN_EACH_LAYOUT(DefaultPaths);

TEST_P(DefaultPaths, OfTheDesignAreNamedAfterIt) {
  const std::string projectFile = write();
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  std::string base = projectFile.substr(0, projectFile.rfind('/'));
  if (GetParam() == Layout::kDesignSimulation)
    base += "/amp-TervixFiles";
  std::string path;
  for (const auto& [type, suffix] :
       {std::pair{kTypes[0], ".lib"}, std::pair{kTypes[1], ".stl"}, std::pair{kTypes[2], ".inc"}}) {
    EXPECT_EQ(project->getDefaultDesignLibPath(path, type), 0u);
    EXPECT_EQ(path, base + "/amp" + suffix);
  }
}

TEST_P(DefaultPaths, OfAProfileLieInItsFolderInASimulationProject) {
  const std::string projectFile = write();
  OpenedProject project(projectFile, frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  const std::string sim = simPath(ProjectPlan());
  recordOtherError();
  for (const auto& [type, suffix] :
       {std::pair{kTypes[0], ".lib"}, std::pair{kTypes[1], ".stl"}, std::pair{kTypes[2], ".inc"}}) {
    std::string path = "unset";
    std::string file = sim;
    const unsigned long status = project->getDefaultProfileLibPath(path, file, type);
    EXPECT_EQ(status, isSimulationProject() ? 0u : 1u);
    EXPECT_EQ(path, isSimulationProject() ? sim.substr(0, sim.rfind('/')) + "/tran/tran" + suffix
                                          : std::string());
    EXPECT_EQ(file, sim);
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(DefaultPaths, OfAProfileAskForTheProjectTypeBeforeTheKind) {
  OpenedProject project(write(), frontEnd());
  std::string path;
  recordOtherError();
  const unsigned long status = project->getDefaultProfileLibPath(path, arg(simPath(ProjectPlan())),
                                                                 static_cast<VARIANTFILE_TYPE>(3));
  EXPECT_EQ(status, isSimulationProject() ? 10112u : 1u);
  EXPECT_EQ(lastError(),
            isSimulationProject() ? "10112 Invalid profile level variant type." : kOtherError);
}

TEST(DefaultDesignPath, FollowsTheDesignsName) {
  OpenedProject project("/w/amp.tvp", 2, true);
  project->setDesignName(arg("stage"));
  std::string path;
  EXPECT_EQ(project->getDefaultDesignLibPath(path, VARIANTFILE_TYPE_LIBRARY), 0u);
  EXPECT_EQ(path, "/w/amp-TervixFiles/stage.lib");
}

TEST(DefaultDesignPath, IsNoneWithoutAFrontEnd) {
  CTervixProject project;
  std::string path = "unset";
  EXPECT_EQ(project.getDefaultDesignLibPath(path, VARIANTFILE_TYPE_LIBRARY), 1u);
  EXPECT_EQ(path, "");
  project.setFrontEndId(static_cast<FRONTEND_ID>(3));
  project.setProjectType(PROJECT_TYPE_OTHER);
  path = "unset";
  EXPECT_EQ(project.getDefaultDesignLibPath(path, VARIANTFILE_TYPE_LIBRARY), 1u);
  EXPECT_EQ(path, "");
}

TEST(DefaultDesignPath, LiesInTheProjectsFolderWithoutAProjectType) {
  CTervixProject project;
  project.setFolderPath(arg("P"));
  project.setDesignName(arg("amp"));
  for (const FRONTEND_ID frontEnd : {FRONTEND_ID_PROJECT_FILE, FRONTEND_ID_DESIGN_FILE}) {
    project.setFrontEndId(frontEnd);
    std::string path;
    EXPECT_EQ(project.getDefaultDesignLibPath(path, VARIANTFILE_TYPE_LIBRARY), 0u);
    EXPECT_EQ(path, "P/amp.lib");
  }
}

TEST(DefaultProfilePath, OfAnUnknownFilePassesTheStatusOn) {
  const TemporaryFolder folder;
  OpenedProject project(writeProject(folder, Layout::kDesignSimulation), 2);
  ASSERT_EQ(project->initialize(), 0u);
  std::string path = "unset";
  std::string missing = folder.path("none.sim");
  EXPECT_EQ(project->getDefaultProfileLibPath(path, missing, VARIANTFILE_TYPE_LIBRARY), 10104u);
  EXPECT_EQ(lastError(), "10104 File \"" + missing + "\" does not exist.");
  EXPECT_EQ(path, "");
}

TEST(DefaultProfilePath, MayTakeThePlaceOfTheFileAskedFor) {
  const TemporaryFolder folder;
  OpenedProject project(writeProject(folder, Layout::kDesignSimulation), 2);
  ASSERT_EQ(project->initialize(), 0u);
  std::string path = folder.path("P/amp-TervixFiles/TOP/tran.sim");
  EXPECT_EQ(project->getDefaultProfileLibPath(path, path, VARIANTFILE_TYPE_STIMULUS), 0u);
  EXPECT_EQ(path, folder.path("P/amp-TervixFiles/TOP/tran/tran.stl"));
}

} // namespace
} // namespace tervix::testing
