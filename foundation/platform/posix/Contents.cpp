#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "foundation/platform/Platform.h"
#include "foundation/platform/posix/FileHandle.h"
#include "foundation/platform/posix/NativePath.h"

namespace tervix::platform {
namespace {

constexpr std::size_t kCopyBlock = 8192;
constexpr mode_t kPermissionBits = 07777;
constexpr mode_t kNewFilePermissions = 0666;

bool isRegular(const std::optional<struct stat>& status) {
  return status && S_ISREG(status->st_mode);
}

// Lets the system copy what it can, up to the size told, and leaves off at the first trouble: it
// does so between files of some kinds only, and what it says of a failure differs by kind.
bool copyBySystem(const FileHandle& source, const FileHandle& target, off_t size) {
  constexpr std::size_t kMost = 1U << 30U;
  off_t left = size;
  while (left > 0) {
    const ssize_t count =
        copy_file_range(source.descriptor(), nullptr, target.descriptor(), nullptr, kMost, 0);
    if (count <= 0)
      return false;
    left -= count;
  }
  return size > 0;
}

// Copies from where the two stand. Blocks tell the end of a file whose size is not known, and why
// a copy cannot go on.
bool copyContents(const FileHandle& source, const FileHandle& target, off_t size) {
  if (copyBySystem(source, target, size))
    return true;
  std::array<char, kCopyBlock> block; // NOLINT(cppcoreguidelines-pro-type-member-init)
  for (;;) {
    const auto count = source.read(block.data(), block.size());
    if (!count)
      return false;
    if (*count == 0)
      return true;
    if (!target.write({block.data(), *count}))
      return false;
  }
}

// Opens the target of a copy without touching its content yet: nothing is lost when it turns out
// to be the source itself, or no file.
bool openTarget(FileHandle& target, bool& isNew, const char* path, const struct stat& source,
                LinkedTarget linked) {
  const mode_t permissions = source.st_mode & kPermissionBits;
  const int linkFlag = linked == LinkedTarget::kRefused ? O_NOFOLLOW : 0;
  isNew = target.open(path, O_WRONLY | O_CREAT | O_EXCL, permissions);
  if (!isNew && !target.open(path, O_WRONLY | O_CREAT | linkFlag, permissions))
    return false;
  const auto status = target.status();
  if (!isRegular(status) || (status->st_dev == source.st_dev && status->st_ino == source.st_ino))
    return false;
  if (!isNew)
    return ftruncate(target.descriptor(), 0) == 0;
  // Some file systems have no permissions to set; the copy is none the worse for it.
  if ((status->st_mode & kPermissionBits) != permissions)
    static_cast<void>(fchmod(target.descriptor(), permissions));
  return true;
}

// The file itself where path is a link to it.
std::string linkResolved(const char* path) {
  const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path, nullptr), &std::free);
  return resolved ? resolved.get() : path;
}

std::string folderPart(const std::string& path) {
  return path.substr(0, path.rfind('/') + 1);
}

// A path for a new file beside another, the first or a later one to try.
std::string nameBeside(const std::string& path, int attempt) {
  const std::string name = folderPart(path) + ".tervix-" + std::to_string(getpid());
  return attempt == 0 ? name : name + "-" + std::to_string(attempt);
}

// Makes a file of its own for what is to take the place of path.
bool openBeside(FileHandle& file, std::string& written, const std::string& path) {
  for (int attempt = 0;; ++attempt) {
    written = nameBeside(path, attempt);
    if (file.open(written.c_str(), O_WRONLY | O_CREAT | O_EXCL, kNewFilePermissions))
      return true;
    if (errno != EEXIST)
      return false;
  }
}

// former is the file whose place the new one takes.
bool writeNewFile(FileHandle& file, std::string_view content,
                  const std::optional<struct stat>& former) {
  if (former) {
    if (former->st_uid != geteuid() || former->st_gid != getegid())
      static_cast<void>(fchown(file.descriptor(), former->st_uid, former->st_gid));
    static_cast<void>(fchmod(file.descriptor(), former->st_mode & kPermissionBits));
  }
  return file.write(content) && file.close();
}

// Whether the file holds this content already, and could have been replaced.
bool holdsAlready(const std::string& path, const struct stat& status, std::string_view content) {
  if (static_cast<std::size_t>(status.st_size) != content.size())
    return false;
  FileHandle file;
  std::string held(content.size() + 1, '\0');
  if (!file.open(path.c_str(), O_RDONLY) || file.read(held.data(), held.size()) != content.size())
    return false;
  held.pop_back();
  return held == content && access((folderPart(path) + ".").c_str(), W_OK | X_OK) == 0;
}

} // namespace

CopyResult copyFile(const std::string& source, const std::string& target, LinkedTarget linked) {
  FileHandle from;
  if (!from.open(NativePath(source).get(), O_RDONLY))
    return CopyResult::kFailed;
  const auto status = from.status();
  if (!isRegular(status))
    return CopyResult::kFailed;
  FileHandle to;
  bool isNew = false;
  if (openTarget(to, isNew, NativePath(target).get(), *status, linked) &&
      copyContents(from, to, status->st_size) && to.close())
    return CopyResult::kCopied;
  return isNew ? CopyResult::kMadePart : CopyResult::kFailed;
}

std::string unusedNameBeside(const std::string& path) {
  const std::string native(NativePath(path).get());
  struct stat status {};
  int attempt = 0;
  while (lstat(nameBeside(native, attempt).c_str(), &status) == 0)
    ++attempt;
  return nameBeside(native, attempt);
}

bool replaceFile(const std::string& path, std::string_view content) {
  std::string file = NativePath(path).get();
  std::optional<struct stat> former(std::in_place);
  if (lstat(file.c_str(), &*former) != 0) {
    former.reset();
  } else if (S_ISLNK(former->st_mode)) {
    // A link that leads nowhere may lead somewhere tomorrow.
    file = linkResolved(file.c_str());
    if (stat(file.c_str(), &*former) != 0)
      return false;
  }
  if (former) {
    if (!S_ISREG(former->st_mode) || access(file.c_str(), W_OK) != 0)
      return false;
    if (holdsAlready(file, *former, content))
      return true;
  }
  FileHandle target;
  std::string written;
  if (!openBeside(target, written, file))
    return false;
  if (writeNewFile(target, content, former) && rename(written.c_str(), file.c_str()) == 0)
    return true;
  unlink(written.c_str());
  return false;
}

struct FileReader::Handle {
  FileHandle file;
  off_t place = 0;
  bool isSeekable = true;
  bool isAtEnd = false;
};

FileReader::FileReader() = default;
FileReader::~FileReader() = default;

// A FIFO, a socket, a terminal and a folder refuse to be read at a place. Of what does not, only a
// regular file is known to end within the buffer; everything else is asked what it is.
FileReader::Opening FileReader::open(const std::string& path, char* buffer, std::size_t size,
                                     std::optional<std::size_t>& count) {
  handle_ = std::make_unique<Handle>();
  FileHandle& file = handle_->file;
  if (!file.open(NativePath(path).get(), O_RDONLY))
    return isReadableFile(path) ? Opening::kFailed : Opening::kNoReadableFile;
  count = file.readAt(0, buffer, size);
  const bool isUnseekable = !count && errno == ESPIPE;
  const bool isTold = count && *count > 0 && *count < size;
  if (!isTold && !isRegular(file.status()))
    return Opening::kNoReadableFile;
  handle_->isSeekable = !isUnseekable;
  if (isUnseekable)
    count = file.read(buffer, size);
  noteRead(count, size);
  return Opening::kOpened;
}

std::optional<std::size_t> FileReader::read(char* buffer, std::size_t size) {
  if (handle_->isAtEnd)
    return 0;
  const auto count = handle_->isSeekable ? handle_->file.readAt(handle_->place, buffer, size)
                                         : handle_->file.read(buffer, size);
  noteRead(count, size);
  return count;
}

// Less than asked for is the end of a regular file.
void FileReader::noteRead(const std::optional<std::size_t>& count, std::size_t size) {
  if (!count)
    return;
  handle_->place += static_cast<off_t>(*count);
  handle_->isAtEnd = handle_->isSeekable ? *count < size : *count == 0;
  if (handle_->isAtEnd)
    handle_->file.close();
}

bool FileReader::isAtEnd() const {
  return handle_->isAtEnd;
}

} // namespace tervix::platform
