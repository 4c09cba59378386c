#pragma once

#include <ostream>

#include "tools/tervix/ProjectView.h"
#include "tools/tervix/Style.h"

namespace tervix::tool {

// Prints the project as a tree for a person to read.
void printTree(std::ostream& out, const ProjectView& project, const Style& style);

} // namespace tervix::tool
