#pragma once

#include "tools/tervix/check/ProjectFacts.h"

namespace tervix::tool {

// The steps of gatherFacts, in their order; each relies on those before it.
void gatherLists(ProjectFacts& facts);                         // of project and design file
void gatherTree(ProjectFacts& facts, CTervixProject& project); // from the library
void gatherFolders(ProjectFacts& facts, Progress& progress);
void gatherSims(ProjectFacts& facts, Progress& progress);
void gatherIncludeLists(ProjectFacts& facts, Progress& progress);
void gatherNetlists(ProjectFacts& facts, Progress& progress);

} // namespace tervix::tool
