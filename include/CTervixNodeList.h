#ifndef CTERVIX_NODE_LIST_H
#define CTERVIX_NODE_LIST_H

#include <list>
#include <memory>
#include <string>

#include "TervixExport.h"

class CTervixNode;

namespace tervix { // the library's own
struct NodeCell;
class NodeIndex;
class NodeListing;
enum class NodeKey;
} // namespace tervix

// An ordered list of nodes with one cursor.
//
// The destructor deletes the nodes that the list still holds (one that is listed twice, once).
// clear, deleteAllNodes and deleteNodeWithPath only drop cells; deleteNode deletes the node too.
// Copying a list copies pointers: two lists that share nodes would both delete them, so empty
// one of the two with clear before it is destroyed.
//
// Names and paths are compared without regard to case, paths after "\" has become "/" (addNode
// alone compares the separators as they stand). The first match in list order wins; a node
// whose name or path is not set never matches.
class TERVIX_API CTervixNodeList {
public:
  // Empty.
  CTervixNodeList();
  // The copy holds the same nodes. The copy's cursor stands at the same position of its own cells.
  CTervixNodeList(const CTervixNodeList& other);
  // Deletes the nodes that the list still holds.
  virtual ~CTervixNodeList();

  // Makes this list hold the nodes of other. The nodes formerly held are not deleted, and the
  // cursor stays with its cell; when that cell goes, the cursor stands at the end.
  CTervixNodeList& operator=(const CTervixNodeList& other);

  // Insert before the first or after the last node; addNode is addNodeAtBack. The list takes the
  // node over. A node of the same name and the same path as the first node of that name is
  // present already: nothing is inserted, 0.
  // 10111, recorded: a null node, a node without a name, or, when the name is present, one
  // without a path. 1: the node found under that name has no path. The cursor does not move.
  unsigned long addNodeInFront(CTervixNode* node);
  unsigned long addNodeAtBack(CTervixNode* node);
  unsigned long addNode(CTervixNode* node);

  // Removes the first node of that name from the list and deletes it. 1: none.
  unsigned long deleteNode(std::string& name);

  // Removes the cell of the first node with that path; the node is not deleted. 1: none.
  // path is rewritten with forward slashes. A project is released first (CTervixProject::release),
  // and unless force is true its cell stays while references are left.
  unsigned long deleteNodeWithPath(std::string& path, bool force);

  // One and the same: drop every cell, delete no node. Always 0.
  unsigned long clear();
  unsigned long deleteAllNodes();

  // The cursor. getTopNode sets it to the first node, getNextNode moves it on; both hand out the
  // node there, null at the end or in an empty list, and return 0.
  unsigned long getTopNode(CTervixNode*& node);
  unsigned long getNextNode(CTervixNode*& node);
  // Sets the cursor to the first node, so that getNextNode yields the second. 1: empty list.
  unsigned long rewind();

  // The first node of that name or path; null and 1 when there is none.
  // findNodeWithPath rewrites path with forward slashes.
  unsigned long findNode(CTervixNode*& node, std::string& name);
  unsigned long findNodeWithPath(CTervixNode*& node, std::string& path);

  // Tells whether the list holds no node. Always 0.
  unsigned long isEmpty(bool& empty) const;
  // The count, and 1 when it is 0.
  unsigned long numberOfNodes(int& count) const;

private:
  friend class CTervixSchematic;
  friend class TreeWalk;
  friend class tervix::NodeListing;
  using Cells = std::list<tervix::NodeCell>;

  TERVIX_LOCAL bool accepts(CTervixNode* node, unsigned long& status);
  TERVIX_LOCAL void fill(tervix::NodeCell& cell, const tervix::NodeCell& source);
  TERVIX_LOCAL void insert(Cells::iterator position, const tervix::NodeCell& source);
  TERVIX_LOCAL void insert(Cells::iterator position, CTervixNode* node);
  TERVIX_LOCAL Cells::iterator remove(Cells::iterator cell);
  TERVIX_LOCAL Cells::iterator cellOf(tervix::NodeKey key, const std::string& text);

  Cells nodes_;
  int count_ = 0;
  Cells::iterator cursor_;
  // Made when a node is first looked for.
  mutable std::unique_ptr<tervix::NodeIndex> index_;
  // The node whose inner list this is.
  CTervixNode* holder_ = nullptr;
};

#endif
