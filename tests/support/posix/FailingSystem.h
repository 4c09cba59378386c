#pragma once

#include <string>

#include <sys/resource.h>
#include <sys/types.h>

namespace tervix::testing {

// Faults of the system, each for as long as an object of its class lives. They work for every
// user, also for root, to whom no permission is denied.

class ResourceLimit {
public:
  ResourceLimit(__rlimit_resource resource, rlim_t limit);
  ~ResourceLimit();
  ResourceLimit(const ResourceLimit&) = delete;
  ResourceLimit& operator=(const ResourceLimit&) = delete;

private:
  __rlimit_resource resource_;
  rlimit former_{};
};

// No file can grow beyond a size.
class FullDisk {
public:
  explicit FullDisk(rlim_t bytes = 0);
  ~FullDisk();
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

private:
  ResourceLimit limit_;
  void (*formerHandler_)(int);
};

// No file or folder can be opened.
class NoFreeDescriptor {
  ResourceLimit limit_{RLIMIT_NOFILE, 0};
};

// Deleting this one file is refused.
class UndeletableFile {
public:
  explicit UndeletableFile(std::string path);
  ~UndeletableFile();
  UndeletableFile(const UndeletableFile&) = delete;
  UndeletableFile& operator=(const UndeletableFile&) = delete;
};

// This folder counts as a device of its own: nothing can be renamed into or out of it.
class SeparateDevice {
public:
  explicit SeparateDevice(std::string folder);
  ~SeparateDevice();
  SeparateDevice(const SeparateDevice&) = delete;
  SeparateDevice& operator=(const SeparateDevice&) = delete;
};

// The process belongs to a user without privileges.
class UnprivilegedUser {
public:
  UnprivilegedUser();
  ~UnprivilegedUser();
  UnprivilegedUser(const UnprivilegedUser&) = delete;
  UnprivilegedUser& operator=(const UnprivilegedUser&) = delete;

  // False where the system does not let root become another user; the test is then skipped.
  bool isInForce() const;

private:
  bool wasRoot_;
};

} // namespace tervix::testing
