#pragma once

#include <optional>
#include <string>
#include <vector>

#include "CTervixProject.h"
#include "tools/tervix/Progress.h"
#include "tools/tervix/check/Finding.h"

namespace tervix::tool {

struct ProjectFacts;

struct CheckedProject {
  std::string path;                  // of the project file, or of the file that could not be opened
  CTervixProject* project = nullptr; // null when it could not be opened, which is then a finding
  std::vector<Finding> findings;     // worst first, file by file
  const ProjectFacts* facts = nullptr; // null as project; kept, as that is, to the process's end
};

// The full paths that files of the project name, to any depth.
std::vector<std::string> namedIn(const CheckedProject& checked);

// Throws a Failure of wrong usage for a file that is not there.
void requireCheckable(const std::string& file);

// Opens the project of a file, as openProject does, and tells what breaks it, or soon will. Nothing
// is written. Throws a Failure of wrong usage for a file that is none of a project, or not there.
CheckedProject checkFile(const std::string& file, std::optional<int> frontEnd, Progress& progress);

} // namespace tervix::tool
