#include <gtest/gtest.h>

#include "tests/project/LayoutTest.h"

// The profiles of a project by name, and which of them is active.

namespace tervix::testing {
namespace {

class Profiles : public ::testing::Test {
protected:
  unsigned long find(std::string schematic, std::string name) {
    node = &*project;
    return project->findProfile(node, schematic, name);
  }
  unsigned long add(CTervixProject& target, std::string schematic, std::string name) {
    node = &target;
    added = !added;
    return target.addProfile(node, added, schematic, name);
  }

  OpenedProject project{"/w/amp.tvp", 2, true};
  CTervixNode* node = nullptr;
  bool added = false;
};

TEST_F(Profiles, AreFoundInAnyCase) {
  CTervixProfile* const tran = addProfile(*project, "TOP", "tran");
  EXPECT_EQ(find("top", "TRAN"), 0u);
  EXPECT_EQ(node, tran);
}

TEST_F(Profiles, AreMissedWithOneAndNull) {
  addProfile(*project, "TOP", "tran");
  addProfile(*project, "SUB", "ac");
  recordOtherError();
  for (const auto& [schematic, name] :
       {std::pair{"TOP", "ac"}, std::pair{"GONE", "tran"}, std::pair{"", "tran"},
        std::pair{"TOP", ""}, std::pair{"", ""}}) {
    EXPECT_EQ(find(schematic, name), 1u) << schematic << name;
    EXPECT_EQ(node, nullptr);
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_F(Profiles, AreFoundUnderTheNewNameOfTheirSchematic) {
  CTervixProfile* const tran = addProfile(*project, "TOP", "tran");
  project->setChangedName(arg("TOP"), arg("NEW"), RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(find("NEW", "tran"), 0u);
  EXPECT_EQ(node, tran);
  EXPECT_EQ(find("new", "tran"), 1u);
}

TEST_F(Profiles, AreAddedWithTheirSchematic) {
  EXPECT_EQ(add(*project, "TOP", "tran"), 0u);
  EXPECT_TRUE(added);
  EXPECT_EQ(nameOfNode(node), "tran");
  EXPECT_EQ(treeOf(*project), (Lines{"TOP", "  tran TOP-tran"}));
}

TEST_F(Profiles, AreNotAddedTwice) {
  CTervixProfile* const tran = addProfile(*project, "TOP", "tran");
  added = false;
  EXPECT_EQ(add(*project, "TOP", "tran"), 0u);
  EXPECT_TRUE(added);
  EXPECT_EQ(node, tran);
  added = false;
  EXPECT_EQ(add(*project, "top", "TRAN"), 0u);
  EXPECT_TRUE(added);
  EXPECT_EQ(node, tran);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP", "  tran TOP-tran"}));
}

TEST_F(Profiles, HaveADisplayNameAsTheClientSpellsIt) {
  addSchematic(*project, "Top");
  add(*project, "TOP", "tran");
  EXPECT_EQ(treeOf(*project), (Lines{"Top", "  tran TOP-tran"}));
}

TEST_F(Profiles, OfTheOtherFrontEndHaveNoDisplayName) {
  OpenedProject other("/w/amp/tvx_sim_1/amp.tvp", 1);
  EXPECT_EQ(add(*other, "amp", "tran"), 0u);
  EXPECT_TRUE(added);
  EXPECT_EQ(treeOf(*other), (Lines{"amp", "  tran"}));
}

TEST_F(Profiles, CannotBeAddedWithoutAFrontEnd) {
  CTervixProject none;
  added = false;
  EXPECT_EQ(add(none, "TOP", "tran"), 1u);
  EXPECT_FALSE(added);
  EXPECT_EQ(node, nullptr);
  none.setFrontEndId(static_cast<FRONTEND_ID>(3));
  EXPECT_EQ(add(none, "TOP", "tran"), 1u);
  EXPECT_FALSE(added);
  EXPECT_EQ(node, nullptr);
}

TEST_F(Profiles, CannotBeAddedWithoutAName) {
  added = true;
  EXPECT_EQ(add(*project, "TOP", ""), 1u);
  EXPECT_FALSE(added);
  EXPECT_EQ(node, nullptr);
  EXPECT_EQ(lastError(), "10115 Failed to add profile \"\".");
  EXPECT_EQ(add(*project, "", "tran"), 10119u);
  EXPECT_FALSE(added);
  EXPECT_EQ(node, nullptr);
  EXPECT_EQ(lastError(), "10119 Failed to add schematic \"\".");
}

TEST_F(Profiles, MakeNoFile) {
  const TemporaryFolder folder;
  folder.folder("amp-TervixFiles");
  const auto before = snapshotOf(folder.path());
  OpenedProject other(folder.path("amp.tvp"), 2);
  add(*other, "TOP", "tran");
  EXPECT_EQ(snapshotOf(folder.path()), before);
}

class ProfilePaths : public LayoutTest {};
TERVIX_IN_EACH_LAYOUT(ProfilePaths);

TEST_P(ProfilePaths, FollowTheLayout) {
  OpenedProject project(write(), frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  ProjectPlan plan;
  plan.profiles = {{isDesignFrontEnd() ? "TOP" : "amp", "fresh"}};
  CTervixProfile* const profile = addProfile(*project, plan.profiles[0].schematic, "fresh");
  EXPECT_EQ(textOf(*profile, &CTervixNode::getPath), simPath(plan));
}

// ---- Under the root schematic ----

TEST_F(Profiles, AreAddedUnderTheRoot) {
  addSchematic(*project, "A");
  addSchematic(*project, "B");
  project->setRootSchematic(arg("B"));
  EXPECT_EQ(project->addProfileToRootSchematic(node, arg("tran")), 0u);
  EXPECT_EQ(nameOfNode(node), "tran");
  EXPECT_EQ(project->addProfileToRootSchematic(arg("ac")), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"A", "B root", "  tran B-tran", "  ac B-ac"}));
  CTervixNode* again = nullptr;
  EXPECT_EQ(project->addProfileToRootSchematic(again, arg("TRAN")), 0u);
  EXPECT_EQ(again, node);
  EXPECT_EQ(project->addProfileToRootSchematic(arg("AC")), 0u);
  EXPECT_EQ(treeOf(*project).size(), 4u);
}

TEST_F(Profiles, CannotBeAddedUnderAMissingRoot) {
  addSchematic(*project, "A");
  node = &*project;
  EXPECT_EQ(project->addProfileToRootSchematic(node, arg("tran")), 1u);
  EXPECT_EQ(node, nullptr);
  EXPECT_EQ(project->addProfileToRootSchematic(arg("tran")), 1u);
  EXPECT_EQ(treeOf(*project), Lines{"A"});
}

// ---- The active profile ----

class ActiveProfile : public ::testing::Test {
protected:
  ActiveProfile() {
    addProfile(*project, "TOP", "tran");
    addProfile(*project, "TOP", "ac");
    addProfile(*project, "SUB", "dc");
    project->setRootSchematic(arg("TOP"));
  }
  std::string name() {
    std::string text = "unset";
    EXPECT_EQ(project->getActiveProfile(text), text.empty() ? 1u : 0u);
    return text;
  }

  OpenedProject project{"/w/amp.tvp", 2, true};
};

TEST_F(ActiveProfile, IsNoneInANewProject) {
  std::string text = "unset";
  EXPECT_EQ(CTervixProject().getActiveProfile(text), 1u);
  EXPECT_EQ(text, "");
  CTervixNode* node = &*project;
  EXPECT_EQ(CTervixProject().getActiveProfile(node), 1u);
  EXPECT_EQ(node, nullptr);
}

TEST_F(ActiveProfile, IsOneOfTheRoot) {
  EXPECT_EQ(project->setActiveProfile(arg("top-TRAN")), 0u);
  EXPECT_EQ(treeOf(*project),
            (Lines{"TOP root", "  tran TOP-tran active", "  ac TOP-ac", "SUB", "  dc SUB-dc"}));
  EXPECT_EQ(name(), "top-TRAN");
  CTervixNode* node = nullptr;
  EXPECT_EQ(project->getActiveProfile(node), 0u);
  EXPECT_EQ(nameOfNode(node), "tran");
}

TEST_F(ActiveProfile, GivesWayToAnother) {
  project->setActiveProfile(arg("TOP-tran"));
  EXPECT_EQ(project->setActiveProfile(arg("TOP-ac")), 0u);
  EXPECT_EQ(treeOf(*project),
            (Lines{"TOP root", "  tran TOP-tran", "  ac TOP-ac active", "SUB", "  dc SUB-dc"}));
  EXPECT_EQ(name(), "TOP-ac");
}

TEST_F(ActiveProfile, OutsideTheRootOnlyUnmarksTheRootsOwn) {
  project->setActiveProfile(arg("TOP-tran"));
  EXPECT_EQ(project->setActiveProfile(arg("SUB-dc")), 0u);
  EXPECT_EQ(treeOf(*project),
            (Lines{"TOP root", "  tran TOP-tran", "  ac TOP-ac", "SUB", "  dc SUB-dc"}));
  EXPECT_EQ(name(), "TOP-tran");
  CTervixNode* node = &*project;
  EXPECT_EQ(project->getActiveProfile(node), 10116u);
  EXPECT_EQ(node, nullptr);
  EXPECT_EQ(lastError(), "10116 Active profile is not associated with schematic \"TOP\".");
}

TEST_F(ActiveProfile, OfOtherSchematicsIsNotTouched) {
  profileIn(*project, "SUB", "dc")->setActive(true);
  project->setActiveProfile(arg("TOP-ac"));
  EXPECT_EQ(treeOf(*project), (Lines{"TOP root", "  tran TOP-tran", "  ac TOP-ac active", "SUB",
                                     "  dc SUB-dc active"}));
}

TEST_F(ActiveProfile, StaysForAnEmptyName) {
  project->setActiveProfile(arg("TOP-tran"));
  EXPECT_EQ(project->setActiveProfile(arg("")), 0u);
  EXPECT_EQ(name(), "TOP-tran");
  EXPECT_EQ(treeOf(*project)[1], "  tran TOP-tran active");
}

TEST_F(ActiveProfile, NeedsARoot) {
  OpenedProject other("/w/amp.tvp", 2, true);
  addProfile(*other, "TOP", "tran");
  EXPECT_EQ(other->setActiveProfile(arg("TOP-tran")), 1u);
  EXPECT_EQ(treeOf(*other), (Lines{"TOP", "  tran TOP-tran"}));
}

TEST_F(ActiveProfile, NeedsASchematicThatIsMarkedAsRoot) {
  schematicIn(*project, "TOP")->setRoot(false);
  CTervixNode* node = &*project;
  EXPECT_EQ(project->getActiveProfile(node), 10117u);
  EXPECT_EQ(node, nullptr);
  EXPECT_EQ(lastError(), "10117 \"TOP\" is not the root schematic. Active profile can only be "
                         "associated with the root.");
}

TEST_F(ActiveProfile, LeavesTheClientsCursorWhereItIs) {
  CTervixSchematic* const top = schematicIn(*project, "TOP");
  CTervixNode* node = nullptr;
  top->getTopProfile(node);
  project->setActiveProfile(arg("TOP-ac"));
  CTervixNode* active = nullptr;
  project->getActiveProfile(active);
  top->getNextProfile(node);
  EXPECT_EQ(nameOfNode(node), "ac");
}

} // namespace
} // namespace tervix::testing
