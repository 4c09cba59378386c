#pragma once

#include "model/NodeIndex.h"

namespace tervix {

// Keeps nodes, their places in lists and the indexes over them in step.
class NodeListing {
public:
  // The cell has come into its list, or is about to go; its node lives on.
  static void enlist(NodeCell& cell);
  static void delist(NodeCell& cell);
  // The node is being destroyed; its cells stay behind without it. A class that adds a key calls
  // this first, as long as the key is there.
  static void forget(CTervixNode& node);

  static NodeIndex& indexOf(const CTervixNodeList& list);
  // The node in whose inner list the cell stands; null for a list on its own.
  static CTervixNode* holderOf(const NodeCell& cell);

private:
  friend class KeyChange;
  static void enter(const NodeCell& cell, NodeKey key);
  static void leave(const NodeCell& cell, NodeKey key);
  template <class Own, class Nested>
  static void tellIndexes(const NodeCell& cell, Own own, Nested nested);
};

// Takes a node out of all indexes while one of its keys changes.
class KeyChange {
public:
  KeyChange(CTervixNode& node, NodeKey key);
  ~KeyChange();
  KeyChange(const KeyChange&) = delete;
  KeyChange& operator=(const KeyChange&) = delete;

private:
  CTervixNode& node_;
  NodeKey key_;
};

} // namespace tervix
