#include "tests/support/posix/FailingSystem.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <string_view>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
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

ResourceLimit::ResourceLimit(__rlimit_resource resource, rlim_t limit) : resource_(resource) {
  EXPECT_EQ(getrlimit(resource_, &former_), 0);
  const rlimit lowered{limit, former_.rlim_max};
  EXPECT_EQ(setrlimit(resource_, &lowered), 0);
}

ResourceLimit::~ResourceLimit() {
  EXPECT_EQ(setrlimit(resource_, &former_), 0);
}

FullDisk::FullDisk(rlim_t bytes)
    : limit_(RLIMIT_FSIZE, bytes), formerHandler_(std::signal(SIGXFSZ, SIG_IGN)) {}

FullDisk::~FullDisk() {
  std::signal(SIGXFSZ, formerHandler_);
}

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

UnprivilegedUser::UnprivilegedUser() : wasRoot_(geteuid() == 0) {
  constexpr uid_t kNobody = 65534;
  if (wasRoot_) {
    const bool changed = setresuid(kNobody, kNobody, 0) == 0;
    EXPECT_TRUE(changed || errno == EINVAL);
  }
}

UnprivilegedUser::~UnprivilegedUser() {
  if (!wasRoot_)
    return;
  EXPECT_EQ(setresuid(0, 0, 0), 0);
  // Leaving root made the process invisible to the leak checker.
  prctl(PR_SET_DUMPABLE, 1, 0, 0, 0);
}

bool UnprivilegedUser::isInForce() const {
  return geteuid() != 0;
}

} // namespace tervix::testing
