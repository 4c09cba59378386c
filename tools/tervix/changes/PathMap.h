#pragma once

#include <map>
#include <string>
#include <vector>

namespace tervix::tool {

// Where the files of a project go in a change. Paths are full, with forward slashes.
class PathMap {
public:
  // One file or folder, and one folder with all that lies in it. A file named on its own goes
  // where that says, also when it lies in a folder that moves.
  void moveFile(const std::string& oldPath, const std::string& newPath);
  void moveFolder(const std::string& oldFolder, const std::string& newFolder);

  // The new place of a path; the path itself when it stays.
  std::string operator()(const std::string& path) const;

  const std::map<std::string, std::string>& files() const { return files_; }
  const std::map<std::string, std::string>& folders() const { return folders_; }

private:
  std::map<std::string, std::string> files_;
  std::map<std::string, std::string> folders_;
};

} // namespace tervix::tool
