#include "foundation/platform/Durability.h"

#include "foundation/platform/windows/Win32.h"

namespace tervix::platform {

bool flushFile(const std::string& path) {
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) // a folder is written by the system at once
    return (GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_DIRECTORY) != 0;
  const bool isFlushed = FlushFileBuffers(file) != 0;
  CloseHandle(file);
  return isFlushed;
}

// Only an administrator may.
bool flushFileSystemOf(const std::string&) {
  return true;
}

} // namespace tervix::platform
