#include "foundation/platform/posix/FileHandle.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace tervix::platform {
namespace {

// Makes a call again until no signal interrupts it.
template <class Call> std::optional<std::size_t> repeated(Call call) {
  ssize_t count = 0;
  do
    count = call();
  while (count < 0 && errno == EINTR);
  if (count < 0)
    return std::nullopt;
  return static_cast<std::size_t>(count);
}

} // namespace

FileHandle::~FileHandle() {
  close();
}

bool FileHandle::open(const char* path, int flags, mode_t mode) {
  do
    descriptor_ = ::open(path, flags | O_NONBLOCK | O_CLOEXEC, mode);
  while (descriptor_ < 0 && errno == EINTR);
  return isOpen();
}

std::optional<struct stat> FileHandle::status() const {
  struct stat status {};
  if (fstat(descriptor_, &status) != 0)
    return std::nullopt;
  return status;
}

std::optional<std::size_t> FileHandle::read(char* buffer, std::size_t size) const {
  return repeated([&] { return ::read(descriptor_, buffer, size); });
}

std::optional<std::size_t> FileHandle::readAt(off_t place, char* buffer, std::size_t size) const {
  return repeated([&] { return ::pread(descriptor_, buffer, size, place); });
}

bool FileHandle::write(std::string_view content) const {
  while (!content.empty()) {
    const ssize_t count = ::write(descriptor_, content.data(), content.size());
    if (count < 0 && errno == EINTR)
      continue;
    if (count <= 0)
      return false;
    content.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

bool FileHandle::close() {
  if (!isOpen())
    return true;
  // Not repeated when interrupted: the descriptor is gone either way.
  const bool closed = ::close(descriptor_) == 0 || errno == EINTR;
  descriptor_ = -1;
  return closed;
}

} // namespace tervix::platform
