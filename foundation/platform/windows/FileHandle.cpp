#include "foundation/platform/windows/FileHandle.h"

#include <algorithm>
#include <utility>

namespace tervix::platform {
namespace {

constexpr std::size_t kLargestTransfer = std::size_t{1} << 30;

DWORD transferOf(std::size_t size) {
  return static_cast<DWORD>(std::min(size, kLargestTransfer));
}

} // namespace

bool isFolder(const std::optional<FileStatus>& status) {
  return status && hasAttribute(*status, FILE_ATTRIBUTE_DIRECTORY);
}

bool isRegularFile(const std::optional<FileStatus>& status) {
  return status && !hasAttribute(*status, FILE_ATTRIBUTE_DIRECTORY);
}

bool isSameEntry(const std::optional<FileStatus>& a, const std::optional<FileStatus>& b) {
  return a && b && a->dwVolumeSerialNumber == b->dwVolumeSerialNumber &&
         a->nFileIndexHigh == b->nFileIndexHigh && a->nFileIndexLow == b->nFileIndexLow;
}

FileHandle::~FileHandle() {
  close();
}

bool FileHandle::open(const char* path, DWORD access, DWORD disposition, DWORD attributes) {
  close();
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  handle_ = CreateFileA(path, access, kShared, nullptr, disposition, attributes, nullptr);
  return isOpen();
}

bool FileHandle::openForStatus(const char* path) {
  // Without the flag the system opens no folder.
  return open(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
}

std::optional<FileStatus> FileHandle::status() const {
  FileStatus status{};
  if (GetFileType(handle_) != FILE_TYPE_DISK || GetFileInformationByHandle(handle_, &status) == 0)
    return std::nullopt;
  return status;
}

std::optional<std::string> FileHandle::finalPath() const {
  std::string path(MAX_PATH, '\0');
  for (;;) {
    const DWORD length = GetFinalPathNameByHandleA(
        handle_, path.data(), static_cast<DWORD>(path.size()), FILE_NAME_NORMALIZED);
    if (length == 0)
      return std::nullopt;
    const bool fits = length < path.size();
    path.resize(length);
    if (fits)
      return path;
  }
}

std::optional<std::size_t> FileHandle::read(char* buffer, std::size_t size) const {
  DWORD count = 0;
  if (ReadFile(handle_, buffer, transferOf(size), &count, nullptr) == 0)
    return std::nullopt;
  return count;
}

bool FileHandle::write(std::string_view content) const {
  while (!content.empty()) {
    DWORD count = 0;
    if (WriteFile(handle_, content.data(), transferOf(content.size()), &count, nullptr) == 0 ||
        count == 0)
      return false;
    content.remove_prefix(count);
  }
  return true;
}

bool FileHandle::truncate() const {
  return SetEndOfFile(handle_) != 0;
}

bool FileHandle::close() {
  return !isOpen() || CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)) != 0;
}

std::optional<FileStatus> statusOf(const char* path) {
  FileHandle entry;
  if (!entry.openForStatus(path))
    return std::nullopt;
  return entry.status();
}

} // namespace tervix::platform
