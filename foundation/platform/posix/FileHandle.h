#pragma once

#include <optional>
#include <string_view>

#include <sys/stat.h>

namespace tervix::platform {

// An open file descriptor, closed with the object.
class FileHandle {
public:
  FileHandle() = default;
  explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
  ~FileHandle();
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;

  // Never blocks on a FIFO and is not inherited by other programs.
  bool open(const char* path, int flags, mode_t mode = 0);
  bool isOpen() const { return descriptor_ >= 0; }
  int descriptor() const { return descriptor_; }

  std::optional<struct stat> status() const;
  std::optional<std::size_t> read(char* buffer, std::size_t size) const;
  // Reads from a place in the file. Fails with ESPIPE, having read nothing, where there is none.
  std::optional<std::size_t> readAt(off_t place, char* buffer, std::size_t size) const;
  bool write(std::string_view content) const;
  // False when the system reports only now that something was not written.
  bool close();

private:
  int descriptor_ = -1;
};

} // namespace tervix::platform
