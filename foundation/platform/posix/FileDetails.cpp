#include "foundation/platform/FileDetails.h"

#include <sys/stat.h>

namespace tervix::platform {

std::optional<FileDetails> detailsOf(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0)
    return std::nullopt;
  return FileDetails{static_cast<std::uint64_t>(status.st_size), status.st_mtime};
}

} // namespace tervix::platform
