#pragma once

#include <optional>
#include <string>
#include <vector>

#include "CTervixProject.h"
#include "tools/tervix/Progress.h"
#include "tools/tervix/check/Finding.h"

namespace tervix::tool {

// What breaks a project, or soon will: worst first, file by file. Nothing is written.
std::vector<Finding> checkProject(CTervixProject& project, Progress& progress);

struct CheckedProject {
  std::string path;                  // of the project file, or of the file that could not be opened
  CTervixProject* project = nullptr; // null when it could not be opened, which is then a finding
  std::vector<Finding> findings;
};

// Throws a Failure of wrong usage for a file that is not there.
void requireCheckable(const std::string& file);

// Opens the project of a file, as openProject does, and checks it. Throws a Failure of wrong usage
// for a file that is none of a project, or not there.
CheckedProject checkFile(const std::string& file, std::optional<int> frontEnd, Progress& progress);

} // namespace tervix::tool
