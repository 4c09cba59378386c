#include "TervixFiles.h"
#include "foundation/platform/Platform.h"

namespace platform = tervix::platform;

namespace {

// The copy is complete under a name of its own before it takes the place of newPath.
bool moveToOtherDevice(const std::string& oldPath, const std::string& newPath) {
  const std::string arriving = platform::unusedNameBeside(newPath);
  if (platform::copyFile(oldPath, arriving) == platform::CopyResult::kCopied &&
      platform::moveEntry(arriving, newPath) == platform::MoveResult::kMoved) {
    platform::removeFile(oldPath);
    return true;
  }
  platform::removeFile(arriving);
  return false;
}

// No system does that by itself.
bool replaceFileByFolder(const std::string& folder, const std::string& file) {
  return platform::isFolder(folder) && platform::isReadableFile(file) &&
         platform::removeFile(file) &&
         platform::moveEntry(folder, file) == platform::MoveResult::kMoved;
}

} // namespace

unsigned long filePathExists(std::string& path, bool& exists) {
  exists = platform::isReadableFile(path);
  return 0;
}

unsigned long cpFile(std::string& source, std::string& target) {
  return platform::copyFile(source, target) == platform::CopyResult::kCopied ? 0 : 1;
}

unsigned long rmFile(std::string& path) {
  return platform::removeFile(path) ? 0 : 1;
}

unsigned long mvFile(std::string& oldPath, std::string& newPath) {
  if (!platform::exists(oldPath) || platform::isSameEntry(oldPath, newPath))
    return 1;
  switch (platform::moveEntry(oldPath, newPath)) {
  case platform::MoveResult::kMoved:
    return 0;
  case platform::MoveResult::kOtherDevice:
    return platform::isReadableFile(oldPath) && moveToOtherDevice(oldPath, newPath) ? 0 : 1;
  case platform::MoveResult::kFailed:
    return replaceFileByFolder(oldPath, newPath) ? 0 : 1;
  }
  return 1;
}
