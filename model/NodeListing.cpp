#include "model/NodeListing.h"

#include "model/NodeAccess.h"

namespace tervix {

template <class Own, class Nested>
void NodeListing::tellIndexes(const NodeCell& cell, Own own, Nested nested) {
  if (NodeIndex* index = cell.list->index_.get())
    own(*index);
  if (cell.list->holder_ == nullptr)
    return;
  for (const NodeCell* outer = NodeAccess::cells(*cell.list->holder_); outer != nullptr;
       outer = outer->nextOfNode)
    if (NodeIndex* index = outer->list->index_.get())
      nested(*index, *outer);
}

void NodeListing::enter(const NodeCell& cell, NodeKey key) {
  tellIndexes(
      cell, [&](NodeIndex& index) { index.enter(cell, key); },
      [&](NodeIndex& index, const NodeCell& outer) { index.enterProfile(outer, cell, key); });
}

void NodeListing::leave(const NodeCell& cell, NodeKey key) {
  tellIndexes(
      cell, [&](NodeIndex& index) { index.leave(cell, key); },
      [&](NodeIndex& index, const NodeCell& outer) { index.leaveProfile(outer, cell, key); });
}

void NodeListing::enlist(NodeCell& cell) {
  NodeCell*& first = NodeAccess::cells(*cell.node);
  cell.nextOfNode = first;
  first = &cell;
  for (const NodeKey key : kNodeKeys)
    enter(cell, key);
  if (cell.list->index_)
    cell.list->index_->enterProfilesOf(cell);
}

void NodeListing::delist(NodeCell& cell) {
  if (!cell.isAlive())
    return;
  for (const NodeKey key : kNodeKeys)
    leave(cell, key);
  if (cell.list->index_)
    cell.list->index_->leaveProfilesOf(cell);
  NodeCell** link = &NodeAccess::cells(*cell.node);
  while (*link != &cell)
    link = &(*link)->nextOfNode;
  *link = cell.nextOfNode;
}

void NodeListing::forget(CTervixNode& node) {
  NodeCell*& first = NodeAccess::cells(node);
  for (; first != nullptr; first = first->nextOfNode) {
    for (const NodeKey key : kNodeKeys)
      leave(*first, key);
    first->list = nullptr;
  }
}

NodeIndex& NodeListing::indexOf(const CTervixNodeList& list) {
  if (!list.index_)
    list.index_ = std::make_unique<NodeIndex>(list);
  return *list.index_;
}

CTervixNode* NodeListing::holderOf(const NodeCell& cell) {
  return cell.list->holder_;
}

KeyChange::KeyChange(CTervixNode& node, NodeKey key) : node_(node), key_(key) {
  for (const NodeCell* cell = NodeAccess::cells(node); cell != nullptr; cell = cell->nextOfNode)
    NodeListing::leave(*cell, key);
}

KeyChange::~KeyChange() {
  for (const NodeCell* cell = NodeAccess::cells(node_); cell != nullptr; cell = cell->nextOfNode)
    NodeListing::enter(*cell, key_);
}

} // namespace tervix
