#include "tools/tervix/changes/Folders.h"

#include <filesystem>

namespace tervix::tool {

namespace fs = std::filesystem;

std::string folderHolding(const std::string& path) {
  return fs::path(path).parent_path().generic_string();
}

std::string withoutLinks(const std::string& path) {
  std::error_code error;
  const fs::path place = fs::weakly_canonical(path, error);
  return error ? std::string() : place.generic_string();
}

} // namespace tervix::tool
