#pragma once

#include <memory>
#include <string>

namespace tervix::platform {

// Keeps other processes that lock the same folder waiting, until it goes or this process ends.
class FolderLock {
public:
  FolderLock();
  ~FolderLock();
  FolderLock(FolderLock&&) noexcept;
  FolderLock& operator=(FolderLock&&) noexcept;

  // kImpossible: the folder cannot be locked, for one because its file system knows no locks.
  enum class Result { kLocked, kTaken, kImpossible };
  Result tryLock(const std::string& folder);
  // Waits for others to let go.
  Result lock(const std::string& folder);

private:
  struct Handle;
  std::unique_ptr<Handle> handle_;
};

} // namespace tervix::platform
