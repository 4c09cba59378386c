#pragma once

#include <cstdint>
#include <ctime>
#include <memory>
#include <string>
#include <string_view>

namespace tervix::testing {

// What tests ask of the system beyond the standard library. Where a system has no such thing, the
// tests that need it are skipped by name, with the reason: see windows/SkippedTests.cpp.

// Make an entry that is no regular file: a pipe, or a socket, that nobody has open.
[[nodiscard]] bool makePipe(const std::string& path);
[[nodiscard]] bool makeSocket(const std::string& path);

// Whether the system takes this for the name of a file.
bool canBeAFileName(std::string_view name);

// The bytes of a text file that the library read and wrote again: its lines end as the system has
// it, and nothing else changed.
std::string inTextMode(const std::string& content);

// What the system takes for text in these bytes: "\n" ends each line.
std::string asText(std::string content);

// The full path of what lies there on the disk, or on the drive C where disks have letters.
std::string fullPath(const std::string& path);

// The path of a folder that is not there and that nobody can make.
std::string impossibleFolder();

[[nodiscard]] bool setModified(const std::string& file, std::time_t seconds);

// A number that stays with a file, whatever its name, and differs from those of all others.
std::uint64_t fileNumber(const std::string& path);

// A library loaded by its path; nothing of it is found when it cannot be loaded.
class LoadedLibrary {
public:
  explicit LoadedLibrary(const std::string& path);
  ~LoadedLibrary();
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;

  template <class Function> Function* entryPoint(const char* name) const {
    return reinterpret_cast<Function*>(symbol(name));
  }

private:
  void* symbol(const char* name) const;
  void* handle_;
};

// Faults of the system, each for as long as an object of its class lives. They work for every
// user, also for root, to whom no permission is denied.

// No file can grow beyond a size.
class FullDisk {
public:
  explicit FullDisk(std::uint64_t bytes = 0);
  ~FullDisk();
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

private:
  struct Limit;
  std::unique_ptr<Limit> limit_;
};

// No file or folder can be opened.
class NoFreeDescriptor {
public:
  NoFreeDescriptor();
  ~NoFreeDescriptor();
  NoFreeDescriptor(const NoFreeDescriptor&) = delete;
  NoFreeDescriptor& operator=(const NoFreeDescriptor&) = delete;

private:
  struct Limit;
  std::unique_ptr<Limit> limit_;
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
