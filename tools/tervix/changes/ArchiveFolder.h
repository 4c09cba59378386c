#pragma once

#include <string>

#include "tools/tervix/changes/ProjectLayout.h"

namespace tervix::tool {

// The full path of the folder that is to take an archive, links followed. Throws a Failure when it
// cannot: it holds something, lies in root, the folder of the project, or holds that, is no folder,
// or has a name for which the archived project would not open as it does.
std::string archiveFolderFor(const std::string& text, const std::string& root,
                             const ProjectLayout& layout);

} // namespace tervix::tool
