#include "tests/support/posix/FailingSystem.h"

#include <cerrno>
#include <cstdio>
#include <string_view>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::string& undeletable() {
  static std::string path;
  return path;
}

std::string& otherDevice() {
  static std::string folder;
  return folder;
}

bool isOnOtherDevice(std::string_view path) {
  const std::string& folder = otherDevice();
  return !folder.empty() && path.substr(0, folder.size()) == folder &&
         path.substr(folder.size(), 1) == "/";
}

} // namespace

// These stand in front of the C library's own, for the library under test as well.

extern "C" int unlink(const char* path) noexcept {
  if (!undeletable().empty() && undeletable() == path) {
    errno = EPERM;
    return -1;
  }
  return static_cast<int>(syscall(SYS_unlinkat, AT_FDCWD, path, 0));
}

extern "C" int rename(const char* from, const char* to) noexcept {
  if (isOnOtherDevice(from) != isOnOtherDevice(to)) {
    errno = EXDEV;
    return -1;
  }
  return static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

namespace tervix::testing {

UndeletableFile::UndeletableFile(std::string path) {
  undeletable() = std::move(path);
}
UndeletableFile::~UndeletableFile() {
  undeletable().clear();
}

SeparateDevice::SeparateDevice(std::string folder) {
  otherDevice() = std::move(folder);
}
SeparateDevice::~SeparateDevice() {
  otherDevice().clear();
}

} // namespace tervix::testing
