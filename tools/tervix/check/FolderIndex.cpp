#include "tools/tervix/check/FolderIndex.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <iterator>

#include "foundation/platform/Platform.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/check/InParallel.h"
#include "tools/tervix/check/Paths.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLargestText = std::size_t{64} << 20U;

EntryType typeOfStatus(fs::file_type type) {
  switch (type) {
  case fs::file_type::none:
  case fs::file_type::not_found:
    return EntryType::kMissing;
  case fs::file_type::regular:
    return EntryType::kFile;
  case fs::file_type::directory:
    return EntryType::kFolder;
  default:
    return EntryType::kOther;
  }
}

EntryType askedType(const std::string& path) {
  std::error_code error;
  return typeOfStatus(fs::status(path, error).type());
}

FolderIndex::Entry entryOf(const std::string& folder, platform::FolderEntry& listed) {
  FolderIndex::Entry entry{std::move(listed.name), EntryType::kOther, false, {}};
  if (listed.kind == platform::EntryKind::kFile)
    entry.type = EntryType::kFile;
  else if (listed.kind == platform::EntryKind::kFolder)
    entry.type = EntryType::kFolder;
  if (listed.kind != platform::EntryKind::kUnknown)
    return entry;
  const std::string path = folder + "/" + entry.name;
  std::error_code error;
  entry.isLink = fs::is_symlink(fs::symlink_status(path, error));
  entry.type = askedType(path);
  return entry;
}

bool comesBefore(const FolderIndex::Entry& a, const FolderIndex::Entry& b) {
  const int order = compareNames(a.name, b.name);
  return order < 0 || (order == 0 && a.name < b.name);
}

} // namespace

FolderIndex::Folder listedFolder(const std::string& path) {
  FolderIndex::Folder folder;
  auto entries = platform::listFolder(path);
  folder.isListed = entries.has_value();
  for (platform::FolderEntry& entry : entries ? *entries : std::vector<platform::FolderEntry>())
    if (entry.name != "." && entry.name != "..")
      folder.entries.push_back(entryOf(path, entry));
  std::sort(folder.entries.begin(), folder.entries.end(), comesBefore);
  return folder;
}

std::optional<std::string> readText(const std::string& path, std::size_t most) {
  std::array<char, 16384> block; // NOLINT(cppcoreguidelines-pro-type-member-init)
  std::string text;
  platform::FileReader reader;
  std::optional<std::size_t> count;
  if (reader.open(path, block.data(), block.size(), count) !=
      platform::FileReader::Opening::kOpened)
    return std::nullopt;
  while (count && *count != 0 && text.size() <= most) {
    text.append(block.data(), *count);
    count = reader.isAtEnd() ? 0 : reader.read(block.data(), block.size());
  }
  return count && text.size() <= most ? std::optional(std::move(text)) : std::nullopt;
}

FolderIndex::Folder& FolderIndex::folderAt(std::string_view path) {
  if (last_ != nullptr && lastPath_ == path)
    return *last_;
  lastPath_ = path;
  const auto found = folders_.find(lastPath_);
  last_ = found != folders_.end()
              ? &found->second
              : &folders_.emplace(lastPath_, listedFolder(lastPath_)).first->second;
  return *last_;
}

const FolderIndex::Folder& FolderIndex::folder(const std::string& path) {
  return folderAt(path);
}

void FolderIndex::listAhead(const std::vector<std::string>& paths) {
  std::vector<std::string> unknown;
  std::copy_if(paths.begin(), paths.end(), std::back_inserter(unknown),
               [&](const std::string& path) { return folders_.count(path) == 0; });
  std::vector<Folder> folders(unknown.size());
  inParallel(unknown.size(), [&](std::size_t i) { folders[i] = listedFolder(unknown[i]); });
  for (std::size_t i = 0; i < unknown.size(); ++i)
    folders_.emplace(unknown[i], std::move(folders[i]));
}

bool FolderIndex::isOwn(std::string_view path) const {
  return liesBelow(path, root_);
}

template <class IsWanted>
const FolderIndex::Entry* FolderIndex::entryInAnyCase(std::string_view path,
                                                      const IsWanted& isWanted) {
  const std::size_t end = path.rfind('/');
  const std::string_view name = path.substr(end + 1);
  const std::vector<Entry>& entries = folderAt(path.substr(0, end)).entries;
  auto entry = std::lower_bound(
      entries.begin(), entries.end(), name,
      [](const Entry& a, std::string_view b) { return compareNames(a.name, b) < 0; });
  for (; entry != entries.end() && isSameName(entry->name, name); ++entry)
    if (isWanted(entry->name, name))
      return &*entry;
  return nullptr;
}

const FolderIndex::Entry* FolderIndex::entryAt(std::string_view path) {
  return entryInAnyCase(path, std::equal_to<>());
}

EntryType FolderIndex::typeOf(const std::string& path) {
  if (isOwn(path)) {
    if (const Entry* entry = entryAt(path))
      return entry->type;
    // A file system that ignores case finds it under another name.
    return twinOf(path) ? askedType(path) : EntryType::kMissing;
  }
  const auto found = elsewhere_.find(path);
  return found != elsewhere_.end() ? found->second
                                   : elsewhere_.emplace(path, askedType(path)).first->second;
}

bool FolderIndex::isLink(const std::string& path) {
  const Entry* entry = isOwn(path) ? entryAt(path) : nullptr;
  return entry == nullptr || entry->isLink;
}

std::optional<std::string> FolderIndex::twinOf(const std::string& path) {
  const Entry* twin = isOwn(path) ? entryInAnyCase(path, std::not_equal_to<>()) : nullptr;
  return twin != nullptr ? std::optional(twin->name) : std::nullopt;
}

std::optional<std::string> FolderIndex::spelledPathOf(const std::string& path) {
  if (!isOwn(path))
    return std::nullopt;
  std::string spelled = root_;
  for (std::size_t begin = root_.size() + 1; begin <= path.size();) {
    const std::size_t end = std::min(path.find('/', begin), path.size());
    std::string place = (spelled + "/").append(path, begin, end - begin);
    if (typeOf(place) == EntryType::kMissing) {
      const auto twin = twinOf(place);
      if (!twin)
        return std::nullopt;
      place = (spelled + "/").append(*twin);
    }
    spelled = std::move(place);
    begin = end + 1;
  }
  return isFile(spelled) ? std::optional(spelled) : std::nullopt;
}

std::string FolderIndex::realFolder(const std::string& path) {
  std::string& real = folderAt(path).realPath;
  if (real.empty())
    real = realPathOf(path);
  return real;
}

std::string FolderIndex::realPathOf(const std::string& path) {
  if (isOwn(path) && !isLink(path))
    return realFolder(folderOf(path)).append(path, path.rfind('/'));
  std::string& real = realPaths_[path];
  if (!real.empty())
    return real;
  std::error_code error;
  real = fs::canonical(path, error).generic_string();
  return error ? real = path : real;
}

bool FolderIndex::isDirectlyIn(const std::string& path, const std::string& folder) {
  return liesBelow(path, folder) &&
         realPathOf(path) == realFolder(folder) + path.substr(folder.size());
}

const std::string* FolderIndex::textAhead(std::string_view path) {
  const Entry* entry = isOwn(path) ? entryAt(path) : nullptr;
  return entry != nullptr && entry->text ? &*entry->text : nullptr;
}

std::optional<std::string> FolderIndex::text(const std::string& path) {
  const std::string* ahead = textAhead(path);
  return ahead != nullptr ? *ahead : readText(path, kLargestText);
}

void FolderIndex::eachText(const std::vector<const std::string*>& paths, const TakeText& take) {
  std::vector<bool> areFiles;
  std::vector<const std::string*> ahead;
  for (const std::string* path : paths) {
    areFiles.push_back(isFile(*path));
    ahead.push_back(textAhead(*path));
  }
  inParallel(paths.size(), [&](std::size_t i) {
    if (ahead[i] != nullptr)
      take(i, *ahead[i]);
    else if (areFiles[i])
      take(i, readText(*paths[i], kLargestText));
  });
}

} // namespace tervix::tool
