#pragma once

#include <string>

#include "tools/tervix/ProjectView.h"

namespace tervix::tool {

// Throws a Failure when a report must not be written to path: to a file of the project, whether or
// not it is there, nor over one that is no report of ours unless isForced.
void requireWritable(const std::string& path, bool isForced);
void requireNoneOf(const ProjectView& project, const std::string& path);

} // namespace tervix::tool
