#include <gtest/gtest.h>

#include "tests/project/OpenedProject.h"

// Which readers the shared library uses. Each test is run by itself, with the loader set up for it.

namespace tervix::testing {
namespace {

class Loader : public ::testing::Test {
protected:
  TemporaryFolder folder;
  const std::string projectFile = writeProject(folder, Layout::kDesignSimulation);
  OpenedProject project{projectFile, 2};

  void expectUnreadableDesign() {
    EXPECT_EQ(project->initialize(), 10110u);
    EXPECT_EQ(lastError(),
              "10110 Failed to read the design file \"" + folder.path("P/amp.dsn") + "\".");
    EXPECT_EQ(treeOf(*project), Lines());
    // Nothing is left over that would fail the next time in another way.
    EXPECT_EQ(project->initialize(), 10110u);
  }
};

// The current folder holds a design reader, which must not be loaded.
TEST_F(Loader, FindsTheReadersBesideTheLibrary) {
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP root", "  tran TOP-tran active"}));
}

// Beside the library there is no design reader, in the current folder there is.
TEST_F(Loader, FindsNoDesignReaderInTheCurrentFolder) {
  expectUnreadableDesign();
}

TEST_F(Loader, PrefersADesignReaderOnItsPath) {
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"STUB root", "TOP", "  tran TOP-tran active"}));
}

TEST_F(Loader, LoadsADesignReaderEachTime) {
  for (int i = 0; i < 50; ++i) {
    OpenedProject other(projectFile, 2);
    EXPECT_EQ(other->initialize(), 0u);
    EXPECT_EQ(treeOf(*other)[0], "STUB root");
  }
}

TEST_F(Loader, TakesAFailingDesignReaderForAnUnreadableDesign) {
  expectUnreadableDesign();
}

TEST_F(Loader, PrefersAProjectReaderOnItsPath) {
  folder.file("P/stub.dsn", "[Design]\nSchematics = ['FROM STUB']\n");
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(textOf(*project, &CTervixProject::getDesignName), "stub");
  EXPECT_EQ(textOf(*project, &CTervixProject::getTervixOutputFile), "stub.out");
  EXPECT_EQ(treeOf(*project), Lines{"FROM STUB"});
  EXPECT_EQ(designLevelFiles(*project, VARIANTFILE_TYPE_LIBRARY), Lines{"stub of Model Libraries"});
  EXPECT_EQ(designLevelFiles(*project, VARIANTFILE_TYPE_STIMULUS), Lines{"stub of Stimulus Files"});
  EXPECT_EQ(designLevelFiles(*project, VARIANTFILE_TYPE_INCLUDE), Lines{"stub of Include Files"});
}

TEST_F(Loader, TakesAFailingProjectReaderForAnUnreadableProject) {
  EXPECT_EQ(project->initialize(), 10109u);
  EXPECT_EQ(lastError(),
            "10109 Failed to read file \"" + projectFile + "\". Check the file syntax.");
  EXPECT_EQ(treeOf(*project), Lines());
}

} // namespace
} // namespace tervix::testing
