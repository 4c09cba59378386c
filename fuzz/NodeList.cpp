// A list of nodes beside a plain vector: any sequence of operations.

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <functional>
#include <set>
#include <vector>

#include "CTervixNodeList.h"
#include "fuzz/support/Workplace.h"
#include "tests/model/TestNode.h"
#include "tests/performance/PlainWalk.h"

namespace {

using tervix::fuzz::require;
using tervix::testing::TestNode;
using Nodes = std::vector<CTervixNode*>;

const char* const kNames[] = {"a", "A", "b", "aB", "Ab", "", "ab1", "\xC4", "\xE4", "longer name"};
const char* const kPaths[] = {"/a", "\\A", "/b/a.sim", "\\b\\A.sim", "", "c:/x", "C:\\X"};

class ListBesideVector {
public:
  explicit ListBesideVector(FuzzedDataProvider& input) : input_(input) {}
  ~ListBesideVector() {
    if (input_.ConsumeBool()) // who destroys the nodes: the list, or we
      list_.clear();
    else
      std::for_each(expected_.begin(), expected_.end(),
                    [&](CTervixNode* node) { all_.erase(node); });
    for (const CTervixNode* node : all_)
      delete node;
  }

  void step() {
    const auto steps = {&ListBesideVector::add,          &ListBesideVector::add,
                        &ListBesideVector::change,       &ListBesideVector::deleteByName,
                        &ListBesideVector::removeByPath, &ListBesideVector::copy,
                        &ListBesideVector::iterate,      &ListBesideVector::destroyUnlisted};
    const auto chosen = input_.ConsumeIntegralInRange<std::size_t>(0, steps.size() - 1);
    (this->**(steps.begin() + chosen))();
    compare();
  }

private:
  std::string name() { return input_.PickValueInArray(kNames); }
  std::string path() { return input_.PickValueInArray(kPaths); }
  CTervixNode* anyOf(const Nodes& nodes) {
    return nodes.empty() ? nullptr
                         : nodes[input_.ConsumeIntegralInRange<std::size_t>(0, nodes.size() - 1)];
  }
  CTervixNode* first(const std::function<bool(const CTervixNode&)>& matches) const {
    const auto found = std::find_if(expected_.begin(), expected_.end(),
                                    [&](CTervixNode* node) { return matches(*node); });
    return found == expected_.end() ? nullptr : *found;
  }
  CTervixNode* named(const std::string& name) const {
    return first([&](const auto& node) { return tervix::testing::isNamed(node, name); });
  }
  CTervixNode* at(const std::string& path) const {
    return first([&](const auto& node) { return tervix::testing::liesAt(node, path); });
  }

  // What the header of the list promises, word by word.
  unsigned long expectedStatusOfAdding(CTervixNode* node, bool& goesIn) const {
    using tervix::testing::plainName;
    using tervix::testing::plainPath;
    goesIn = false;
    if (node == nullptr || plainName(*node).empty())
      return 10111;
    const CTervixNode* const present = named(plainName(*node));
    if (present == nullptr) {
      goesIn = true;
      return 0;
    }
    if (plainPath(*node).empty())
      return 10111;
    if (plainPath(*present).empty())
      return 1;
    goesIn = !tervix::testing::plainlyEqual(plainPath(*present), plainPath(*node));
    return 0;
  }

  void add() {
    CTervixNode* node = anyOf(expected_);
    if (node == nullptr || input_.ConsumeBool()) {
      node = new TestNode(name(), path());
      all_.insert(node);
    }
    bool goesIn = false;
    const unsigned long status = expectedStatusOfAdding(node, goesIn);
    const bool inFront = input_.ConsumeBool();
    require((inFront ? list_.addNodeInFront(node) : list_.addNodeAtBack(node)) == status,
            "the status of adding");
    if (goesIn)
      expected_.insert(inFront ? expected_.begin() : expected_.end(), node);
  }

  void change() {
    CTervixNode* const node = anyOf(expected_);
    if (node == nullptr)
      return;
    std::string text = input_.ConsumeBool() ? name() : path();
    if (input_.ConsumeBool())
      node->setName(text);
    else
      node->setPath(text);
  }

  void deleteByName() {
    std::string text = name();
    CTervixNode* const node = named(text);
    require(list_.deleteNode(text) == (node != nullptr ? 0U : 1U), "1 when no node has the name");
    all_.erase(node);
    expected_.erase(std::remove(expected_.begin(), expected_.end(), node), expected_.end());
  }

  void removeByPath() {
    std::string text = path();
    const auto cell = std::find(expected_.begin(), expected_.end(), at(text));
    require(list_.deleteNodeWithPath(text, input_.ConsumeBool()) ==
                (cell != expected_.end() ? 0U : 1U),
            "1 when no node has the path");
    if (cell != expected_.end())
      expected_.erase(cell);
  }

  void copy() {
    CTervixNodeList other(list_);
    if (input_.ConsumeBool())
      list_ = other;
    if (input_.ConsumeBool())
      list_ = *&list_;
    other.clear();
  }

  void iterate() {
    CTervixNode* node = nullptr;
    if (input_.ConsumeBool())
      list_.getTopNode(node);
    else
      list_.getNextNode(node);
    require(node == nullptr ||
                std::find(expected_.begin(), expected_.end(), node) != expected_.end(),
            "the cursor stands at a listed node");
  }

  // A client destroys a node that the list forgot.
  void destroyUnlisted() {
    for (const CTervixNode* node : Nodes(all_.begin(), all_.end()))
      if (std::find(expected_.begin(), expected_.end(), node) == expected_.end()) {
        all_.erase(const_cast<CTervixNode*>(node));
        delete node;
      }
  }

  void compare() {
    Nodes listed;
    CTervixNodeList view(list_); // whose cursor may move
    CTervixNode* node = nullptr;
    for (view.getTopNode(node); node != nullptr; view.getNextNode(node))
      listed.push_back(node);
    view.clear();
    require(listed == expected_, "the list has the nodes in their order");
    int count = -1;
    list_.numberOfNodes(count);
    require(static_cast<std::size_t>(count) == expected_.size(), "and counts them");
    std::string text = name();
    list_.findNode(node, text);
    require(node == named(text), "the first of a name is found");
    std::string place = path();
    list_.findNodeWithPath(node, place);
    require(node == at(place), "the first of a path is found");
  }

  FuzzedDataProvider& input_;
  CTervixNodeList list_;
  Nodes expected_;
  std::set<CTervixNode*> all_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  {
    ListBesideVector pair(input);
    for (int steps = 0; steps < 500 && input.remaining_bytes() > 0; ++steps)
      pair.step();
  }
  require(TestNode::alive == 0, "every node was destroyed once");
  return 0;
}
