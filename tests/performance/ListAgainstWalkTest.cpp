#include <algorithm>
#include <functional>
#include <list>

#include <gtest/gtest.h>

#include "CTervixNodeList.h"
#include "tests/model/TestNode.h"
#include "tests/performance/PlainWalk.h"

namespace tervix::testing {
namespace {

using Matches = std::function<bool(const CTervixNode&)>;

// A list beside the vector that it should be alike.
class ListAgainstWalk : public ::testing::TestWithParam<unsigned int> {
protected:
  ~ListAgainstWalk() override { list_.clear(); }

  CTervixNode* first(const Matches& matches) const {
    const auto found = std::find_if(expected_.begin(), expected_.end(),
                                    [&](CTervixNode* node) { return matches(*node); });
    return found == expected_.end() ? nullptr : *found;
  }
  CTervixNode* named(const std::string& name) const {
    return first([&](const CTervixNode& node) { return isNamed(node, name); });
  }
  CTervixNode* at(const std::string& path) const {
    return first([&](const CTervixNode& node) { return liesAt(node, path); });
  }

  void add() {
    CTervixNode* const node =
        texts_.oneIn(4) && !expected_.empty() ? any() : new TestNode(texts_.name(), texts_.path());
    const CTervixNode* const present = named(plainName(*node));
    const bool goesIn =
        present == nullptr ||
        (!plainPath(*present).empty() && !plainlyEqual(plainPath(*present), plainPath(*node)));
    const bool inFront = texts_.oneIn(2);
    if (inFront)
      list_.addNodeInFront(node);
    else
      list_.addNodeAtBack(node);
    if (goesIn)
      expected_.insert(inFront ? expected_.begin() : expected_.end(), node);
    else if (std::find(expected_.begin(), expected_.end(), node) == expected_.end())
      delete node;
  }

  void rename() {
    if (expected_.empty())
      return;
    std::string text = texts_.oneIn(2) ? texts_.name() : texts_.path();
    if (text.find_first_of("/\\") == std::string::npos)
      any()->setName(text);
    else
      any()->setPath(text);
  }

  void removeByName() {
    std::string name = texts_.name();
    CTervixNode* const node = named(name);
    EXPECT_EQ(list_.deleteNode(name), node != nullptr ? 0U : 1U);
    expected_.erase(std::remove(expected_.begin(), expected_.end(), node), expected_.end());
  }

  void removeByPath() {
    std::string path = texts_.path();
    CTervixNode* const node = at(path);
    EXPECT_EQ(list_.deleteNodeWithPath(path, false), node != nullptr ? 0U : 1U);
    const auto cell = std::find(expected_.begin(), expected_.end(), node);
    if (cell == expected_.end())
      return;
    expected_.erase(cell);
    if (std::find(expected_.begin(), expected_.end(), node) == expected_.end())
      delete node;
  }

  // Copies share the nodes, and are told of their changes as well.
  void copy() {
    CTervixNodeList other(list_);
    if (texts_.oneIn(2))
      list_ = other;
    other.clear();
  }

  CTervixNode* any() {
    return expected_[static_cast<std::size_t>(texts_.below(static_cast<int>(expected_.size())))];
  }

  void compare() {
    std::vector<CTervixNode*> listed;
    CTervixNode* node = nullptr;
    for (list_.getTopNode(node); node != nullptr; list_.getNextNode(node))
      listed.push_back(node);
    ASSERT_EQ(listed, expected_);
    std::string name = texts_.name();
    std::string path = texts_.path();
    list_.findNode(node, name);
    ASSERT_EQ(node, named(name)) << name;
    list_.findNodeWithPath(node, path);
    ASSERT_EQ(node, at(path)) << path;
  }

  RandomTexts texts_{GetParam()};
  CTervixNodeList list_;
  std::vector<CTervixNode*> expected_;
};

TEST_P(ListAgainstWalk, FindsTheSameNodes) {
  for (int step = 0; step < 1500 && !HasFatalFailure(); ++step) {
    switch (texts_.below(8)) {
    case 0:
      removeByName();
      break;
    case 1:
      removeByPath();
      break;
    case 2:
    case 3:
      rename();
      break;
    case 4:
      copy();
      break;
    default:
      add();
    }
    compare();
  }
  std::sort(expected_.begin(), expected_.end());
  expected_.erase(std::unique(expected_.begin(), expected_.end()), expected_.end());
  list_.clear();
  for (const CTervixNode* node : expected_)
    delete node;
}

INSTANTIATE_TEST_SUITE_P(Seeds, ListAgainstWalk, ::testing::Range(0U, 20U));

TEST(ListedNodes, CanBeDestroyedBeforeACopyOfTheirList) {
  CTervixNodeList copy;
  {
    CTervixNodeList list;
    list.addNode(new TestNode("a", "/a"));
    list.addNode(new TestNode("b", "/b"));
    copy = list;
    CTervixNode* found = nullptr;
    EXPECT_EQ(copy.findNode(found, arg("A")), 0U);
  }
  CTervixNode* found = nullptr;
  EXPECT_EQ(copy.findNode(found, arg("a")), 1U);
  copy.clear();
}

TEST(ListedNodes, AreNotListedByTheirCopies) {
  CTervixNodeList list;
  auto* const node = new TestNode("a", "/a");
  list.addNode(node);
  TestNode copy(*node);
  copy.setName(arg("b"));
  CTervixNode* found = nullptr;
  EXPECT_EQ(list.findNode(found, arg("b")), 1U);
  EXPECT_EQ(list.findNode(found, arg("a")), 0U);
}

TEST(ListedNodes, OfOneNameAreFoundInListOrderAsTheyGo) {
  CTervixNodeList list;
  std::list<TestNode*> nodes;
  for (int i = 0; i < 100; ++i) {
    auto* const node = new TestNode(i % 2 == 0 ? "same" : "SAME", "/" + std::to_string(i));
    if (i % 3 == 0) {
      list.addNodeInFront(node);
      nodes.push_front(node);
    } else {
      list.addNodeAtBack(node);
      nodes.push_back(node);
    }
  }
  for (; !nodes.empty(); nodes.pop_front()) {
    CTervixNode* found = nullptr;
    list.findNode(found, arg("Same"));
    ASSERT_EQ(found, nodes.front());
    list.deleteNode(arg("Same"));
  }
}

} // namespace
} // namespace tervix::testing
