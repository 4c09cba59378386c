#pragma once

#include <string>

#include "CTervixNode.h"
#include "CTervixProject.h"

namespace tervix {

// What the nodes of the tree ask of the project above them. The project implements it, so that
// the model does not depend on the project's own code.

struct ChangedName {
  std::string former;
  std::string changed;
  RENAME_TYPE kind = RENAME_TYPE_NONE;

  // A record counts only when it is whole.
  bool isWhole() const { return kind != RENAME_TYPE_NONE && !former.empty() && !changed.empty(); }
  bool isWholeFor(RENAME_TYPE wanted) const { return kind == wanted && isWhole(); }
};

// The parent of node when it is a project, otherwise null.
CTervixProject* projectAbove(const CTervixNode& node);

const std::string& designNameOf(const CTervixProject& project);
ChangedName changedNameOf(const CTervixProject& project);

// The folder of a schematic's files in a simulation project that keeps its files beside it.
std::string simulationFolder(const CTervixProject& project, const std::string& schematic);

// Releases node, if it is a project, and gives the references left; 0 for any other node.
unsigned int releaseProject(CTervixNode& node);

} // namespace tervix
