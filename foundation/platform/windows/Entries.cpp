#include <memory>

#include "foundation/platform/Platform.h"
#include "foundation/platform/windows/FileHandle.h"
#include "foundation/platform/windows/NativePath.h"

namespace tervix::platform {
namespace {

// A link is of unknown kind: the listing does not follow it.
EntryKind kindOf(const WIN32_FIND_DATAA& entry) {
  const DWORD attributes = entry.dwFileAttributes;
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
    return EntryKind::kUnknown;
  if ((attributes & FILE_ATTRIBUTE_DEVICE) != 0)
    return EntryKind::kOther;
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? EntryKind::kFolder : EntryKind::kFile;
}

struct SearchCloser {
  void operator()(HANDLE search) const { FindClose(search); }
};

std::string completePath(const std::string& path) {
  const NativePath native(path);
  const DWORD size = GetFullPathNameA(native.get(), 0, nullptr, nullptr);
  std::string complete(size, '\0');
  const DWORD length = GetFullPathNameA(native.get(), size, complete.data(), nullptr);
  complete.resize(length < size ? length : 0);
  return complete;
}

// Cuts the last component off a complete path and leaves the separator, which is part of the name
// of a root folder; false when nothing is above.
bool goUp(std::string& path) {
  const std::size_t end = path.find_last_not_of('\\');
  const std::size_t separator = end == std::string::npos ? end : path.rfind('\\', end);
  if (separator == std::string::npos)
    return false;
  path.resize(separator + 1);
  return true;
}

// The innermost entry on the way to path that is there, without any link in its name.
std::string placeOnDisk(std::string path) {
  FileHandle entry;
  while (!entry.openForStatus(path.c_str())) {
    if (!goUp(path))
      return path;
  }
  return entry.finalPath().value_or(path);
}

} // namespace

// A leading separator is still short of a drive: no path without one is complete.
bool isRooted(std::string_view) {
  return false;
}

bool exists(const std::string& path) {
  return FileHandle().openForStatus(NativePath(path).get());
}

bool isTaken(const std::string& path) {
  return GetFileAttributesA(NativePath(path).get()) != INVALID_FILE_ATTRIBUTES;
}

bool isLink(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(NativePath(path).get());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

bool isReadableFile(const std::string& path) {
  return isRegularFile(statusOf(NativePath(path).get()));
}

bool isWritableFile(const std::string& path) {
  const auto status = statusOf(NativePath(path).get());
  return isRegularFile(status) && !hasAttribute(*status, FILE_ATTRIBUTE_READONLY);
}

bool isFolder(const std::string& path) {
  return isFolder(statusOf(NativePath(path).get()));
}

bool isReadableFolder(const std::string& path) {
  return isFolder(path);
}

bool isWritableFolder(const std::string& path) {
  return isFolder(path);
}

bool isSameEntry(const std::string& a, const std::string& b) {
  return isSameEntry(statusOf(NativePath(a).get()), statusOf(NativePath(b).get()));
}

bool liesIn(const std::string& path, const std::string& folder) {
  const auto wanted = statusOf(NativePath(folder).get());
  if (!wanted)
    return false;
  // Compared entry by entry on the way up, as one folder can have several paths.
  std::string place = placeOnDisk(completePath(path));
  do {
    if (isSameEntry(statusOf(place.c_str()), wanted))
      return true;
  } while (goUp(place));
  return false;
}

std::optional<std::vector<FolderEntry>> listFolder(const std::string& path) {
  // Asked first: a path may hold what the search takes for a wildcard.
  if (!isFolder(path))
    return std::nullopt;
  std::string pattern = NativePath(path).text();
  pattern += pattern.back() == '\\' ? "*" : "\\*";
  WIN32_FIND_DATAA entry{};
  const HANDLE search = FindFirstFileA(pattern.c_str(), &entry);
  std::vector<FolderEntry> entries;
  if (search == INVALID_HANDLE_VALUE) // an empty root folder
    return GetLastError() == ERROR_FILE_NOT_FOUND ? std::optional(entries) : std::nullopt;
  const std::unique_ptr<void, SearchCloser> closer(search);
  do
    entries.push_back({static_cast<const char*>(entry.cFileName), kindOf(entry)});
  while (FindNextFileA(search, &entry) != 0);
  if (GetLastError() != ERROR_NO_MORE_FILES)
    return std::nullopt;
  return entries;
}

bool makeFolder(const std::string& path) {
  return CreateDirectoryA(NativePath(path).get(), nullptr) != 0;
}

bool removeFile(const std::string& path) {
  return DeleteFileA(NativePath(path).get()) != 0;
}

MoveResult moveEntry(const std::string& oldPath, const std::string& newPath) {
  const NativePath from(oldPath);
  const NativePath to(newPath);
  if (MoveFileExA(from.get(), to.get(), MOVEFILE_REPLACE_EXISTING) != 0)
    return MoveResult::kMoved;
  return GetLastError() == ERROR_NOT_SAME_DEVICE ? MoveResult::kOtherDevice : MoveResult::kFailed;
}

} // namespace tervix::platform
