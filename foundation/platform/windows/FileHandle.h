#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "foundation/platform/windows/Win32.h"

namespace tervix::platform {

using FileStatus = BY_HANDLE_FILE_INFORMATION;

inline bool hasAttribute(const FileStatus& status, DWORD attribute) {
  return (status.dwFileAttributes & attribute) != 0;
}

// All three are false for a status that could not be taken.
bool isFolder(const std::optional<FileStatus>& status);
bool isRegularFile(const std::optional<FileStatus>& status);
// Whether both are of one entry on disk.
bool isSameEntry(const std::optional<FileStatus>& a, const std::optional<FileStatus>& b);

// An open file or folder, closed with the object.
class FileHandle {
public:
  FileHandle() = default;
  ~FileHandle();
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;

  // Follows links, leaves others free to use the file, and is not inherited by other programs.
  // attributes are those of a file that is made, and the flags of the system's call.
  bool open(const char* path, DWORD access, DWORD disposition,
            DWORD attributes = FILE_ATTRIBUTE_NORMAL);
  // Enough for a file's status, and nothing that another program's hold on it could forbid.
  bool openForStatus(const char* path);
  bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }

  // None for what is not on a disk, such as "NUL".
  std::optional<FileStatus> status() const;
  // The path without any link in it.
  std::optional<std::string> finalPath() const;
  // At most size bytes; 0 at the end.
  std::optional<std::size_t> read(char* buffer, std::size_t size) const;
  bool write(std::string_view content) const;
  bool truncate() const;
  bool close();

private:
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

std::optional<FileStatus> statusOf(const char* path);

} // namespace tervix::platform
