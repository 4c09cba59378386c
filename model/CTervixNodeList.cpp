#include "CTervixNodeList.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

#include "CTervixNode.h"
#include "foundation/LastError.h"
#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/ProjectLink.h"

CTervixNodeList::CTervixNodeList() : cursor_(nodes_.end()) {}

CTervixNodeList::CTervixNodeList(const CTervixNodeList& other)
    : nodes_(other.nodes_), count_(other.count_), cursor_(nodes_.begin()) {
  std::advance(cursor_, std::distance(other.nodes_.begin(), Cells::const_iterator(other.cursor_)));
}

CTervixNodeList::~CTervixNodeList() {
  // A node that is listed twice is deleted once.
  std::unordered_set<CTervixNode*> deleted;
  for (CTervixNode* node : nodes_)
    if (deleted.insert(node).second)
      delete node;
}

CTervixNodeList& CTervixNodeList::operator=(const CTervixNodeList& other) {
  if (this == &other)
    return *this;
  auto cell = nodes_.begin();
  auto source = other.nodes_.begin();
  for (; cell != nodes_.end() && source != other.nodes_.end(); ++cell, ++source)
    *cell = *source;
  nodes_.insert(nodes_.end(), source, other.nodes_.end());
  while (cell != nodes_.end() && source == other.nodes_.end())
    cell = remove(cell);
  count_ = other.count_;
  return *this;
}

void CTervixNodeList::insert(Cells::const_iterator position, CTervixNode* node) {
  nodes_.insert(position, node);
  ++count_;
}

CTervixNodeList::Cells::iterator CTervixNodeList::remove(Cells::iterator cell) {
  if (cursor_ == cell)
    cursor_ = nodes_.end();
  --count_;
  return nodes_.erase(cell);
}

CTervixNodeList::Cells::iterator CTervixNodeList::cellNamed(const std::string& name) {
  return std::find_if(nodes_.begin(), nodes_.end(), [&](const CTervixNode* node) {
    const std::string listed = tervix::nameOf(*node);
    return !listed.empty() && tervix::equalsIgnoringCase(listed, name);
  });
}

CTervixNodeList::Cells::iterator CTervixNodeList::cellWithPath(const std::string& path) {
  return std::find_if(nodes_.begin(), nodes_.end(), [&](const CTervixNode* node) {
    const std::string listed = tervix::pathOf(*node);
    return !listed.empty() && tervix::equalsAsPath(listed, path);
  });
}

// Whether node is to be inserted; if not, status tells why.
bool CTervixNodeList::accepts(CTervixNode* node, unsigned long& status) {
  std::string name;
  if (node == nullptr || node->getName(name) != 0) {
    status = tervix::raiseError(tervix::kNodeNotInitialized);
    return false;
  }
  status = 0;
  const auto present = cellNamed(name);
  if (present == nodes_.end())
    return true;
  const std::string path = tervix::pathOf(*node);
  if (path.empty()) {
    status = tervix::raiseError(tervix::kNodeNotInitialized);
    return false;
  }
  std::string presentPath;
  status = (*present)->getPath(presentPath);
  return status == 0 && !tervix::equalsIgnoringCase(path, presentPath);
}

unsigned long CTervixNodeList::addNodeInFront(CTervixNode* node) {
  unsigned long status = 0;
  if (accepts(node, status))
    insert(nodes_.begin(), node);
  return status;
}

unsigned long CTervixNodeList::addNodeAtBack(CTervixNode* node) {
  unsigned long status = 0;
  if (accepts(node, status))
    insert(nodes_.end(), node);
  return status;
}

unsigned long CTervixNodeList::addNode(CTervixNode* node) {
  return addNodeAtBack(node);
}

unsigned long CTervixNodeList::deleteNode(std::string& name) {
  const auto named = cellNamed(name);
  if (named == nodes_.end())
    return 1;
  CTervixNode* node = *named;
  for (auto cell = nodes_.begin(); cell != nodes_.end();)
    cell = *cell == node ? remove(cell) : std::next(cell);
  delete node;
  return 0;
}

unsigned long CTervixNodeList::deleteNodeWithPath(std::string& path, bool force) {
  path = tervix::toForwardSlashes(path);
  const auto cell = cellWithPath(path);
  if (cell == nodes_.end())
    return 1;
  const unsigned int references = tervix::releaseProject(**cell);
  if (force || references == 0)
    remove(cell);
  return 0;
}

unsigned long CTervixNodeList::clear() {
  nodes_.clear();
  count_ = 0;
  cursor_ = nodes_.end();
  return 0;
}

unsigned long CTervixNodeList::deleteAllNodes() {
  return clear();
}

unsigned long CTervixNodeList::getTopNode(CTervixNode*& node) {
  cursor_ = nodes_.begin();
  node = nodes_.empty() ? nullptr : *cursor_;
  return 0;
}

unsigned long CTervixNodeList::getNextNode(CTervixNode*& node) {
  if (cursor_ != nodes_.end())
    ++cursor_;
  node = cursor_ == nodes_.end() ? nullptr : *cursor_;
  return 0;
}

unsigned long CTervixNodeList::rewind() {
  cursor_ = nodes_.begin();
  return nodes_.empty() ? 1 : 0;
}

unsigned long CTervixNodeList::findNode(CTervixNode*& node, std::string& name) {
  const auto cell = cellNamed(name);
  node = cell == nodes_.end() ? nullptr : *cell;
  return node != nullptr ? 0 : 1;
}

unsigned long CTervixNodeList::findNodeWithPath(CTervixNode*& node, std::string& path) {
  path = tervix::toForwardSlashes(path);
  const auto cell = cellWithPath(path);
  node = cell == nodes_.end() ? nullptr : *cell;
  return node != nullptr ? 0 : 1;
}

unsigned long CTervixNodeList::isEmpty(bool& empty) const {
  empty = count_ == 0;
  return 0;
}

unsigned long CTervixNodeList::numberOfNodes(int& count) const {
  count = count_;
  return count_ == 0 ? 1 : 0;
}
