#include <string>

#include <gtest/gtest.h>

#include "CTervixProject.h"
#include "tests/model/ModelTree.h"
#include "tests/model/TestNode.h"

namespace tervix::testing {
namespace {

TEST(Node, IsFreshWithEveryFieldUnset) {
  TestNode node;
  std::string value = "before";
  EXPECT_EQ(node.getName(value), 1U);
  EXPECT_EQ(value, "");
  value = "before";
  EXPECT_EQ(node.getPath(value), 1U);
  EXPECT_EQ(value, "");
  value = "before";
  EXPECT_EQ(node.getFolderPath(value), 1U);
  EXPECT_EQ(value, "");
}

TEST(Node, LeavesAnOutputThatIsNoTextAsItWasWhenUnset) {
  TestNode node;
  NODE_TYPE type = NODE_TYPE_PROFILE;
  FRONTEND_ID frontEnd = FRONTEND_ID_DESIGN_FILE;
  PROJECT_TYPE projectType = PROJECT_TYPE_OTHER;
  CTervixNode* parent = &node;
  EXPECT_EQ(node.getType(type), 1U);
  EXPECT_EQ(node.getFrontEndId(frontEnd), 1U);
  EXPECT_EQ(node.getProjectType(projectType), 1U);
  EXPECT_EQ(node.getParent(parent), 1U);
  EXPECT_EQ(type, NODE_TYPE_PROFILE);
  EXPECT_EQ(frontEnd, FRONTEND_ID_DESIGN_FILE);
  EXPECT_EQ(projectType, PROJECT_TYPE_OTHER);
  EXPECT_EQ(parent, &node);
}

// Fills every field of a node.
void fill(CTervixNode& node, CTervixNode& parent) {
  EXPECT_EQ(node.setName(text("name")), 0U);
  EXPECT_EQ(node.setPath(text("path")), 0U);
  EXPECT_EQ(node.setFolderPath(text("folder")), 0U);
  EXPECT_EQ(node.setType(NODE_TYPE_SCHEMATIC), 0U);
  EXPECT_EQ(node.setFrontEndId(FRONTEND_ID_PROJECT_FILE), 0U);
  EXPECT_EQ(node.setProjectType(PROJECT_TYPE_SIMULATION), 0U);
  EXPECT_EQ(node.setParent(&parent), 0U);
}

void expectFilled(CTervixNode& node, const CTervixNode& parent) {
  EXPECT_EQ(nameOf(node), "name");
  EXPECT_EQ(pathOf(node), "path");
  EXPECT_EQ(folderOf(node), "folder");
  NODE_TYPE type = NODE_TYPE_UNSET;
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  PROJECT_TYPE projectType = PROJECT_TYPE_UNSET;
  CTervixNode* above = nullptr;
  EXPECT_EQ(node.getType(type), 0U);
  EXPECT_EQ(node.getFrontEndId(frontEnd), 0U);
  EXPECT_EQ(node.getProjectType(projectType), 0U);
  EXPECT_EQ(node.getParent(above), 0U);
  EXPECT_EQ(type, NODE_TYPE_SCHEMATIC);
  EXPECT_EQ(frontEnd, FRONTEND_ID_PROJECT_FILE);
  EXPECT_EQ(projectType, PROJECT_TYPE_SIMULATION);
  EXPECT_EQ(above, &parent);
}

TEST(Node, KeepsWhatIsSet) {
  TestNode parent;
  TestNode node;
  fill(node, parent);
  expectFilled(node, parent);
}

TEST(Node, IgnoresUnsetValues) {
  TestNode parent;
  TestNode node;
  fill(node, parent);
  EXPECT_EQ(node.setName(text("")), 0U);
  EXPECT_EQ(node.setPath(text("")), 0U);
  EXPECT_EQ(node.setFolderPath(text("")), 0U);
  EXPECT_EQ(node.setType(NODE_TYPE_UNSET), 0U);
  EXPECT_EQ(node.setFrontEndId(FRONTEND_ID_UNSET), 0U);
  EXPECT_EQ(node.setProjectType(PROJECT_TYPE_UNSET), 0U);
  EXPECT_EQ(node.setParent(nullptr), 0U);
  expectFilled(node, parent);
}

TEST(Node, IsCopiedWithEveryField) {
  TestNode parent;
  TestNode node;
  fill(node, parent);
  TestNode copy(node);
  expectFilled(copy, parent);
}

TEST(Node, IsNotChangedByAssignmentOrClone) {
  TestNode parent;
  TestNode node;
  TestNode target("target", "target path");
  fill(node, parent);
  EXPECT_EQ(&static_cast<CTervixNode&>(target).operator=(node), &target);
  EXPECT_EQ(target.clone(node), 0U);
  EXPECT_EQ(nameOf(target), "target");
  EXPECT_EQ(pathOf(target), "target path");
  EXPECT_EQ(folderOf(target), "-");
  expectFilled(node, parent);
}

template <class Element> void expectAssignmentToDoNothing() {
  Element source;
  Element target;
  source.setName(text("source"));
  EXPECT_EQ(&(target = source), &target);
  EXPECT_EQ(target.clone(source), 0U);
  EXPECT_EQ(nameOf(target), "-");
}

TEST(Node, OfEveryClassIsNotChangedByAssignmentOrClone) {
  expectAssignmentToDoNothing<CTervixProfile>();
  expectAssignmentToDoNothing<CTervixSchematic>();
  expectAssignmentToDoNothing<CTervixProject>();
}

template <class Element> void expectParentToBeThatOfTheNode() {
  TestNode above;
  Element element;
  CTervixNode* parent = nullptr;
  EXPECT_EQ(element.getParent(parent), 1U);
  EXPECT_EQ(element.setParent(&above), 0U);
  EXPECT_EQ(element.setParent(nullptr), 0U);
  EXPECT_EQ(element.getParent(parent), 0U);
  EXPECT_EQ(parent, &above);
}

TEST(Node, OfEveryClassHasTheParentOfANode) {
  expectParentToBeThatOfTheNode<CTervixProfile>();
  expectParentToBeThatOfTheNode<CTervixSchematic>();
  expectParentToBeThatOfTheNode<CTervixProject>();
}

TEST(Node, OfEveryClassKnowsItsKind) {
  NODE_TYPE type = NODE_TYPE_UNSET;
  EXPECT_EQ(CTervixProject().getType(type), 0U);
  EXPECT_EQ(type, NODE_TYPE_PROJECT);
  EXPECT_EQ(CTervixSchematic().getType(type), 0U);
  EXPECT_EQ(type, NODE_TYPE_SCHEMATIC);
  EXPECT_EQ(CTervixProfile().getType(type), 0U);
  EXPECT_EQ(type, NODE_TYPE_PROFILE);
}

TEST(Node, ValuesOfTheEnumerationsAreFixed) {
  EXPECT_EQ(NODE_TYPE_PROJECT, 1);
  EXPECT_EQ(NODE_TYPE_SCHEMATIC, 2);
  EXPECT_EQ(NODE_TYPE_PROFILE, 3);
  EXPECT_EQ(FRONTEND_ID_PROJECT_FILE, 1);
  EXPECT_EQ(FRONTEND_ID_DESIGN_FILE, 2);
  EXPECT_EQ(PROJECT_TYPE_OTHER, 1);
  EXPECT_EQ(PROJECT_TYPE_SIMULATION, 2);
}

class NodeFolder : public ::testing::Test {
protected:
  NodeFolder() { forgetLastError(); }

  unsigned long create(PROJECT_TYPE type, const std::string& path) {
    TestNode node;
    node.setProjectType(type);
    node.setFolderPath(text(std::string(path)));
    created_ = "before";
    return node.createFolder(created_);
  }

  const TemporaryFolder folder_;
  std::string created_;
};

TEST_F(NodeFolder, IsMadeForASimulationProject) {
  EXPECT_EQ(create(PROJECT_TYPE_SIMULATION, folder_.path("TOP")), 0U);
  EXPECT_EQ(created_, folder_.path("TOP"));
  EXPECT_TRUE(isFolder(folder_.path("TOP")));
  EXPECT_EQ(create(PROJECT_TYPE_SIMULATION, folder_.path("TOP")), 0U);
}

TEST_F(NodeFolder, IsNotMadeForAnyOtherProject) {
  for (const PROJECT_TYPE type : {PROJECT_TYPE_OTHER, PROJECT_TYPE_UNSET}) {
    EXPECT_EQ(create(type, folder_.path("TOP")), 1U);
    EXPECT_EQ(created_, "");
  }
  EXPECT_FALSE(isFolder(folder_.path("TOP")));
  expectNoLastError();
}

TEST_F(NodeFolder, NeedsAPath) {
  EXPECT_EQ(create(PROJECT_TYPE_SIMULATION, ""), 1U);
  EXPECT_EQ(created_, "");
  expectNoLastError();
}

TEST_F(NodeFolder, ThatCannotBeMadeRecordsItsPath) {
  const std::string path = folder_.path("missing/TOP");
  EXPECT_EQ(create(PROJECT_TYPE_SIMULATION, path), 10102U);
  expectLastError(10102, "Failed to create directory \"" + path +
                             "\". Check write permissions on the parent directory.");
  EXPECT_FALSE(isFolder(folder_.path("missing")));
}

} // namespace
} // namespace tervix::testing
