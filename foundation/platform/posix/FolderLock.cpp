#include "foundation/platform/FolderLock.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tervix::platform {

struct FolderLock::Handle {
  explicit Handle(const std::string& folder)
      : descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (descriptor >= 0)
      close(descriptor);
  }

  Result lock(int operation) const {
    int status = -1;
    do
      status = flock(descriptor, operation);
    while (status != 0 && errno == EINTR);
    if (status == 0)
      return Result::kLocked;
    return errno == EWOULDBLOCK ? Result::kTaken : Result::kImpossible;
  }

  int descriptor;
};

FolderLock::FolderLock() = default;
FolderLock::~FolderLock() = default;
FolderLock::FolderLock(FolderLock&&) noexcept = default;
FolderLock& FolderLock::operator=(FolderLock&&) noexcept = default;

FolderLock::Result FolderLock::tryLock(const std::string& folder) {
  handle_ = std::make_unique<Handle>(folder);
  return handle_->lock(LOCK_EX | LOCK_NB);
}

FolderLock::Result FolderLock::lock(const std::string& folder) {
  handle_ = std::make_unique<Handle>(folder);
  return handle_->lock(LOCK_EX);
}

} // namespace tervix::platform
