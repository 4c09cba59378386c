#include "tools/tervix/changes/ArchivePaths.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "tools/tervix/changes/Folders.h"
#include "tools/tervix/changes/Names.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

constexpr const char* kExternal = "external";

std::string commonFolder(const std::string& a, const std::string& b) {
  const fs::path first = a;
  const fs::path second = b;
  fs::path common;
  const auto end = std::mismatch(first.begin(), first.end(), second.begin(), second.end()).first;
  for (auto part = first.begin(); part != end; ++part)
    common /= *part;
  return common.generic_string();
}

// A name for the copy of a folder which can stand in every text that has to name it.
std::string nameFor(const std::string& folder) {
  std::string name = fs::path(folder).filename().string();
  for (char& c : name)
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f || c == '"' || c == '\'' || c == ':' ||
        c == '\\')
      c = '_';
  return name.empty() ? "root" : name;
}

// The name, numbered when it is taken in whatever case.
std::string freeName(std::vector<std::string>& taken, const std::string& name) {
  std::string free = name;
  const auto isTaken = [&](const std::string& other) { return isSameName(other, free); };
  for (int number = 2; std::any_of(taken.begin(), taken.end(), isTaken); ++number)
    free = name + "-" + std::to_string(number);
  taken.push_back(free);
  return free;
}

} // namespace

bool liesIn(const std::string& path, const std::string& above) {
  if (path.rfind(above, 0) != 0)
    return false;
  const bool endsInSeparator = !above.empty() && above.back() == '/';
  return path.size() == above.size() || endsInSeparator || path[above.size()] == '/';
}

ArchivePaths::ArchivePaths(const std::string& root, std::string newRoot, std::string archive)
    : root_(root), realRoot_(fs::weakly_canonical(root).generic_string()),
      newRoot_(std::move(newRoot)), archive_(std::move(archive)) {}

bool ArchivePaths::isOwn(const std::string& place) const {
  return liesIn(place, root_);
}

std::string ArchivePaths::placeOf(const NamedPath& named) const {
  std::string place = tool::placeOf(named);
  std::string raw = named.text;
  std::replace(raw.begin(), raw.end(), '\\', '/');
  if (!isFullText(raw))
    raw = named.base + "/" + raw;
  std::error_code error;
  const fs::path real = fs::canonical(raw, error);
  if (error)
    return place;
  const bool isSame = fs::equivalent(place, real, error) && !error;
  if (isSame && isOwn(place))
    return place;
  std::string found = real.generic_string();
  if (liesIn(found, realRoot_))
    return root_ + found.substr(realRoot_.size());
  return isSame ? place : found;
}

// What stands in the archive's own folder must not be named as the folder of the others.
void ArchivePaths::noteOwn(const std::string& place) {
  const std::string newPlace = newRoot_ + place.substr(root_.size());
  const fs::path inArchive = fs::path(newPlace).lexically_relative(archive_);
  topNames_.push_back(inArchive.begin()->string());
}

void ArchivePaths::addFile(const std::string& place) {
  if (isOwn(place))
    return noteOwn(place);
  files_.insert(place);
  addFolder(folderHolding(place));
}

void ArchivePaths::addFolder(const std::string& place) {
  if (isOwn(place))
    return noteOwn(place);
  groupAbove_.insert({place, place});
}

std::string ArchivePaths::groupOf(const std::string& folder) const {
  const std::string& above = groupAbove_.at(folder);
  return above == folder ? folder : groupOf(above);
}

void ArchivePaths::keepTogether(const std::string& folder, const std::string& other) {
  if (isOwn(folder) || isOwn(other))
    return;
  addFolder(folder);
  addFolder(other);
  const std::string group = groupOf(folder);
  groupAbove_[groupOf(other)] = group;
}

void ArchivePaths::settle() {
  map_.moveFolder(root_, newRoot_);
  std::map<std::string, std::string> groupBases;
  for (const auto& [folder, above] : groupAbove_) {
    const auto [base, isFirst] = groupBases.insert({groupOf(folder), folder});
    if (!isFirst)
      base->second = commonFolder(base->second, folder);
  }
  std::set<std::string> bases; // in order, whichever folder stands for its group
  for (const auto& [group, base] : groupBases)
    bases.insert(base);
  const std::string external = archive_ + "/" + freeName(topNames_, kExternal);
  std::map<std::string, std::string> newBases;
  std::vector<std::string> taken;
  for (const std::string& base : bases)
    newBases[base] = external + "/" + freeName(taken, nameFor(base));
  for (const auto& [folder, above] : groupAbove_) {
    const std::string& base = groupBases.at(groupOf(folder));
    const std::string inGroup = fs::path(folder).lexically_relative(base).generic_string();
    map_.moveFolder(folder, newBases.at(base) + (inGroup == "." ? "" : "/" + inGroup));
  }
  for (const std::string& file : files_)
    // The root of a file system is no folder to the map.
    if (const std::string folder = folderHolding(file); folder.back() == '/') {
      const std::string& base = groupBases.at(groupOf(folder));
      map_.moveFile(file, newBases.at(base) + "/" + fs::path(file).filename().string());
    }
}

std::string ArchivePaths::textFor(const NamedPath& named, bool isNeverBare) const {
  const std::string newPlace = map_(placeOf(named));
  const std::string newBase = map_(named.base);
  if (!isFullText(named.text) && tool::placeOf({named.text, newBase}) == newPlace)
    return named.text;
  return relativeText(newPlace, newBase, named.text, isNeverBare);
}

} // namespace tervix::tool
