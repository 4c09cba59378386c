#include "foundation/platform/FolderLock.h"

#include "foundation/platform/windows/FileHandle.h"
#include "foundation/platform/windows/NativePath.h"

namespace tervix::platform {
namespace {

// One for each folder of this machine, whatever the path that leads to it.
std::string nameOfLock(const FileStatus& folder) {
  return "Global\\tervix-" + std::to_string(folder.dwVolumeSerialNumber) + "-" +
         std::to_string(folder.nFileIndexHigh) + "-" + std::to_string(folder.nFileIndexLow);
}

} // namespace

// A folder itself cannot be locked here, and a file in it would be seen. A mutex stands in for it;
// the system gives it free when the process ends.
struct FolderLock::Handle {
  HANDLE mutex = nullptr;
  bool isOwned = false;

  Handle() = default;
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (isOwned)
      ReleaseMutex(mutex);
    if (mutex != nullptr)
      CloseHandle(mutex);
  }

  Result lock(const std::string& folder, DWORD patience) {
    const auto status = statusOf(NativePath(folder).get());
    if (!isFolder(status))
      return Result::kImpossible;
    mutex = CreateMutexA(nullptr, FALSE, nameOfLock(*status).c_str());
    if (mutex == nullptr)
      return Result::kImpossible;
    const DWORD outcome = WaitForSingleObject(mutex, patience);
    isOwned = outcome == WAIT_OBJECT_0 || outcome == WAIT_ABANDONED;
    if (isOwned)
      return Result::kLocked;
    return outcome == WAIT_TIMEOUT ? Result::kTaken : Result::kImpossible;
  }
};

FolderLock::FolderLock() = default;
FolderLock::~FolderLock() = default;
FolderLock::FolderLock(FolderLock&&) noexcept = default;
FolderLock& FolderLock::operator=(FolderLock&&) noexcept = default;

FolderLock::Result FolderLock::tryLock(const std::string& folder) {
  handle_ = std::make_unique<Handle>();
  return handle_->lock(folder, 0);
}

FolderLock::Result FolderLock::lock(const std::string& folder) {
  handle_ = std::make_unique<Handle>();
  return handle_->lock(folder, INFINITE);
}

} // namespace tervix::platform
