#pragma once

#include <set>
#include <string>
#include <utility>

#include "CTervixProject.h"
#include "tools/tervix/ProjectView.h"
#include "tools/tervix/changes/ChangePlan.h"
#include "tools/tervix/changes/ProjectLayout.h"

namespace tervix::tool {

// Schematics, each with an empty profile name, and profiles as (schematic, profile).
using ExpectedTree = std::set<std::pair<std::string, std::string>>;

ExpectedTree treeOf(const ProjectView& project);

// Throws a Failure unless the project opens and has this tree, and for front end 2 nothing else.
void requireTree(const std::string& projectFile, FRONTEND_ID frontEnd,
                 const ExpectedTree& expected);

// Makes that the check of a plan.
void checkTree(ChangePlan& plan, const ProjectLayout& layout, const ExpectedTree& expected);

} // namespace tervix::tool
