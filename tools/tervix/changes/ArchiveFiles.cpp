#include "tools/tervix/changes/ArchiveFiles.h"

#include <algorithm>
#include <filesystem>

#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

// The names in a folder, in an order that does not depend on the disk.
std::vector<std::string> namesIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code error;
  fs::directory_iterator entries(folder, error);
  for (; !error && entries != fs::directory_iterator(); entries.increment(error))
    names.push_back(entries->path().filename().string());
  if (error)
    throw Failure("the folder " + inQuotes(folder) + " could not be read: " + error.message());
  std::sort(names.begin(), names.end());
  return names;
}

std::string entryOf(const std::string& folder, const std::string& name) {
  return folder + "/" + name;
}

fs::file_type typeOf(const std::string& place) {
  std::error_code error;
  return fs::status(place, error).type();
}

} // namespace

ArchiveFiles::ArchiveFiles(ArchivePaths& paths, std::string archive)
    : paths_(paths), archive_(std::move(archive)) {}

void ArchiveFiles::remark(const std::string& kind, const std::string& path,
                          const std::string& text) {
  if (remarked_.insert({path, text}).second)
    remarks_.push_back({kind, path, text});
}

void ArchiveFiles::addFolder(const std::string& folder) {
  std::error_code error;
  const std::string real = fs::canonical(folder, error).generic_string();
  if (error)
    throw Failure("the folder " + inQuotes(folder) + " could not be read: " + error.message());
  const auto isHeld = [&](const std::string& holder) { return liesIn(holder, real); };
  if (std::any_of(within_.begin(), within_.end(), isHeld))
    return remark("link", folder, "leads to a folder that holds it; not followed");
  if (liesIn(archive_, real))
    throw Failure("the archive would lie in " + inQuotes(folder) + ", which it is to hold");
  folders_.insert(folder);
  paths_.addFolder(folder);
  within_.push_back(real);
  for (const std::string& name : namesIn(folder)) {
    const std::string place = entryOf(folder, name);
    if (typeOf(place) != fs::file_type::directory) {
      addEntry(place);
      continue;
    }
    addFolder(place);
    if (!paths_.isOwn(place) && folders_.count(place) != 0)
      paths_.keepTogether(folder, place);
  }
  within_.pop_back();
}

void ArchiveFiles::addFilesNamed(const std::string& folder,
                                 const std::vector<std::string>& beginnings) {
  if (typeOf(folder) != fs::file_type::directory)
    return;
  for (const std::string& name : namesIn(folder)) {
    const std::string place = entryOf(folder, name);
    const auto isMeant = [&](const std::string& beginning) {
      return name.rfind(beginning, 0) == 0;
    };
    if (std::any_of(beginnings.begin(), beginnings.end(), isMeant) &&
        typeOf(place) != fs::file_type::directory)
      addEntry(place);
  }
}

void ArchiveFiles::addEntry(const std::string& place) {
  if (addFile(place))
    return;
  if (typeOf(place) == fs::file_type::not_found)
    remark("link", place, "leads nowhere; not copied");
  else
    remark("special", place, "is not a regular file; not copied");
}

bool ArchiveFiles::addFile(const std::string& place) {
  if (typeOf(place) != fs::file_type::regular)
    return false;
  if (files_.insert(place).second)
    paths_.addFile(place);
  return true;
}

bool ArchiveFiles::addNamed(const std::string& place, const std::string& by) {
  if (addFile(place))
    return true;
  // Its name is to lead into the archive all the same, where the file may be put later.
  paths_.addFile(place);
  const std::string named = " (named by \"" + by + "\")";
  const fs::file_type type = typeOf(place);
  if (type == fs::file_type::directory)
    remark("folder", place, "is a folder, not a file; not copied" + named);
  else if (type == fs::file_type::not_found || type == fs::file_type::none)
    remark("missing", place, "is not there" + named);
  else
    remark("special", place, "is not a regular file; not copied" + named);
  return false;
}

} // namespace tervix::tool
