#pragma once

#include <set>
#include <string>
#include <vector>

#include "tools/tervix/changes/ArchiveFiles.h"
#include "tools/tervix/changes/ArchivePaths.h"
#include "tools/tervix/changes/NetlistText.h"

namespace tervix::tool {

// Follows what netlists, libraries, include and stimulus files include by themselves. These files
// are copied as they are, so a line that no longer leads to its file can only be told.
class ArchiveNetlists {
public:
  ArchiveNetlists(ArchivePaths& paths, ArchiveFiles& files) : paths_(paths), files_(files) {}

  // Adds the files that are included, and those that they include, and so on. netlists are read
  // whatever their names end in, other gathered files only when they end as such files do, and
  // neither when they are among texts, whose paths are seen to otherwise.
  void follow(const std::set<std::string>& netlists, const std::set<std::string>& texts);

  // Tells of the lines that do not lead to the copy of their file; to be called once settled.
  void tellUnresolved();

private:
  struct Line {
    std::string netlist;
    IncludedFile included;
    std::string place;
  };

  void read(const std::string& netlist, std::vector<std::string>& more);

  ArchivePaths& paths_;
  ArchiveFiles& files_;
  std::vector<Line> lines_;
};

} // namespace tervix::tool
