#include <array>
#include <memory>

#include "foundation/platform/Platform.h"
#include "foundation/platform/windows/FileHandle.h"
#include "foundation/platform/windows/NativePath.h"
#include "foundation/platform/windows/TextMode.h"

namespace tervix::platform {
namespace {

constexpr std::size_t kCopyBlock = 8192;
constexpr DWORD kAttributesOfText = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN |
                                    FILE_ATTRIBUTE_NOT_CONTENT_INDEXED | FILE_ATTRIBUTE_SYSTEM;

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
bool openTarget(FileHandle& target, bool& isNew, const char* path, const FileStatus& source) {
  const bool isReadOnly = hasAttribute(source, FILE_ATTRIBUTE_READONLY);
  const DWORD attributes = isReadOnly ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL;
  isNew = target.open(path, GENERIC_WRITE, CREATE_NEW, attributes);
  if (!isNew && !target.open(path, GENERIC_WRITE, OPEN_ALWAYS, attributes))
    return false;
  const auto status = target.status();
  if (!isRegularFile(status) || isSameEntry(status, source))
    return false;
  return isNew || target.truncate();
}

// The file itself where path is a link to it.
std::string linkResolved(const std::string& path) {
  FileHandle file;
  if (!isLink(path) || !file.openForStatus(path.c_str()))
    return path;
  return file.finalPath().value_or(path);
}

bool writeNewFile(const std::string& path, std::string_view content, DWORD attributes) {
  FileHandle file;
  if (!file.open(path.c_str(), GENERIC_WRITE, CREATE_NEW, attributes))
    return false;
  const bool isWritten = file.write(content);
  if (file.close() && isWritten)
    return true;
  DeleteFileA(path.c_str());
  return false;
}

// The attributes that new content for the file takes over; none when it may not be written. That
// the new content comes as another file must not get round a protection of the old one.
std::optional<DWORD> attributesToKeep(const std::string& path) {
  if (!isTaken(path))
    return FILE_ATTRIBUTE_NORMAL;
  FileHandle file;
  if (!file.open(path.c_str(), GENERIC_WRITE, OPEN_EXISTING))
    return std::nullopt;
  const auto status = file.status();
  if (!isRegularFile(status) || hasAttribute(*status, FILE_ATTRIBUTE_READONLY))
    return std::nullopt;
  return status->dwFileAttributes & kAttributesOfText;
}

// Whether the file holds this text already, with the line ends of this system or of another. So a
// project that came from elsewhere stays as it is until something in it changes.
bool holdsAlready(const std::string& path, std::string_view content) {
  FileHandle file;
  if (!file.open(path.c_str(), GENERIC_READ, OPEN_EXISTING))
    return false;
  TextReader<FileHandle> text(file);
  std::array<char, kCopyBlock> block{};
  for (;;) {
    const auto count = text.read(block.data(), block.size());
    if (!count)
      return false;
    if (*count == 0)
      return content.empty();
    if (content.substr(0, *count) != std::string_view(block.data(), *count))
      return false;
    content.remove_prefix(*count);
  }
}

} // namespace

CopyResult copyFile(const std::string& source, const std::string& target, LinkedTarget linked) {
  if (linked == LinkedTarget::kRefused && isLink(target))
    return CopyResult::kFailed;
  FileHandle from;
  if (!from.open(NativePath(source).get(), GENERIC_READ, OPEN_EXISTING))
    return CopyResult::kFailed;
  const auto status = from.status();
  if (!isRegularFile(status))
    return CopyResult::kFailed;
  FileHandle to;
  bool isNew = false;
  if (openTarget(to, isNew, NativePath(target).get(), *status) && copyContents(from, to) &&
      to.close())
    return CopyResult::kCopied;
  return isNew ? CopyResult::kMadePart : CopyResult::kFailed;
}

std::string unusedNameBeside(const std::string& path) {
  const NativePath native(path);
  const std::string folder = native.text().substr(0, native.text().find_last_of("\\:") + 1);
  const std::string stem = folder + ".tervix-" + std::to_string(GetCurrentProcessId());
  std::string name = stem;
  for (int attempt = 1; isTaken(name); ++attempt)
    name = stem + "-" + std::to_string(attempt);
  return name;
}

bool replaceFile(const std::string& path, std::string_view content) {
  const std::string file = linkResolved(NativePath(path).text());
  const auto attributes = attributesToKeep(file);
  if (!attributes)
    return false;
  if (isTaken(file) && holdsAlready(file, content))
    return true;
  const std::string written = unusedNameBeside(file);
  if (!writeNewFile(written, withDiskLineEnds(content), *attributes))
    return false;
  if (MoveFileExA(written.c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING) != 0)
    return true;
  DeleteFileA(written.c_str());
  return false;
}

struct FileReader::Handle {
  FileHandle file;
  TextReader<FileHandle> text{file};
  bool isAtEnd = false;
};

FileReader::FileReader() = default;
FileReader::~FileReader() = default;

FileReader::Opening FileReader::open(const std::string& path, char* buffer, std::size_t size,
                                     std::optional<std::size_t>& count) {
  handle_ = std::make_unique<Handle>();
  FileHandle& file = handle_->file;
  if (file.open(NativePath(path).get(), GENERIC_READ, OPEN_EXISTING)) {
    if (!isRegularFile(file.status()))
      return Opening::kNoReadableFile;
    count = read(buffer, size);
    return Opening::kOpened;
  }
  const bool isForbidden = GetLastError() == ERROR_ACCESS_DENIED;
  return !isForbidden && isReadableFile(path) ? Opening::kFailed : Opening::kNoReadableFile;
}

std::optional<std::size_t> FileReader::read(char* buffer, std::size_t size) {
  if (handle_->isAtEnd)
    return 0;
  const auto count = handle_->text.read(buffer, size);
  noteRead(count, size);
  return count;
}

// Joined line ends make a piece shorter than asked for; only an empty one is the end.
void FileReader::noteRead(const std::optional<std::size_t>& count, std::size_t /*size*/) {
  handle_->isAtEnd = count && *count == 0;
  if (handle_->isAtEnd)
    handle_->file.close();
}

bool FileReader::isAtEnd() const {
  return handle_->isAtEnd;
}

} // namespace tervix::platform
