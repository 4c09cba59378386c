#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "CTervixNodeList.h"
#include "tests/model/ModelTree.h"
#include "tests/model/TestNode.h"

namespace tervix::testing {
namespace {

// A list of the three nodes a, b and c.
class NodeListCursor : public ::testing::Test {
protected:
  NodeListCursor() {
    for (CTervixNode* node : {&a_, &b_, &c_})
      list_.addNode(node);
  }
  ~NodeListCursor() override { list_.clear(); }

  static CTervixNode* top(CTervixNodeList& list) {
    CTervixNode* node = nullptr;
    EXPECT_EQ(list.getTopNode(node), 0U);
    return node;
  }
  static CTervixNode* next(CTervixNodeList& list) {
    CTervixNode* node = nullptr;
    EXPECT_EQ(list.getNextNode(node), 0U);
    return node;
  }

  TestNode a_{"a", "C:/a"};
  TestNode b_{"b", "C:/b"};
  TestNode c_{"c", "C:/c"};
  CTervixNodeList list_;
};

TEST_F(NodeListCursor, WalksFromTheTopAndStaysAtTheEnd) {
  EXPECT_EQ(top(list_), &a_);
  EXPECT_EQ(next(list_), &b_);
  EXPECT_EQ(next(list_), &c_);
  EXPECT_EQ(next(list_), nullptr);
  EXPECT_EQ(next(list_), nullptr);
  EXPECT_EQ(top(list_), &a_);
}

TEST_F(NodeListCursor, OfAnEmptyListYieldsNull) {
  CTervixNodeList empty;
  CTervixNode* node = &a_;
  EXPECT_EQ(empty.getTopNode(node), 0U);
  EXPECT_EQ(node, nullptr);
  node = &a_;
  EXPECT_EQ(empty.getNextNode(node), 0U);
  EXPECT_EQ(node, nullptr);
  EXPECT_EQ(empty.rewind(), 1U);
}

TEST_F(NodeListCursor, OfAFreshListStandsAtTheEnd) {
  EXPECT_EQ(next(list_), nullptr);
}

TEST_F(NodeListCursor, RewoundYieldsTheSecondNodeNext) {
  EXPECT_EQ(list_.rewind(), 0U);
  EXPECT_EQ(next(list_), &b_);
  EXPECT_EQ(next(list_), &c_);
  EXPECT_EQ(next(list_), nullptr);
}

TEST_F(NodeListCursor, DoesNotMoveWhenANodeIsInserted) {
  TestNode front("front");
  TestNode back("back");
  top(list_);
  next(list_);
  list_.addNodeInFront(&front);
  list_.addNodeAtBack(&back);
  EXPECT_EQ(next(list_), &c_);
  EXPECT_EQ(next(list_), &back);
  EXPECT_EQ(next(list_), nullptr);
}

TEST_F(NodeListCursor, DoesNotMoveWhenANodeIsLookedFor) {
  CTervixNode* found = nullptr;
  top(list_);
  list_.findNode(found, text("c"));
  list_.findNodeWithPath(found, text("C:/c"));
  EXPECT_EQ(next(list_), &b_);
}

TEST_F(NodeListCursor, StandsAtTheEndWhenItsCellIsRemoved) {
  top(list_);
  list_.deleteNodeWithPath(text("C:/a"), true);
  EXPECT_EQ(next(list_), nullptr);
  EXPECT_EQ(top(list_), &b_);
  list_.clear();
  EXPECT_EQ(next(list_), nullptr);
}

TEST_F(NodeListCursor, StandsAtTheEndWhenItsNodeIsDeleted) {
  list_.addNodeInFront(new TestNode("gone"));
  top(list_);
  list_.deleteNode(text("gone"));
  EXPECT_EQ(next(list_), nullptr);
}

TEST_F(NodeListCursor, StaysWhenAnotherCellIsRemoved) {
  top(list_);
  list_.deleteNodeWithPath(text("C:/b"), true);
  EXPECT_EQ(next(list_), &c_);
}

TEST_F(NodeListCursor, OfACopyStandsAtTheSamePlaceOfItsOwnCells) {
  top(list_);
  next(list_);
  CTervixNodeList copy(list_);
  list_.clear();
  EXPECT_EQ(next(copy), &c_);
  EXPECT_EQ(top(copy), &a_);
  int count = 0;
  EXPECT_EQ(copy.numberOfNodes(count), 0U);
  EXPECT_EQ(count, 3);
  copy.clear();
}

TEST_F(NodeListCursor, OfACopyAtTheEndStandsAtItsEnd) {
  CTervixNodeList copy(list_);
  EXPECT_EQ(next(copy), nullptr);
  copy.clear();
}

TEST_F(NodeListCursor, StaysWithItsCellWhenTheListIsAssigned) {
  TestNode x("x");
  TestNode y("y");
  CTervixNodeList other;
  other.addNode(&x);
  other.addNode(&y);
  top(list_);
  EXPECT_EQ(&(list_ = other), &list_);
  EXPECT_EQ(next(list_), &y);
  EXPECT_EQ(next(list_), nullptr);
  EXPECT_EQ(top(list_), &x);
  other.clear();
}

TEST_F(NodeListCursor, StandsAtTheEndWhenAssignmentRemovesItsCell) {
  TestNode x("x");
  CTervixNodeList other;
  other.addNode(&x);
  top(list_);
  next(list_);
  list_ = other;
  EXPECT_EQ(next(list_), nullptr);
  int count = 0;
  list_.numberOfNodes(count);
  EXPECT_EQ(count, 1);
  other.clear();
}

TEST_F(NodeListCursor, SurvivesAssignmentOfTheListToItself) {
  CTervixNodeList& same = list_;
  top(list_);
  list_ = same;
  EXPECT_EQ(next(list_), &b_);
}

TEST_F(NodeListCursor, AssignmentOfALongerListAppends) {
  CTervixNodeList shorter;
  TestNode x("x");
  shorter.addNode(&x);
  const int before = TestNode::alive;
  shorter = list_;
  EXPECT_EQ(TestNode::alive, before);
  EXPECT_EQ(top(shorter), &a_);
  EXPECT_EQ(next(shorter), &b_);
  EXPECT_EQ(next(shorter), &c_);
  shorter.clear();
}

TEST_F(NodeListCursor, AssignmentOfAnEmptyListDeletesNoNode) {
  const int before = TestNode::alive;
  list_ = CTervixNodeList();
  EXPECT_EQ(TestNode::alive, before);
  EXPECT_EQ(top(list_), nullptr);
}

} // namespace
} // namespace tervix::testing
