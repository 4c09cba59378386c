#include "foundation/platform/Durability.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace tervix::platform {
namespace {

// Repeats a call that a signal interrupted.
template <class Call> int completed(Call call) {
  int result = 0;
  do
    result = call();
  while (result < 0 && errno == EINTR);
  return result;
}

bool flush(const std::string& path, int (*call)(int)) {
  const int file = completed([&] { return open(path.c_str(), O_RDONLY | O_CLOEXEC); });
  if (file < 0)
    return false;
  const int status = completed([&] { return call(file); });
  const bool isFlushed = status == 0 || errno == EINVAL || errno == ENOTSUP;
  close(file);
  return isFlushed;
}

} // namespace

bool flushFile(const std::string& path) {
  return flush(path, fsync);
}

bool flushFileSystemOf(const std::string& path) {
#ifdef __linux__
  return flush(path, syncfs);
#else
  static_cast<void>(path);
  sync();
  return true;
#endif
}

} // namespace tervix::platform
