#include "CTervixNodeList.h"

#include <iterator>

#include "CTervixNode.h"
#include "foundation/LastError.h"
#include "foundation/Text.h"
#include "model/NodeAccess.h"
#include "model/NodeFields.h"
#include "model/NodeListing.h"
#include "model/ProjectLink.h"

CTervixNodeList::CTervixNodeList() : cursor_(nodes_.end()) {}

CTervixNodeList::CTervixNodeList(const CTervixNodeList& other) : cursor_(nodes_.end()) {
  for (auto cell = other.nodes_.begin(); cell != other.nodes_.end(); ++cell) {
    insert(nodes_.end(), *cell);
    if (cell == Cells::const_iterator(other.cursor_))
      cursor_ = std::prev(nodes_.end());
  }
}

CTervixNodeList::~CTervixNodeList() {
  index_.reset();
  // A node that is listed twice is deleted once: its other cells outlive it then.
  for (const tervix::NodeCell& cell : nodes_)
    if (cell.isAlive())
      delete cell.node;
}

CTervixNodeList& CTervixNodeList::operator=(const CTervixNodeList& other) {
  if (this == &other)
    return *this;
  auto cell = nodes_.begin();
  auto source = other.nodes_.begin();
  for (; cell != nodes_.end() && source != other.nodes_.end(); ++cell, ++source) {
    tervix::NodeListing::delist(*cell);
    fill(*cell, *source);
  }
  for (; source != other.nodes_.end(); ++source)
    insert(nodes_.end(), *source);
  while (cell != nodes_.end())
    cell = remove(cell);
  return *this;
}

// Puts a node into a cell that has none. A node that was destroyed stays a mere pointer.
void CTervixNodeList::fill(tervix::NodeCell& cell, const tervix::NodeCell& source) {
  cell.node = source.node;
  cell.list = source.isAlive() ? this : nullptr;
  if (cell.isAlive())
    tervix::NodeListing::enlist(cell);
}

// At the front or at the back.
void CTervixNodeList::insert(Cells::iterator position, const tervix::NodeCell& source) {
  long long order = 0;
  if (!nodes_.empty())
    order = position == nodes_.begin() ? nodes_.front().order - 1 : nodes_.back().order + 1;
  const auto cell = nodes_.emplace(position);
  cell->order = order;
  cell->self = cell;
  fill(*cell, source);
  ++count_;
}

void CTervixNodeList::insert(Cells::iterator position, CTervixNode* node) {
  tervix::NodeCell source;
  source.node = node;
  source.list = this;
  insert(position, source);
}

CTervixNodeList::Cells::iterator CTervixNodeList::remove(Cells::iterator cell) {
  if (cursor_ == cell)
    cursor_ = nodes_.end();
  --count_;
  tervix::NodeListing::delist(*cell);
  return nodes_.erase(cell);
}

CTervixNodeList::Cells::iterator CTervixNodeList::cellOf(tervix::NodeKey key,
                                                         const std::string& text) {
  const tervix::NodeCell* cell = tervix::NodeListing::indexOf(*this).find(key, text);
  return cell != nullptr ? cell->self : nodes_.end();
}

// Whether node is to be inserted; if not, status tells why.
bool CTervixNodeList::accepts(CTervixNode* node, unsigned long& status) {
  if (node == nullptr || tervix::nameOf(*node).empty()) {
    status = tervix::raiseError(tervix::kNodeNotInitialized);
    return false;
  }
  status = 0;
  const auto present = cellOf(tervix::NodeKey::kName, tervix::nameOf(*node));
  if (present == nodes_.end())
    return true;
  const std::string& path = tervix::pathOf(*node);
  if (path.empty()) {
    status = tervix::raiseError(tervix::kNodeNotInitialized);
    return false;
  }
  const std::string& presentPath = tervix::pathOf(*present->node);
  status = presentPath.empty() ? 1 : 0;
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
  const auto named = cellOf(tervix::NodeKey::kName, name);
  if (named == nodes_.end())
    return 1;
  CTervixNode* node = named->node;
  for (tervix::NodeCell* cell = tervix::NodeAccess::cells(*node); cell != nullptr;) {
    tervix::NodeCell* const next = cell->nextOfNode;
    if (cell->list == this)
      remove(cell->self);
    cell = next;
  }
  delete node;
  return 0;
}

unsigned long CTervixNodeList::deleteNodeWithPath(std::string& path, bool force) {
  path = tervix::toForwardSlashes(path);
  const auto cell = cellOf(tervix::NodeKey::kPath, path);
  if (cell == nodes_.end())
    return 1;
  const unsigned int references = tervix::releaseProject(*cell->node);
  if (force || references == 0)
    remove(cell);
  return 0;
}

unsigned long CTervixNodeList::clear() {
  index_.reset();
  for (tervix::NodeCell& cell : nodes_)
    tervix::NodeListing::delist(cell);
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
  node = nodes_.empty() ? nullptr : cursor_->node;
  return 0;
}

unsigned long CTervixNodeList::getNextNode(CTervixNode*& node) {
  if (cursor_ != nodes_.end())
    ++cursor_;
  node = cursor_ == nodes_.end() ? nullptr : cursor_->node;
  return 0;
}

unsigned long CTervixNodeList::rewind() {
  cursor_ = nodes_.begin();
  return nodes_.empty() ? 1 : 0;
}

unsigned long CTervixNodeList::findNode(CTervixNode*& node, std::string& name) {
  const auto cell = cellOf(tervix::NodeKey::kName, name);
  node = cell == nodes_.end() ? nullptr : cell->node;
  return node != nullptr ? 0 : 1;
}

unsigned long CTervixNodeList::findNodeWithPath(CTervixNode*& node, std::string& path) {
  path = tervix::toForwardSlashes(path);
  const auto cell = cellOf(tervix::NodeKey::kPath, path);
  node = cell == nodes_.end() ? nullptr : cell->node;
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
