#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tervix::tool {

enum class EntryType { kMissing, kFile, kFolder, kOther };

// What stands on disk, each folder listed once: a project of thousands of profiles is asked about
// without a call to the system for every file.
class FolderIndex {
public:
  struct Entry {
    std::string name;
    EntryType type; // of a link, what it leads to
    bool isLink;
    std::optional<std::string> text; // where it was read before it was asked for
  };

  struct Folder {
    bool isListed = false;      // it is a folder that can be read
    std::vector<Entry> entries; // in the order of compareNames
    std::string realPath;       // once it was asked for
  };
  using Folders = std::unordered_map<std::string, Folder>;

  // Folders below root are listed; of files elsewhere each is asked for by itself.
  explicit FolderIndex(std::string root) : root_(std::move(root)) {}
  ~FolderIndex() = default;
  FolderIndex(const FolderIndex&) = delete; // what was found is pointed to
  FolderIndex& operator=(const FolderIndex&) = delete;
  FolderIndex(FolderIndex&&) = default;
  FolderIndex& operator=(FolderIndex&&) = default;

  // What was listed before it was asked for.
  void take(Folders folders) { folders_.merge(folders); }

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
  std::optional<std::string> text(const std::string& path);
  // Hands over the bytes of each file by its number, from several threads at once. Those that were
  // not read ahead are held no longer than they are looked at. What is no file is passed over.
  using TakeText = std::function<void(std::size_t, std::optional<std::string_view>)>;
  void eachText(const std::vector<const std::string*>& paths, const TakeText& take);

private:
  Folder& folderAt(std::string_view path);
  // The entry that differs from the path in case at most, and whose name is wanted beside its name.
  template <class IsWanted>
  const Entry* entryInAnyCase(std::string_view path, const IsWanted& isWanted);
  const Entry* entryAt(std::string_view path);
  const std::string* textAhead(std::string_view path);
  std::string realFolder(const std::string& path);
  bool isOwn(std::string_view path) const;

  std::string root_;
  Folders folders_;
  // The folder that was asked for last: files are asked for folder by folder.
  std::string lastPath_;
  Folder* last_ = nullptr;
  std::unordered_map<std::string, EntryType> elsewhere_;
  std::unordered_map<std::string, std::string> realPaths_; // of links, and elsewhere
};

FolderIndex::Folder listedFolder(const std::string& path);
// None when the file cannot be read, or has more bytes than the most.
std::optional<std::string> readText(const std::string& path, std::size_t most);

} // namespace tervix::tool
