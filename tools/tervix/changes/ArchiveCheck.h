#pragma once

#include <functional>
#include <string>

#include "tools/tervix/ProjectView.h"
#include "tools/tervix/changes/NamedPath.h"

namespace tervix::tool {

// Gives the place in the archive of a file as the project names it.
using NewPlaceOf = std::function<std::string(const NamedPath&)>;

// Throws a Failure unless the archived project opens and shows what the project showed: the same
// tree, and each file that belongs to it, there or not, in the place that newPlaceOf gives.
void requireArchived(const ProjectView& project, const std::string& archivedProjectFile,
                     const NewPlaceOf& newPlaceOf);

} // namespace tervix::tool
