#include <array>
#include <cerrno>
#include <climits>
#include <filesystem>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "foundation/platform/Platform.h"
#include "foundation/platform/posix/FileHandle.h"
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
  return status && (status->st_mode & S_IFMT) == kind &&
         (permission == F_OK || access(native.get(), permission) == 0);
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

bool isSameEntry(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// Whether folder is met on the way up from the last part of path that exists, by way of "..",
// which no link can lead astray. None where the way does not begin with plain names, or ends.
std::optional<bool> isAboveExisting(const std::string& folder, const std::string& path) {
  const auto wanted = statusOf(NativePath(folder));
  if (!wanted || contains(toForwardSlashes(path) + "/", "/../"))
    return std::nullopt;
  std::string place = NativePath(path).get();
  FileHandle start;
  while (!start.open(place.c_str(), O_PATH | O_DIRECTORY) && errno == ENOENT &&
         place.find('/', 1) != std::string::npos)
    place.erase(place.rfind('/'));
  struct stat here {};
  struct stat below {};
  for (std::string way = "."; fstatat(start.descriptor(), way.c_str(), &here, 0) == 0;
       way += "/..") {
    if (isSameEntry(here, *wanted))
      return true;
    if (isSameEntry(here, below))
      return false; // the root is above itself
    below = here;
  }
  return std::nullopt;
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

bool isLink(const std::string& path) {
  struct stat status {};
  return lstat(NativePath(path).get(), &status) == 0 && S_ISLNK(status.st_mode);
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

bool isWritableFolder(const std::string& path) {
  return isOfKind(path, S_IFDIR, W_OK | X_OK);
}

bool isSameEntry(const std::string& a, const std::string& b) {
  const auto first = statusOf(NativePath(a));
  const auto second = statusOf(NativePath(b));
  return first && second && isSameEntry(*first, *second);
}

bool liesIn(const std::string& path, const std::string& folder) {
  // No such path can be made, and taking it apart would take very long.
  if (path.size() >= PATH_MAX || folder.size() >= PATH_MAX)
    return false;
  if (const auto answer = isAboveExisting(folder, path))
    return *answer;
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
