#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tervix::tool {

enum class EntryType { kMissing, kFile, kFolder, kOther };

struct FetchedFolders;

// What stands on disk, each folder listed once: a project of thousands of profiles is asked about
// without a call to the system for every file.
class FolderIndex {
public:
  struct Entry {
    std::string name;
    std::string key; // the name in lower case
    EntryType type;  // of a link, what it leads to
    bool isLink;
  };

  struct Folder {
    bool isListed = false;      // it is a folder that can be read
    std::vector<Entry> entries; // names that differ only in case stand together
  };

  // Folders below root are listed; of files elsewhere each is asked for by itself.
  explicit FolderIndex(std::string root) : root_(std::move(root)) {}

  // What was read before it was asked for.
  void take(FetchedFolders fetched);

  const Folder& folder(const std::string& path);
  // Lists many at once, which is faster.
  void listAhead(const std::vector<std::string>& paths);
  EntryType typeOf(const std::string& path);
  bool isFile(const std::string& path) { return typeOf(path) == EntryType::kFile; }
  // Nothing leads there but the file or folder itself.
  bool isLink(const std::string& path);
  // The name of an entry that differs from the path's only in case.
  std::optional<std::string> twinOf(const std::string& path);
  // The path of a file that differs from the path only in case, also in that of its folders.
  std::optional<std::string> spelledPathOf(const std::string& path);
  // Whether the way from folder to path passes no link, and ends at none.
  bool isDirectlyIn(const std::string& path, const std::string& folder);
  // The same for every path that leads to one file; the path itself where nothing is there.
  std::string realPathOf(const std::string& path);

  // The bytes of a file; none when it cannot be read, or is larger than a text that people write.
  std::optional<std::string> text(const std::string& path) const;
  // Reads a number of files, many at once; a path that is empty is passed over.
  std::vector<std::optional<std::string>> texts(const std::vector<std::string>& paths) const;

private:
  const Folder& folderAt(std::string_view path);
  // The entry that differs from the path in case at most, and whose name is wanted beside its name.
  template <class IsWanted>
  const Entry* entryInAnyCase(const std::string& path, const IsWanted& isWanted);
  const Entry* entryAt(const std::string& path);
  const std::string& realFolder(const std::string& path);
  bool isOwn(const std::string& path) const;

  std::string root_;
  std::unordered_map<std::string, Folder> folders_;
  std::unordered_map<std::string, std::string> texts_; // that were fetched
  // The folder that was asked for last: files are asked for folder by folder.
  std::string lastPath_;
  const Folder* last_ = nullptr;
  std::unordered_map<std::string, EntryType> elsewhere_;
  std::unordered_map<std::string, std::string> realFolders_;
};

// What has been read already, by full path.
struct FetchedFolders {
  std::unordered_map<std::string, FolderIndex::Folder> folders;
  std::unordered_map<std::string, std::string> texts;
};

FolderIndex::Folder listedFolder(const std::string& path);
// None when the file cannot be read, or has more bytes than the most.
std::optional<std::string> readText(const std::string& path, std::size_t most);

} // namespace tervix::tool
