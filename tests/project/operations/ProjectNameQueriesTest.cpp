#include "tests/project/operations/SampleProject.h"

// The project file, the names of the schematics and the netlist of the root.

namespace tervix::testing {
namespace {

Answer projectPath(CTervixProject& project) {
  return answerOf([&](std::string& path) { return project.getProjectPath(path); });
}
Answer topSchematic(CTervixProject& project) {
  return answerOf([&](std::string& name) { return project.getTopSchematicName(name); });
}
Answer nextSchematic(CTervixProject& project) {
  return answerOf([&](std::string& name) { return project.getNextSchematicName(name); });
}
Answer rootNetFile(CTervixProject& project) {
  return answerOf([&](std::string& file) { return project.getRootSchematicNetFile(file); });
}

class ProjectNames : public InEachLayout {};
TERVIX_IN_EACH_LAYOUT(ProjectNames);

TEST_P(ProjectNames, TellTheProjectFile) {
  SampleProject amp(GetParam());
  EXPECT_EQ(projectPath(*amp), (Answer{0, amp.file()}));
}

TEST_P(ProjectNames, WalkTheSchematicsAndEndWithAnEmptyName) {
  SampleProject amp(GetParam(), twoSchematics());
  EXPECT_EQ(topSchematic(*amp), (Answer{0, amp.schematicOf(0)}));
  if (amp.isDesignFrontEnd()) {
    EXPECT_EQ(nextSchematic(*amp), (Answer{0, "SUB"}));
  }
  EXPECT_EQ(nextSchematic(*amp), (Answer{0, ""}));
  EXPECT_EQ(nextSchematic(*amp), (Answer{0, ""}));
  EXPECT_EQ(topSchematic(*amp), (Answer{0, amp.schematicOf(0)}));
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(ProjectName, OfAProjectFromNowhereIsNotSet) {
  recordOtherError();
  CTervixProject nowhere;
  EXPECT_EQ(projectPath(nowhere), (Answer{1, ""}));
  EXPECT_EQ(topSchematic(nowhere), (Answer{0, ""}));
  EXPECT_EQ(nextSchematic(nowhere), (Answer{0, ""}));
  EXPECT_EQ(rootNetFile(nowhere), (Answer{1, ""}));
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(ProjectName, ShareTheCursorWithTheSchematicsThemselves) {
  SampleProject amp(Layout::kDesignOther, twoSchematics());
  CTervixNode* schematic = nullptr;
  amp->getTopSchematic(schematic);
  EXPECT_EQ(nextSchematic(*amp), (Answer{0, "SUB"}));
  EXPECT_EQ(topSchematic(*amp), (Answer{0, "TOP"}));
  amp->getNextSchematic(schematic);
  EXPECT_EQ(nameOfNode(schematic), "SUB");
}

TEST(RootNetFile, OfASimulationProjectIsInItsSchematicsFolderWithBackslashes) {
  SampleProject amp(Layout::kDesignSimulation);
  EXPECT_EQ(rootNetFile(*amp),
            (Answer{0, withBackslashes(amp.path("P/amp-TervixFiles/TOP/TOP.net"))}));
}

TEST(RootNetFile, OfAnyOtherIsNamedAfterDesignAndSchematicWithBackslashes) {
  SampleProject amp(Layout::kDesignOther);
  EXPECT_EQ(rootNetFile(*amp), (Answer{0, withBackslashes(amp.path("P/amp-TOP.net"))}));
}

TEST(RootNetFile, FollowsTheRoot) {
  SampleProject amp(Layout::kDesignOther, twoSchematics());
  amp->setRootSchematic(arg("sub"));
  EXPECT_EQ(rootNetFile(*amp), (Answer{0, withBackslashes(amp.path("P/amp-SUB.net"))}));
}

TEST(RootNetFileOfFrontEndOne, IsNoneWithoutARoot) {
  for (const Layout layout : {Layout::kProjectSimulation, Layout::kProjectOther}) {
    SampleProject amp(layout);
    EXPECT_EQ(rootNetFile(*amp), (Answer{1, ""}));
    EXPECT_EQ(lastError(), kOtherError);
  }
}

TEST(RootNetFile, OfARootThatWentIsNone) {
  SampleProject amp(Layout::kDesignSimulation, twoSchematics());
  amp->deleteSchematic(arg("TOP"));
  recordOtherError();
  EXPECT_EQ(rootNetFile(*amp), (Answer{1, ""}));
  EXPECT_EQ(lastError(), kOtherError);
}

} // namespace
} // namespace tervix::testing
