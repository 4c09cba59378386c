#pragma once

#include <string>

#include "tools/tervix/ProjectView.h"
#include "tools/tervix/check/CheckProject.h"

namespace tervix::tool {

// Throws a Failure when a report must not be written to path: to a file of the project, whether or
// not it is there, nor over one that is no report of ours unless isForced.
void requireWritable(const std::string& path, bool isForced);
// The project is null when it could not be opened: then any other file may be one of its own.
void requireNoneOf(const CheckedProject& checked, const ProjectView* project,
                   const std::string& path);

} // namespace tervix::tool
