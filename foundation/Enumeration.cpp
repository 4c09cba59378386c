#include <memory>
#include <new>

#include "TervixFiles.h"
#include "foundation/platform/Platform.h"

struct _dirdesc { // NOLINT(bugprone-reserved-identifier,readability-identifier-naming)
  std::vector<tervix::platform::FolderEntry> entries;
  std::size_t handedOut = 0;
};

unsigned long openDir(std::string& path, _dirdesc*& handle) {
  handle = nullptr;
  try {
    auto entries = tervix::platform::listFolder(path);
    if (entries)
      handle = new _dirdesc{std::move(*entries)};
  } catch (const std::bad_alloc&) {
    return 1;
  }
  return handle != nullptr ? 0 : 1;
}

unsigned long readDir(_dirdesc* handle, std::string& name) {
  name.clear();
  if (handle == nullptr || handle->handedOut == handle->entries.size())
    return 1;
  name = handle->entries[handle->handedOut++].name;
  return 0;
}

unsigned long closeDir(_dirdesc* handle) {
  delete handle;
  return 0;
}
