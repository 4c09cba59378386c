#include "CTervixNodeList.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "CTervixProject.h"
#include "tests/model/ModelTree.h"
#include "tests/model/TestNode.h"

namespace tervix::testing {
namespace {

class NodeList : public ::testing::Test {
protected:
  NodeList() { forgetLastError(); }
  ~NodeList() override { list_.clear(); }

  // The nodes belong to the test; it empties the list before they go.
  TestNode* node(const std::string& name, const std::string& path = "") {
    nodes_.push_back(std::make_unique<TestNode>(name, path));
    return nodes_.back().get();
  }

  std::vector<CTervixNode*> listed() {
    std::vector<CTervixNode*> found;
    CTervixNode* current = nullptr;
    for (list_.getTopNode(current); current != nullptr; list_.getNextNode(current))
      found.push_back(current);
    return found;
  }

  std::vector<std::unique_ptr<TestNode>> nodes_;
  CTervixNodeList list_;
};

using Listed = std::vector<CTervixNode*>;

TEST_F(NodeList, IsEmptyAtFirst) {
  bool empty = false;
  int count = 7;
  EXPECT_EQ(list_.isEmpty(empty), 0U);
  EXPECT_TRUE(empty);
  EXPECT_EQ(list_.numberOfNodes(count), 1U);
  EXPECT_EQ(count, 0);
}

TEST_F(NodeList, CountsItsNodes) {
  list_.addNode(node("a"));
  list_.addNode(node("b"));
  bool empty = true;
  int count = 0;
  EXPECT_EQ(list_.isEmpty(empty), 0U);
  EXPECT_FALSE(empty);
  EXPECT_EQ(list_.numberOfNodes(count), 0U);
  EXPECT_EQ(count, 2);
}

TEST_F(NodeList, TakesNodesAtEitherEnd) {
  auto* a = node("a");
  auto* b = node("b");
  auto* c = node("c");
  EXPECT_EQ(list_.addNodeAtBack(a), 0U);
  EXPECT_EQ(list_.addNodeInFront(b), 0U);
  EXPECT_EQ(list_.addNode(c), 0U);
  EXPECT_EQ(listed(), (Listed{b, a, c}));
}

TEST_F(NodeList, RefusesANullNode) {
  EXPECT_EQ(list_.addNode(nullptr), 10111U);
  expectLastError(10111, "Node not initialized properly.");
  EXPECT_EQ(list_.addNodeInFront(nullptr), 10111U);
  EXPECT_EQ(list_.addNodeAtBack(nullptr), 10111U);
  EXPECT_EQ(listed(), Listed{});
}

TEST_F(NodeList, RefusesANodeWithoutAName) {
  EXPECT_EQ(list_.addNode(node("", "path")), 10111U);
  EXPECT_EQ(list_.addNodeInFront(node("", "path")), 10111U);
  expectLastError(10111, "Node not initialized properly.");
  EXPECT_EQ(listed(), Listed{});
}

TEST_F(NodeList, KeepsOneCellForNamesAndPathsThatDifferInCase) {
  auto* first = node("top", "C:/A/top.sim");
  list_.addNode(first);
  EXPECT_EQ(list_.addNode(node("TOP", "c:/a/TOP.SIM")), 0U);
  EXPECT_EQ(list_.addNodeInFront(node("Top", "C:/A/TOP.sim")), 0U);
  EXPECT_EQ(listed(), Listed{first});
  expectNoLastError();
}

TEST_F(NodeList, KeepsBothNodesOfOneNameWithDifferentPaths) {
  auto* first = node("top", "C:/a/top.sim");
  auto* second = node("TOP", "C:/b/top.sim");
  list_.addNode(first);
  EXPECT_EQ(list_.addNode(second), 0U);
  EXPECT_EQ(listed(), (Listed{first, second}));
}

TEST_F(NodeList, ComparesSeparatorsAsTheyStandWhenANodeIsAdded) {
  list_.addNode(node("top", "C:/a/top.sim"));
  EXPECT_EQ(list_.addNode(node("top", "C:\\a\\top.sim")), 0U);
  EXPECT_EQ(listed().size(), 2U);
}

TEST_F(NodeList, RefusesANodeWithoutAPathWhenItsNameIsPresent) {
  list_.addNode(node("top", "C:/a"));
  EXPECT_EQ(list_.addNode(node("top")), 10111U);
  expectLastError(10111, "Node not initialized properly.");
  EXPECT_EQ(listed().size(), 1U);
}

TEST_F(NodeList, CannotTellANodeFromOneWithoutAPath) {
  list_.addNode(node("top"));
  EXPECT_EQ(list_.addNode(node("top", "C:/a")), 1U);
  EXPECT_EQ(listed().size(), 1U);
  expectNoLastError();
}

TEST_F(NodeList, DeletesTheFirstNodeOfAName) {
  list_.addNode(new TestNode("top", "C:/a"));
  auto* second = node("TOP", "C:/b");
  list_.addNode(second);
  const int before = TestNode::alive;
  EXPECT_EQ(list_.deleteNode(text("Top")), 0U);
  EXPECT_EQ(TestNode::alive, before - 1);
  EXPECT_EQ(listed(), Listed{second});
}

TEST_F(NodeList, DeletesNothingUnderAnUnknownOrEmptyName) {
  auto* only = node("top");
  list_.addNode(only);
  EXPECT_EQ(list_.deleteNode(text("other")), 1U);
  EXPECT_EQ(list_.deleteNode(text("")), 1U);
  EXPECT_EQ(listed(), Listed{only});
  expectNoLastError();
}

TEST_F(NodeList, DropsTheCellOfAPathAndKeepsTheNode) {
  auto* a = node("a", "c:/A/b.sim");
  auto* b = node("b", "C:/a/c.sim");
  list_.addNode(a);
  list_.addNode(b);
  const int before = TestNode::alive;
  std::string path = "C:\\a\\b.sim";
  EXPECT_EQ(list_.deleteNodeWithPath(path, true), 0U);
  EXPECT_EQ(path, "C:/a/b.sim");
  EXPECT_EQ(TestNode::alive, before);
  EXPECT_EQ(listed(), Listed{b});
}

TEST_F(NodeList, DropsTheCellOfANodeThatIsNoProjectWithoutForce) {
  list_.addNode(node("a", "C:\\a\\b.sim"));
  EXPECT_EQ(list_.deleteNodeWithPath(text("c:/A/B.sim"), false), 0U);
  EXPECT_EQ(listed(), Listed{});
}

TEST_F(NodeList, DropsNothingUnderAnUnknownOrEmptyPath) {
  list_.addNode(node("a"));
  std::string path = "C:\\x";
  EXPECT_EQ(list_.deleteNodeWithPath(path, true), 1U);
  EXPECT_EQ(path, "C:/x");
  EXPECT_EQ(list_.deleteNodeWithPath(text(""), true), 1U);
  EXPECT_EQ(listed().size(), 1U);
}

class ProjectInNodeList : public NodeList {
protected:
  ProjectInNodeList() {
    project_.setName(text("prj"));
    project_.setPath(text("C:/p/prj.tvp"));
    list_.addNode(&project_);
  }
  ~ProjectInNodeList() override { list_.clear(); }

  unsigned int references() {
    unsigned int count = 99;
    project_.getRefCount(count);
    return count;
  }

  CTervixProject project_;
};

TEST_F(ProjectInNodeList, IsReleasedAndDroppedWithItsLastReference) {
  EXPECT_EQ(list_.deleteNodeWithPath(text("C:/p/prj.tvp"), false), 0U);
  EXPECT_EQ(references(), 0U);
  EXPECT_EQ(listed(), Listed{});
}

TEST_F(ProjectInNodeList, StaysWhileReferencesAreLeft) {
  project_.addRef();
  EXPECT_EQ(list_.deleteNodeWithPath(text("C:/p/prj.tvp"), false), 0U);
  EXPECT_EQ(references(), 1U);
  EXPECT_EQ(listed(), Listed{&project_});
}

TEST_F(ProjectInNodeList, IsReleasedAndDroppedByForceWhateverIsLeft) {
  project_.addRef();
  EXPECT_EQ(list_.deleteNodeWithPath(text("C:/p/prj.tvp"), true), 0U);
  EXPECT_EQ(references(), 1U);
  EXPECT_EQ(listed(), Listed{});
}

TEST_F(NodeList, ClearedDeletesNoNode) {
  const int before = TestNode::alive;
  TestNode kept("kept", "C:/a");
  TestNode other("other", "C:/b");
  {
    CTervixNodeList list;
    list.addNode(&kept);
    EXPECT_EQ(list.clear(), 0U);
    list.addNode(&other);
    EXPECT_EQ(list.deleteAllNodes(), 0U);
    int count = 7;
    EXPECT_EQ(list.numberOfNodes(count), 1U);
  }
  EXPECT_EQ(TestNode::alive, before + 2);
}

TEST_F(NodeList, DestroyedDeletesItsNodes) {
  const int before = TestNode::alive;
  {
    CTervixNodeList list;
    list.addNode(new TestNode("a"));
    list.addNode(new TestNode("b"));
    EXPECT_EQ(TestNode::alive, before + 2);
  }
  EXPECT_EQ(TestNode::alive, before);
}

// Two nodes of one name with different paths, and one of them added once more: it is compared
// with the first of that name only.
void listTwice(CTervixNodeList& list) {
  auto* twice = new TestNode("top", "C:/b");
  list.addNode(new TestNode("top", "C:/a"));
  list.addNode(twice);
  list.addNode(twice);
  int count = 0;
  list.numberOfNodes(count);
  ASSERT_EQ(count, 3);
}

TEST_F(NodeList, DestroysANodeThatIsListedTwiceOnce) {
  const int before = TestNode::alive;
  {
    CTervixNodeList list;
    listTwice(list);
  }
  EXPECT_EQ(TestNode::alive, before);
}

TEST_F(NodeList, LeavesNoCellOfADeletedNode) {
  const int before = TestNode::alive;
  {
    CTervixNodeList list;
    listTwice(list);
    list.deleteNode(text("top"));
    list.deleteNode(text("top"));
    int count = 7;
    EXPECT_EQ(list.numberOfNodes(count), 1U);
  }
  EXPECT_EQ(TestNode::alive, before);
}

TEST_F(NodeList, FindsTheFirstNodeOfAName) {
  auto* first = node("top", "C:/a");
  list_.addNode(node("other"));
  list_.addNode(first);
  list_.addNode(node("top", "C:/b"));
  CTervixNode* found = nullptr;
  EXPECT_EQ(list_.findNode(found, text("TOP")), 0U);
  EXPECT_EQ(found, first);
}

TEST_F(NodeList, FindsNullUnderAnUnknownOrEmptyName) {
  list_.addNode(node("top"));
  CTervixNode* found = nodes_[0].get();
  EXPECT_EQ(list_.findNode(found, text("other")), 1U);
  EXPECT_EQ(found, nullptr);
  found = nodes_[0].get();
  EXPECT_EQ(list_.findNode(found, text("")), 1U);
  EXPECT_EQ(found, nullptr);
}

TEST_F(NodeList, FindsANodeByItsPathWhateverCaseAndSeparator) {
  auto* first = node("a", "C:\\A/b.sim");
  list_.addNode(node("pathless"));
  list_.addNode(first);
  CTervixNode* found = nullptr;
  std::string path = "c:\\a\\B.SIM";
  EXPECT_EQ(list_.findNodeWithPath(found, path), 0U);
  EXPECT_EQ(found, first);
  EXPECT_EQ(path, "c:/a/B.SIM");
}

TEST_F(NodeList, FindsNullUnderAnUnknownOrEmptyPath) {
  list_.addNode(node("pathless"));
  CTervixNode* found = nodes_[0].get();
  EXPECT_EQ(list_.findNodeWithPath(found, text("C:/x")), 1U);
  EXPECT_EQ(found, nullptr);
  found = nodes_[0].get();
  EXPECT_EQ(list_.findNodeWithPath(found, text("")), 1U);
  EXPECT_EQ(found, nullptr);
}

TEST_F(NodeList, ComparesOtherBytesThanAsciiAsTheyAre) {
  list_.addNode(node("\xC3\x84", "C:/\xC3\x84"));
  CTervixNode* found = nullptr;
  EXPECT_EQ(list_.findNode(found, text("\xC3\xA4")), 1U);
  EXPECT_EQ(list_.findNode(found, text("\xC3\x84")), 0U);
  EXPECT_EQ(list_.addNode(node(std::string("\xC3\x84\0", 3), "C:/z")), 0U);
  EXPECT_EQ(listed().size(), 2U);
}

} // namespace
} // namespace tervix::testing
