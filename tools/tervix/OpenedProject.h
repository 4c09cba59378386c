#pragma once

#include <optional>
#include <string>

#include "CTervixProject.h"

namespace tervix::tool {

// Opens the project of a ".tvp", ".sim", ".aap" or ".$ap" file. The front end follows from the
// path unless it is given: 1 for a project file in "cfg_analog" or "tvx_sim_1", otherwise 2; 0 for
// a profile or analysis file. A backslash in the path is a separator, as it is to the library.
//
// The project lives as long as the program and is never destroyed: destroying a profile saves its
// include list, and a command that only reads must not write.
CTervixProject& openProject(const std::string& path, std::optional<int> frontEnd);

// The full path of a file, with forward slashes. A ".." is followed as the system does, since the
// folder before it may be a link.
std::string fullPathOf(const std::string& file);

// The full path of the project file that openProject would open, there or not. A profile or
// analysis file is opened to know it.
std::string projectFileFor(const std::string& path, std::optional<int> frontEnd);
std::string projectFileOf(const CTervixProject& project);

} // namespace tervix::tool
