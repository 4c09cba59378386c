#include <array>
#include <cerrno>
#include <climits>
#include <filesystem>
#include <memory>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include "foundation/platform/Platform.h"
#include "foundation/platform/posix/NativePath.h"

namespace tervix::platform {
namespace {

std::optional<struct stat> statusOf(const NativePath& path) {
  struct stat status {};
  if (stat(path.get(), &status) != 0)
    return std::nullopt;
  return status;
}

bool isOfKind(const std::string& path, mode_t kind, int permission) {
  const NativePath native(path);
  const auto status = statusOf(native);
  return status && (status->st_mode & S_IFMT) == kind && access(native.get(), permission) == 0;
}

EntryKind kindOf(const dirent& entry) {
  switch (entry.d_type) {
  case DT_REG:
    return EntryKind::kFile;
  case DT_DIR:
    return EntryKind::kFolder;
  case DT_LNK:
  case DT_UNKNOWN:
    return EntryKind::kUnknown;
  default:
    return EntryKind::kOther;
  }
}

// The path without links, "." and ".." as far as it exists, and what is left of it behind that.
std::filesystem::path resolved(const std::string& path) {
  std::error_code error;
  const std::filesystem::path native(NativePath(path).get());
  const std::filesystem::path place = std::filesystem::weakly_canonical(native, error);
  return error || !place.is_absolute() ? std::filesystem::absolute(native, error).lexically_normal()
                                       : place;
}

struct FolderCloser {
  void operator()(DIR* folder) const { closedir(folder); }
};

} // namespace

bool isRooted(std::string_view path) {
  return !path.empty() && (path.front() == '/' || path.front() == '\\');
}

bool exists(const std::string& path) {
  return access(NativePath(path).get(), F_OK) == 0;
}

bool isTaken(const std::string& path) {
  struct stat status {};
  return lstat(NativePath(path).get(), &status) == 0;
}

bool isReadableFile(const std::string& path) {
  return isOfKind(path, S_IFREG, R_OK);
}

bool isWritableFile(const std::string& path) {
  return isOfKind(path, S_IFREG, W_OK);
}

bool isFolder(const std::string& path) {
  return isOfKind(path, S_IFDIR, F_OK);
}

bool isReadableFolder(const std::string& path) {
  return isOfKind(path, S_IFDIR, R_OK);
}

bool isSameEntry(const std::string& a, const std::string& b) {
  const auto first = statusOf(NativePath(a));
  const auto second = statusOf(NativePath(b));
  return first && second && first->st_dev == second->st_dev && first->st_ino == second->st_ino;
}

bool liesIn(const std::string& path, const std::string& folder) {
  // No such path can be made, and taking it apart would take very long.
  if (path.size() >= PATH_MAX || folder.size() >= PATH_MAX)
    return false;
  std::error_code error;
  const std::filesystem::path native = resolved(folder);
  std::filesystem::path place = resolved(path);
  // Compared entry by entry on the way up, as one folder can have several paths.
  for (;;) {
    if (place == native || std::filesystem::equivalent(place, native, error))
      return true;
    std::filesystem::path parent = place.parent_path();
    if (parent == place)
      return false;
    place = std::move(parent);
  }
}

std::optional<std::vector<FolderEntry>> listFolder(const std::string& path) {
  const std::unique_ptr<DIR, FolderCloser> folder(opendir(NativePath(path).get()));
  if (!folder)
    return std::nullopt;
  std::vector<FolderEntry> entries;
  for (;;) {
    errno = 0;
    const dirent* entry = readdir(folder.get()); // NOLINT(concurrency-mt-unsafe)
    if (entry == nullptr)
      break;
    entries.push_back({static_cast<const char*>(entry->d_name), kindOf(*entry)});
  }
  if (errno != 0)
    return std::nullopt;
  return entries;
}

bool makeFolder(const std::string& path) {
  constexpr mode_t kAllPermissions = 0777;
  return mkdir(NativePath(path).get(), kAllPermissions) == 0;
}

bool removeFile(const std::string& path) {
  return unlink(NativePath(path).get()) == 0;
}

MoveResult moveEntry(const std::string& oldPath, const std::string& newPath) {
  if (rename(NativePath(oldPath).get(), NativePath(newPath).get()) == 0)
    return MoveResult::kMoved;
  return errno == EXDEV ? MoveResult::kOtherDevice : MoveResult::kFailed;
}

} // namespace tervix::platform
