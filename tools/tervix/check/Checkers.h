#pragma once

#include "tools/tervix/check/Finding.h"
#include "tools/tervix/check/ProjectFacts.h"

namespace tervix::tool {

// What the checks found so far.
class Findings {
public:
  explicit Findings(const ProjectLayout& layout) : folder_(layout.folder) {}

  void add(Code code, const Place& place, std::string message, Repair repair = {});
  // How a message names a file: between quotes, as seen from the project's folder.
  std::string named(const std::string& path) const;
  // Worst first, file by file.
  std::vector<Finding> sorted() const;

private:
  std::string folder_;
  std::vector<Finding> findings_;
};

// Each looks at one matter. They may ask for folders that nobody asked for yet.
void checkNamedFiles(ProjectFacts& facts, Findings& findings);
void checkNetlistIncludes(ProjectFacts& facts, Findings& findings);
void checkSimFiles(ProjectFacts& facts, Findings& findings);
void checkIncludeLists(ProjectFacts& facts, Findings& findings);
void checkLeftovers(ProjectFacts& facts, Findings& findings);
void checkFormerNames(ProjectFacts& facts, Findings& findings);
void checkNames(ProjectFacts& facts, Findings& findings);
void checkReferences(ProjectFacts& facts, Findings& findings);
void checkSelection(ProjectFacts& facts, Findings& findings);

} // namespace tervix::tool
