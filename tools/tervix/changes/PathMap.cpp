#include "tools/tervix/changes/PathMap.h"

namespace tervix::tool {

void PathMap::moveFile(const std::string& oldPath, const std::string& newPath) {
  if (oldPath != newPath)
    files_[oldPath] = newPath;
}

void PathMap::moveFolder(const std::string& oldFolder, const std::string& newFolder) {
  if (oldFolder != newFolder)
    folders_[oldFolder] = newFolder;
}

std::string PathMap::operator()(const std::string& path) const {
  if (const auto file = files_.find(path); file != files_.end())
    return file->second;
  // The innermost folder that moves takes the path along.
  for (std::size_t end = path.size(); end != std::string::npos && end != 0;
       end = path.rfind('/', end - 1))
    if (const auto folder = folders_.find(path.substr(0, end)); folder != folders_.end())
      return folder->second + path.substr(end);
  return path;
}

} // namespace tervix::tool
