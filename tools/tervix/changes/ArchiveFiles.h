#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tools/tervix/changes/ArchivePaths.h"
#include "tools/tervix/changes/ChangePlan.h"

namespace tervix::tool {

// The files and folders that go into an archive, gathered from the disk, and what cannot.
class ArchiveFiles {
public:
  // archive is the folder that is to be made; nothing in it may be gathered.
  ArchiveFiles(ArchivePaths& paths, std::string archive);

  // Everything in a folder, through links too; a link to a folder that holds it is not followed.
  // Throws a Failure for what cannot be read, and when the archive would lie in it.
  void addFolder(const std::string& folder);
  // The files of a folder whose names begin with one of these.
  void addFilesNamed(const std::string& folder, const std::vector<std::string>& beginnings);
  // Whether a file is there and so goes along.
  bool addFile(const std::string& place);
  // The same, and a remark when none is there. by is the file that names it.
  bool addNamed(const std::string& place, const std::string& by);

  void remark(const std::string& kind, const std::string& path, const std::string& text);

  const std::set<std::string>& files() const { return files_; }
  const std::set<std::string>& folders() const { return folders_; }
  const std::vector<ChangePlan::Remark>& remarks() const { return remarks_; }

private:
  void addEntry(const std::string& place);

  ArchivePaths& paths_;
  std::string archive_;
  std::set<std::string> files_;
  std::set<std::string> folders_;
  std::vector<std::string> within_; // the real folders that are being gathered
  std::vector<ChangePlan::Remark> remarks_;
  std::set<std::pair<std::string, std::string>> remarked_;
};

} // namespace tervix::tool
