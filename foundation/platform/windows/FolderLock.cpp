#include "foundation/platform/FolderLock.h"

#include "foundation/platform/windows/Win32.h"

namespace tervix::platform {

// A folder itself cannot be locked here. A file in it that one process alone may have open stands
// in for it; it goes with the process.
struct FolderLock::Handle {
  HANDLE file = INVALID_HANDLE_VALUE;

  Handle() = default;
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (file != INVALID_HANDLE_VALUE)
      CloseHandle(file);
  }
};

FolderLock::FolderLock() = default;
FolderLock::~FolderLock() = default;
FolderLock::FolderLock(FolderLock&&) noexcept = default;
FolderLock& FolderLock::operator=(FolderLock&&) noexcept = default;

FolderLock::Result FolderLock::tryLock(const std::string& folder) {
  handle_ = std::make_unique<Handle>();
  handle_->file =
      CreateFileA((folder + "/.tervix-lock").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                  FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (handle_->file != INVALID_HANDLE_VALUE)
    return Result::kLocked;
  return GetLastError() == ERROR_SHARING_VIOLATION ? Result::kTaken : Result::kImpossible;
}

FolderLock::Result FolderLock::lock(const std::string& folder) {
  constexpr DWORD kPause = 20;
  Result result = tryLock(folder);
  for (; result == Result::kTaken; result = tryLock(folder))
    Sleep(kPause);
  return result;
}

} // namespace tervix::platform
