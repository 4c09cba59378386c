#include "tools/tervix/check/ReadAhead.h"

#include <algorithm>
#include <array>
#include <limits>
#include <system_error>

#include "tools/tervix/changes/ProjectLayout.h"
#include "tools/tervix/check/Paths.h"

namespace tervix::tool {
namespace {

// As many folders are fetched at once, before the project is opened; a thread for the rest pays.
constexpr std::size_t kFirst = 64;
// What is kept of texts, however many there are.
constexpr std::size_t kMostText = std::size_t{256} << 20U;
constexpr std::size_t kLongestText = 16384;

// Profiles, their include lists, and what these name.
constexpr std::array<std::string_view, 4> kReadEndings = {".sim", ".inc", ".lib", ".stl"};

bool isRead(const std::string& name) {
  return std::any_of(kReadEndings.begin(), kReadEndings.end(),
                     [&](std::string_view ending) { return endsWith(name, ending); });
}

} // namespace

ReadAhead::ReadAhead(const std::string& projectFile) {
  if (!endsWith(projectFile, ".tvp"))
    return;
  toList_ = {(folderOf(projectFile) + "/").append(kProfilesFolder),
             projectFile.substr(0, projectFile.size() - 4).append(kFilesFolderEnding)};
  fetch(kFirst);
  if (toList_.empty())
    return;
  try {
    rest_ =
        std::async(std::launch::async, [this] { fetch(std::numeric_limits<std::size_t>::max()); });
  } catch (const std::system_error&) {
    // No thread to be had: the check asks for the rest itself.
  }
}

ReadAhead::~ReadAhead() {
  stop();
}

FetchedFolders ReadAhead::take() {
  stop();
  return std::move(fetched_);
}

void ReadAhead::stop() {
  isStopped_ = true;
  if (rest_.valid())
    rest_.wait();
}

void ReadAhead::fetch(std::size_t most) {
  for (; most != 0 && !toList_.empty() && !isStopped_; --most) {
    const std::string path = std::move(toList_.back());
    toList_.pop_back();
    fetchFolder(path);
  }
}

// What cannot be had is left to the check, which tells of it.
void ReadAhead::fetchFolder(const std::string& path) {
  FolderIndex::Folder folder = listedFolder(path);
  if (!folder.isListed)
    return;
  for (const FolderIndex::Entry& entry : folder.entries) {
    if (entry.isLink)
      continue;
    std::string place = (path + "/").append(entry.name);
    if (entry.type == EntryType::kFolder) {
      toList_.push_back(std::move(place));
    } else if (entry.type == EntryType::kFile && isRead(entry.name) && textSize_ < kMostText) {
      auto text = readText(place, kLongestText);
      textSize_ += text ? text->size() : 0;
      if (text)
        fetched_.texts.emplace(std::move(place), std::move(*text));
    }
  }
  fetched_.folders.emplace(path, std::move(folder));
}

} // namespace tervix::tool
