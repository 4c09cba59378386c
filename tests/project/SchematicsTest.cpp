#include <gtest/gtest.h>

#include "tests/project/OpenedProject.h"

// The schematics of a project, and which of them is the root.

namespace tervix::testing {
namespace {

class Schematics : public ::testing::Test {
protected:
  unsigned long find(std::string name) {
    found = reinterpret_cast<CTervixNode*>(this); // something that a miss must clear
    return project->findSchematic(found, name);
  }

  OpenedProject project{"/w/amp.tvp", 2, true};
  CTervixNode* found = nullptr;
};

TEST_F(Schematics, AreNoneAtFirst) {
  int count = 7;
  EXPECT_EQ(project->numberOfSchematics(count), 0u);
  EXPECT_EQ(count, 0);
  CTervixNode* node = found;
  EXPECT_EQ(project->getTopSchematic(node), 0u);
  EXPECT_EQ(node, nullptr);
  EXPECT_EQ(project->getNextSchematic(node), 0u);
  EXPECT_EQ(node, nullptr);
  EXPECT_EQ(find("TOP"), 1u);
  EXPECT_EQ(found, nullptr);
}

TEST_F(Schematics, AreWalkedInTheOrderOfAdding) {
  addSchematic(*project, "B");
  addSchematic(*project, "A");
  CTervixNode* node = nullptr;
  EXPECT_EQ(project->getTopSchematic(node), 0u);
  EXPECT_EQ(nameOfNode(node), "B");
  EXPECT_EQ(project->getNextSchematic(node), 0u);
  EXPECT_EQ(nameOfNode(node), "A");
  EXPECT_EQ(project->getNextSchematic(node), 0u);
  EXPECT_EQ(node, nullptr);
  int count = 0;
  EXPECT_EQ(project->numberOfSchematics(count), 0u);
  EXPECT_EQ(count, 2);
}

TEST_F(Schematics, AreFoundInAnyCase) {
  CTervixSchematic* const top = addSchematic(*project, "Top");
  EXPECT_EQ(find("tOP"), 0u);
  EXPECT_EQ(found, top);
  EXPECT_EQ(find("To"), 1u);
  EXPECT_EQ(found, nullptr);
}

TEST_F(Schematics, AreNotAddedTwice) {
  CTervixSchematic* const top = addSchematic(*project, "TOP");
  EXPECT_EQ(addSchematic(*project, "TOP"), top);
  EXPECT_EQ(addSchematic(*project, "top"), top);
  EXPECT_EQ(treeOf(*project), Lines{"TOP"});
}

TEST_F(Schematics, BelongToTheProject) {
  CTervixSchematic* const top = addSchematic(*project, "TOP");
  CTervixNode* parent = nullptr;
  EXPECT_EQ(top->getParent(parent), 0u);
  EXPECT_EQ(parent, &*project);
  EXPECT_EQ(frontEndIn(*project), 2);
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  top->getFrontEndId(frontEnd);
  EXPECT_EQ(frontEnd, FRONTEND_ID_DESIGN_FILE);
  PROJECT_TYPE type = PROJECT_TYPE_UNSET;
  top->getProjectType(type);
  EXPECT_EQ(type, PROJECT_TYPE_SIMULATION);
}

TEST_F(Schematics, OfASimulationProjectLieInItsFilesFolder) {
  EXPECT_EQ(textOf(*addSchematic(*project, "TOP"), &CTervixNode::getFolderPath),
            "/w/amp-TervixFiles/TOP");
}

TEST_F(Schematics, OfAnotherProjectLieInTheDesignsFolder) {
  OpenedProject other("/w/amp.tvp", 2);
  other->setDesignFolderPath(arg("/designs"));
  EXPECT_EQ(textOf(*addSchematic(*other, "TOP"), &CTervixNode::getFolderPath), "/designs");
}

TEST_F(Schematics, OfTheOtherFrontEndLieInTheProjectsFolder) {
  for (const char* folder : {"/w/amp/cfg_analog", "/w/amp/tvx_sim_1"}) {
    OpenedProject other(std::string(folder) + "/amp.tvp", 1);
    other->setDesignFolderPath(arg("/designs"));
    EXPECT_EQ(textOf(*addSchematic(*other, "TOP"), &CTervixNode::getFolderPath), folder);
  }
}

TEST_F(Schematics, CannotBeAddedWithoutAFrontEnd) {
  CTervixProject none;
  recordOtherError();
  CTervixNode* node = &none;
  EXPECT_EQ(none.addSchematic(node, arg("TOP")), 1u);
  EXPECT_EQ(node, nullptr);
  none.setFrontEndId(static_cast<FRONTEND_ID>(3));
  EXPECT_EQ(none.addSchematic(node, arg("TOP")), 1u);
  EXPECT_EQ(treeOf(none), Lines());
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_F(Schematics, CannotBeAddedWithoutAName) {
  CTervixNode* node = &*project;
  EXPECT_EQ(project->addSchematic(node, arg("")), 10119u);
  EXPECT_EQ(lastError(), "10119 Failed to add schematic \"\".");
  EXPECT_EQ(node, nullptr);
  EXPECT_EQ(treeOf(*project), Lines());
}

TEST_F(Schematics, AreDestroyedWhenDeleted) {
  addSchematic(*project, "A");
  addSchematic(*project, "B");
  addProfile(*project, "A", "tran");
  EXPECT_EQ(project->deleteSchematic(arg("a")), 0u);
  EXPECT_EQ(treeOf(*project), Lines{"B"});
  EXPECT_EQ(project->deleteSchematic(arg("A")), 1u);
}

TEST_F(Schematics, AreForgottenButNotDestroyedAllAtOnce) {
  CTervixSchematic* const top = addSchematic(*project, "TOP");
  addProfile(*project, "TOP", "tran");
  EXPECT_EQ(project->deleteAllSchematics(), 0u);
  EXPECT_EQ(treeOf(*project), Lines());
  EXPECT_EQ(nameOfNode(top), "TOP");
  int count = 0;
  top->numberOfProfiles(count);
  EXPECT_EQ(count, 1);
  delete top;
}

TEST_F(Schematics, LeaveTheClientsCursorWhereItIs) {
  for (const char* name : {"A", "B", "C"})
    addSchematic(*project, name);
  CTervixNode* node = nullptr;
  project->getTopSchematic(node);
  find("C");
  addSchematic(*project, "D");
  project->setRootSchematic(arg("C"));
  project->getRootSchematic(node);
  project->setActiveProfile(arg("x"));
  project->getNextSchematic(node);
  EXPECT_EQ(nameOfNode(node), "B");
}

// ---- While a rename is recorded ----

TEST_F(Schematics, AreFoundUnderTheirNewName) {
  CTervixSchematic* const a = addSchematic(*project, "A");
  project->setChangedName(arg("A"), arg("B"), RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(find("B"), 0u);
  EXPECT_EQ(found, a);
  EXPECT_EQ(nameOfNode(found), "A");
  EXPECT_EQ(find("A"), 0u);
  EXPECT_EQ(found, a);
}

TEST_F(Schematics, AreNotFoundUnderTheirNewNameInAnotherCase) {
  addSchematic(*project, "A");
  project->setChangedName(arg("A"), arg("B"), RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(find("b"), 1u);
  EXPECT_EQ(found, nullptr);
}

TEST_F(Schematics, OfTheNewNameComeBeforeTheRenamedOne) {
  addSchematic(*project, "A");
  CTervixSchematic* const b = addSchematic(*project, "B");
  project->setChangedName(arg("A"), arg("B"), RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(find("B"), 0u);
  EXPECT_EQ(found, b);
}

TEST_F(Schematics, AreNotAddedUnderTheirNewName) {
  CTervixSchematic* const a = addSchematic(*project, "A");
  project->setChangedName(arg("A"), arg("B"), RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(addSchematic(*project, "B"), a);
  EXPECT_EQ(treeOf(*project), Lines{"A"});
}

TEST_F(Schematics, IgnoreOtherAndUnfinishedRecords) {
  addSchematic(*project, "A");
  for (RENAME_TYPE kind :
       {RENAME_TYPE_NONE, RENAME_TYPE_PROFILE, RENAME_TYPE_DESIGN, RENAME_TYPE_PROJECT}) {
    project->setChangedName(arg("A"), arg("B"), kind);
    EXPECT_EQ(find("B"), 1u);
  }
  project->setChangedName(arg(""), arg("B"), RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(find("B"), 1u);
  project->setChangedName(arg("A"), arg(""), RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(find(""), 1u);
  project->setChangedName(arg("gone"), arg("B"), RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(find("B"), 1u);
  EXPECT_EQ(found, nullptr);
}

// ---- The root ----

TEST_F(Schematics, HaveNoRootAtFirst) {
  addSchematic(*project, "A");
  std::string name = "unset";
  EXPECT_EQ(project->getRootSchematic(name), 1u);
  EXPECT_EQ(name, "");
  CTervixNode* node = &*project;
  EXPECT_EQ(project->getRootSchematic(node), 1u);
  EXPECT_EQ(node, nullptr);
}

TEST_F(Schematics, HaveOneRoot) {
  for (const char* name : {"A", "B"})
    addSchematic(*project, name);
  EXPECT_EQ(project->setRootSchematic(arg("a")), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"A root", "B"}));
  EXPECT_EQ(project->setRootSchematic(arg("b")), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"A", "B root"}));
  std::string name;
  EXPECT_EQ(project->getRootSchematic(name), 0u);
  EXPECT_EQ(name, "b");
  CTervixNode* node = nullptr;
  EXPECT_EQ(project->getRootSchematic(node), 0u);
  EXPECT_EQ(nameOfNode(node), "B");
}

TEST_F(Schematics, KeepTheirRootForAnEmptyName) {
  addSchematic(*project, "A");
  project->setRootSchematic(arg("A"));
  EXPECT_EQ(project->setRootSchematic(arg("")), 0u);
  EXPECT_EQ(treeOf(*project), Lines{"A root"});
}

TEST_F(Schematics, AreUnmarkedForARootThatIsNotListed) {
  addSchematic(*project, "A");
  project->setRootSchematic(arg("A"));
  EXPECT_EQ(project->setRootSchematic(arg("GONE")), 0u);
  EXPECT_EQ(treeOf(*project), Lines{"A"});
  std::string name;
  EXPECT_EQ(project->getRootSchematic(name), 0u);
  EXPECT_EQ(name, "A");
}

TEST_F(Schematics, HaveNoRootNodeOnceItIsDeleted) {
  addSchematic(*project, "A");
  project->setRootSchematic(arg("A"));
  project->deleteSchematic(arg("A"));
  CTervixNode* node = &*project;
  EXPECT_EQ(project->getRootSchematic(node), 1u);
  EXPECT_EQ(node, nullptr);
}

TEST_F(Schematics, CanHaveAnyName) {
  for (const std::string& name : {std::string("%s%n"), std::string("\"q\""), std::string("a\nb"),
                                  std::string("\xc3\xa4\xff"), std::string(100000, 'x')}) {
    CTervixSchematic* const added = addSchematic(*project, name);
    EXPECT_EQ(find(name), 0u);
    EXPECT_EQ(found, added);
    EXPECT_EQ(nameOfNode(added), name);
  }
}

} // namespace
} // namespace tervix::testing
