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

bool copyContents(const FileHandle& source, const FileHandle& target) {
  std::array<char, kCopyBlock> block{};
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
bool openTarget(FileHandle& target, const char* path, const struct stat& source) {
  const mode_t permissions = source.st_mode & kPermissionBits;
  const bool isNew = target.open(path, O_WRONLY | O_CREAT | O_EXCL, permissions);
  if (!isNew && !target.open(path, O_WRONLY | O_CREAT, permissions))
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

// former is the file whose place the new one takes.
bool writeNewFile(const std::string& path, std::string_view content,
                  const std::optional<struct stat>& former) {
  FileHandle file;
  if (!file.open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL, kNewFilePermissions))
    return false;
  if (former) {
    if (former->st_uid != geteuid() || former->st_gid != getegid())
      static_cast<void>(fchown(file.descriptor(), former->st_uid, former->st_gid));
    static_cast<void>(fchmod(file.descriptor(), former->st_mode & kPermissionBits));
  }
  if (file.write(content) && file.close())
    return true;
  unlink(path.c_str());
  return false;
}

} // namespace

bool copyFile(const std::string& source, const std::string& target) {
  FileHandle from;
  if (!from.open(NativePath(source).get(), O_RDONLY))
    return false;
  const auto status = from.status();
  if (!isRegular(status))
    return false;
  FileHandle to;
  return openTarget(to, NativePath(target).get(), *status) && copyContents(from, to) && to.close();
}

std::string unusedNameBeside(const std::string& path) {
  const std::string native(NativePath(path).get());
  const std::string folder = native.substr(0, native.rfind('/') + 1);
  const std::string stem = folder + ".tervix-" + std::to_string(getpid());
  std::string name = stem;
  struct stat status {};
  for (int attempt = 1; lstat(name.c_str(), &status) == 0; ++attempt)
    name = stem + "-" + std::to_string(attempt);
  return name;
}

bool replaceFile(const std::string& path, std::string_view content) {
  const std::string file = linkResolved(NativePath(path).get());
  std::optional<struct stat> former(std::in_place);
  if (stat(file.c_str(), &*former) != 0) {
    // A link that leads nowhere may lead somewhere tomorrow.
    if (lstat(file.c_str(), &*former) == 0)
      return false;
    former.reset();
  } else if (!S_ISREG(former->st_mode) || access(file.c_str(), W_OK) != 0) {
    return false;
  }
  const std::string written = unusedNameBeside(file);
  if (!writeNewFile(written, content, former))
    return false;
  if (rename(written.c_str(), file.c_str()) == 0)
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
