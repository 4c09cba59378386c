#pragma once

#include "tools/tervix/Json.h"
#include "tools/tervix/Progress.h"
#include "tools/tervix/ProjectView.h"
#include "tools/tervix/check/CheckProject.h"

namespace tervix::tool {

// All that the page shows. project is null when it could not be opened; the findings tell why.
Json reportData(const CheckedProject& checked, const ProjectView* project, Progress& progress);

} // namespace tervix::tool
