#pragma once

#include <string>

#include "tools/tervix/ProjectView.h"

namespace tervix::tool {

// The project as JSON text; its shape is described in docs/show-json.md and stays stable.
std::string jsonOf(const ProjectView& project);

} // namespace tervix::tool
