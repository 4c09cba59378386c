#pragma once

#include <vector>

#include "readers/formats/Texts.h"
#include "tools/tervix/check/ProjectFacts.h"

namespace tervix::tool {

// The steps of gatherFacts, in their order; each relies on those before it.
void gatherTree(ProjectFacts& facts, CTervixProject& project); // from the library
// Of the project file, whose texts are given, and the design file.
void gatherLists(ProjectFacts& facts, const std::vector<formats::PlacedText>& project);
void gatherFolders(ProjectFacts& facts, Progress& progress);
void gatherSims(ProjectFacts& facts, Progress& progress);
void gatherIncludeLists(ProjectFacts& facts, Progress& progress);
void gatherNetlists(ProjectFacts& facts, Progress& progress);

} // namespace tervix::tool
