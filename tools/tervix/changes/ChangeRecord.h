#pragma once

#include <string>
#include <vector>

#include "tools/tervix/changes/ChangePlan.h"

namespace tervix::tool {

// A plan and what else it takes to take it back or to finish it, also after the process that was
// carrying it out has been killed.
struct ChangeRecord {
  // What stands behind each of the plan's rewritten files, in their order.
  struct Former {
    std::string content;
    std::string staged; // where the new content is written before it takes its place
  };

  ChangePlan plan; // its files and words; it calls nothing
  std::vector<Former> former;
  std::vector<std::string> newFolders; // outermost first
  std::vector<std::string> kept;       // files with names of scratch that were there before
  long process = 0;                    // that carries it out
  bool isComplete = false;             // only what is old is left to be removed

  const std::string& formerProjectFile() const {
    return plan.formerProjectFile.empty() ? plan.projectFile : plan.formerProjectFile;
  }
};

// The record of a plan of which nothing is done yet. Throws when a file cannot be read that the
// plan rewrites.
ChangeRecord recordOf(const ChangePlan& plan);

// A file that the plan does not tell of, and that may be left when its process is interrupted.
struct Scratch {
  std::string path;
  std::string source; // of which it is a copy; empty for one whose name says enough
};
std::vector<Scratch> scratchOf(const ChangeRecord& record);

} // namespace tervix::tool
