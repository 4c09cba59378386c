#include "tools/tervix/check/ReadAhead.h"

#include <algorithm>
#include <array>
#include <limits>
#include <system_error>

#include "tools/tervix/changes/ProjectLayout.h"
#include "tools/tervix/check/Paths.h"

namespace tervix::tool {
namespace {

// So much is done before the project is opened; a thread for the rest pays.
constexpr std::size_t kFirstSteps = 256;
// What is kept of texts, however many there are.
constexpr std::size_t kMostText = std::size_t{256} << 20U;
constexpr std::size_t kLongestText = 16384;

constexpr std::string_view kProfileEnding = ".sim";
// Profiles, their include lists, and what these name.
constexpr std::array<std::string_view, 4> kReadEndings = {kProfileEnding, ".inc", ".lib", ".stl"};

bool isRead(const std::string& name) {
  return std::any_of(kReadEndings.begin(), kReadEndings.end(),
                     [&](std::string_view ending) { return endsWith(name, ending); });
}

} // namespace

ReadAhead::ReadAhead(const std::string& projectFile) : projectFolder_(folderOf(projectFile)) {
  if (!endsWith(projectFile, ".tvp"))
    return;
  toList_ = {(projectFolder_ + "/").append(kProfilesFolder),
             projectFile.substr(0, projectFile.size() - 4).append(kFilesFolderEnding),
             projectFolder_};
  fetch(kFirstSteps);
  if (toList_.empty() && current_ == nullptr)
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

FolderIndex::Folders ReadAhead::take() {
  stop();
  return std::move(fetched_);
}

void ReadAhead::stop() {
  isStopped_ = true;
  if (rest_.valid())
    rest_.wait();
}

void ReadAhead::fetch(std::size_t mostSteps) {
  while (mostSteps-- != 0 && !isStopped_ && step()) {
  }
}

// Lists a folder or looks at an entry of the current one; false when all is done.
bool ReadAhead::step() {
  if (current_ != nullptr && looked_ < current_->second.entries.size()) {
    look(current_->second.entries[looked_++]);
    return true;
  }
  current_ = nullptr;
  if (toList_.empty())
    return false;
  std::string path = std::move(toList_.back());
  toList_.pop_back();
  list(std::move(path));
  return true;
}

// What cannot be had is left to the check, which tells of it.
void ReadAhead::list(std::string path) {
  FolderIndex::Folder folder = listedFolder(path);
  if (!folder.isListed)
    return;
  current_ = &*fetched_.emplace(std::move(path), std::move(folder)).first;
  looked_ = 0;
}

void ReadAhead::look(FolderIndex::Entry& entry) {
  const std::string& folder = current_->first;
  if (entry.isLink)
    return;
  // Of the project's folder the profiles are; other folders there may be anybody's.
  const bool isShared = folder == projectFolder_;
  if (entry.type == EntryType::kFolder && !isShared) {
    toList_.push_back((folder + "/").append(entry.name));
  } else if (entry.type == EntryType::kFile && textSize_ < kMostText &&
             (isShared ? endsWith(entry.name, kProfileEnding) : isRead(entry.name))) {
    entry.text = readText((folder + "/").append(entry.name), kLongestText);
    textSize_ += entry.text ? entry.text->size() : 0;
  }
}

} // namespace tervix::tool
