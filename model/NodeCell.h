#pragma once

#include <list>

#include "CTervixNode.h"
#include "CTervixNodeList.h"

namespace tervix {

// A node's place in a list.
struct NodeCell {
  CTervixNode* node = nullptr;
  long long order = 0;             // ascends along the list
  CTervixNodeList* list = nullptr; // null once the node is destroyed
  NodeCell* nextOfNode = nullptr;  // another place of the same node
  std::list<NodeCell>::iterator self{};

  bool isAlive() const { return list != nullptr; }
};

} // namespace tervix
