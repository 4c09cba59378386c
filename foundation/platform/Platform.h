#pragma once

// Everything that the library asks of the operating system. One implementation per system stands
// beside this header; no other code differs by system.
//
// Paths are narrow strings in which "/" and "\" both separate. A path that holds a zero byte
// names nothing. Nothing here records an error.

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tervix::platform {

enum class EntryKind { kUnknown, kFile, kFolder, kOther };

struct FolderEntry {
  std::string name;
  EntryKind kind; // kUnknown when the listing does not tell, as for a link
};

// Whether path starts at a root without naming a drive: "/x" where the system has no drives.
bool isRooted(std::string_view path);

bool exists(const std::string& path);
// Whether the name is in use, also by a link that leads nowhere.
bool isTaken(const std::string& path);
// Whether a link bears the name, wherever it leads.
bool isLink(const std::string& path);
bool isReadableFile(const std::string& path); // a regular file
bool isWritableFile(const std::string& path); // a regular file
bool isFolder(const std::string& path);
bool isReadableFolder(const std::string& path);
bool isWritableFolder(const std::string& path); // whether its entries can be made and removed

// Whether two paths lead to one entry on disk, by whatever spelling or link.
bool isSameEntry(const std::string& a, const std::string& b);
// Whether path, which need not exist, is the folder or lies in it.
bool liesIn(const std::string& path, const std::string& folder);

// All entries, "." and ".." included, in the system's order.
std::optional<std::vector<FolderEntry>> listFolder(const std::string& path);

bool makeFolder(const std::string& path);
bool removeFile(const std::string& path);

enum class MoveResult { kMoved, kOtherDevice, kFailed };
// Replaces a file at newPath in one step.
MoveResult moveEntry(const std::string& oldPath, const std::string& newPath);

enum class CopyResult { kCopied, kFailed, kMadePart };
enum class LinkedTarget { kFollowed, kRefused };
// Copies a regular file; see cpFile for what it promises. kMadePart: it failed and left a target
// that was not there before. A target that is a link is written through it, or fails.
CopyResult copyFile(const std::string& source, const std::string& target,
                    LinkedTarget linked = LinkedTarget::kFollowed);

// Gives the file path this content as text. Either all of it is written, or the file stays as it
// was: the content goes to a file beside it first, which then takes its place. A file that holds
// the content already is not written.
bool replaceFile(const std::string& path, std::string_view content);

// A path beside path under which nothing stands.
std::string unusedNameBeside(const std::string& path);

// A regular file, read as text from its beginning to its end. It is closed once the end was read.
class FileReader {
public:
  enum class Opening { kOpened, kNoReadableFile, kFailed };

  FileReader();
  ~FileReader();
  FileReader(const FileReader&) = delete;
  FileReader& operator=(const FileReader&) = delete;

  // kNoReadableFile: missing, not a regular file, or not readable for this user. kFailed: it is
  // there, and the system could not open it all the same.
  // Opens a file and reads its beginning into buffer, which tells most of what there is to know of
  // it; count becomes what read would give.
  Opening open(const std::string& path, char* buffer, std::size_t size,
               std::optional<std::size_t>& count);

  // Fills buffer as far as it can; nullopt on an error, 0 at the end.
  std::optional<std::size_t> read(char* buffer, std::size_t size);
  // Whether the end was read; false before that, or when it is not known yet.
  bool isAtEnd() const;

private:
  struct Handle;
  void noteRead(const std::optional<std::size_t>& count, std::size_t size);

  std::unique_ptr<Handle> handle_;
};

// A library loaded by its bare name, beside this library or on the loader's search path, and
// unloaded with the object.
class SharedLibrary {
public:
  explicit SharedLibrary(const char* name);
  ~SharedLibrary();
  SharedLibrary(const SharedLibrary&) = delete;
  SharedLibrary& operator=(const SharedLibrary&) = delete;

  // The entry point, or null when the library or the entry point is missing.
  template <class Function> Function* entryPoint(const char* name) const {
    return reinterpret_cast<Function*>(symbol(name));
  }

private:
  void* symbol(const char* name) const;
  void* handle_;
};

} // namespace tervix::platform
