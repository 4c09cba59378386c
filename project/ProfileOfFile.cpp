#include <algorithm>
#include <initializer_list>
#include <utility>

#include "CTervixProject.h"
#include "foundation/LastError.h"
#include "foundation/PathNames.h"
#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"
#include "model/SimFile.h"
#include "model/TreeWalk.h"
#include "project/ProfileSearch.h"

// Finding the profile that a ".sim" file belongs to.

namespace {

struct ProfileKey {
  std::string schematic;
  std::string profile;

  bool isWhole() const { return !schematic.empty() && !profile.empty(); }
};

std::string stemOfSim(const std::string& simPath) {
  const std::string name = tervix::fileNameOf(simPath);
  if (const auto stem = tervix::stripSuffix(name, tervix::kSimEnding))
    return std::string(*stem);
  return tervix::stemOf(name);
}

// Whether the file bears the new name of a renamed profile: as a whole, or behind the names of
// design and schematic.
bool bearsName(const std::string& simPath, const std::string& profileName) {
  const std::string stem = stemOfSim(simPath);
  return tervix::equalsIgnoringCase(stem, profileName) ||
         tervix::endsWithIgnoringCase(stem, "-" + profileName);
}

// Where a simulation project keeps its files, their place tells what the file leaves empty.
void completeFromPlace(ProfileKey& key, const std::string& simPath, const CTervixProject& project) {
  if (key.profile.empty())
    key.profile = stemOfSim(simPath);
  if (!key.schematic.empty())
    return;
  if (tervix::frontEndOf(project) == FRONTEND_ID_PROJECT_FILE) {
    key.schematic = tervix::designNameOf(project);
    return;
  }
  for (auto folder = tervix::folderOf(simPath); folder; folder = tervix::folderOf(*folder)) {
    const auto above = tervix::folderOf(*folder);
    if (!above || !tervix::endsWithIgnoringCase(*above, tervix::kFilesFolderEnding))
      continue;
    key.schematic = tervix::fileNameOf(*folder);
    return;
  }
}

// A file without them is no failure yet.
bool hasAllKeys(tervix::SimProjectInfo& info, const tervix::SimFile& file) {
  const tervix::LastErrorKept kept;
  return tervix::readSimProjectInfo(info, file) == 0;
}

// The names that the file holds. A simulation project's file has all keys of a profile file, some
// of them without a value, but two suffice.
unsigned long readKey(ProfileKey& key, const tervix::SimFile& file, const CTervixProject& project) {
  if (!tervix::isSimulation(project))
    return tervix::readProfileNameAndRoot(key.schematic, key.profile, file);
  tervix::SimProjectInfo info;
  if (!hasAllKeys(info, file))
    if (const unsigned long status =
            tervix::readProfileNameAndRoot(info.rootSchematic, info.profileName, file);
        status != 0)
      return status;
  key = {std::move(info.rootSchematic), std::move(info.profileName)};
  completeFromPlace(key, file.path(), project);
  return 0;
}

// Tries the paths under which the tree may list the profile of a file: its own, then those that
// its names give beside it. path becomes the one that leads to a profile.
CTervixProfile* profileAtPathOf(std::string& path, const std::string& simPath,
                                const ProfileKey& key, const CTervixProject& project) {
  const tervix::SimPathSearch search(project);
  path.reserve(simPath.size() + key.schematic.size() + key.profile.size() + 1);
  path = simPath;
  if (CTervixProfile* own = search.find(path); own != nullptr)
    return own;
  if (key.profile.empty())
    return nullptr;
  const std::size_t separator = simPath.find_last_of("/\\");
  const std::string_view folder = std::string_view(simPath).substr(0, separator + 1);
  const auto findBeside = [&](std::initializer_list<std::string_view> name) {
    path = folder;
    std::replace(path.begin(), path.end(), '\\', '/');
    for (const std::string_view piece : name)
      path += piece;
    path += tervix::kSimEnding;
    return path != simPath ? search.find(path) : nullptr;
  };
  CTervixProfile* found = findBeside({key.profile});
  if (found == nullptr && key.isWhole())
    found = findBeside({key.schematic, "-", key.profile});
  if (found == nullptr && key.isWhole())
    found = findBeside({tervix::designNameOf(project), "-", key.schematic, "-", key.profile});
  if (found == nullptr && key.isWhole())
    found = findBeside({key.schematic, "/", key.profile});
  return found;
}

} // namespace

// The profile that a recorded rename gives the file's name to: the one whose file this would be
// under the former name, otherwise the first of the former name.
CTervixNode* CTervixProject::renamedProfileOf(const std::string& simPath) {
  const tervix::ChangedName record = tervix::changedNameOf(*this);
  if (!record.isWholeFor(RENAME_TYPE_PROFILE) || !bearsName(simPath, record.changed))
    return nullptr;
  const std::string stem = stemOfSim(simPath);
  const std::string formerPath = tervix::folderOf(simPath).value_or(std::string()) + "/" +
                                 std::string(tervix::withoutLast(stem, record.changed.size())) +
                                 record.former + tervix::kSimEnding;
  CTervixNode* const atFormerPath =
      TreeWalk::firstProfile(*this, tervix::NodeKey::kPath, formerPath,
                             [&](const CTervixProfile& profile) {
                               return tervix::equalsIgnoringCase(tervix::nameOf(profile),
                                                                 record.former);
                             })
          .profile;
  if (atFormerPath != nullptr)
    return atFormerPath;
  // The record outlives the rename: a file that the tree lists by now stands for itself.
  return tervix::profileWithPath(*this, simPath) == nullptr
             ? tervix::profileNamed(*this, record.former)
             : nullptr;
}

unsigned long CTervixProject::findProfile(CTervixNode*& profile, std::string& schematicName,
                                          std::string& profileName, std::string& profileFilePath) {
  const std::string simPath = profileFilePath;
  return findProfileOf(profile, schematicName, profileName, profileFilePath,
                       tervix::SimFile(simPath));
}

// The outputs may be one string, so the file keeps a path of its own.
unsigned long CTervixProject::findProfileOf(CTervixNode*& profile, std::string& schematicName,
                                            std::string& profileName, std::string& profileFilePath,
                                            const tervix::SimFile& file) {
  profile = nullptr;
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  if (const unsigned long status = getFrontEndId(frontEnd); status != 0)
    return status;
  const auto handOut = [&](CTervixNode* found, const std::string& name) {
    profile = found;
    schematicName = tervix::nameOf(*tervix::parentOf(*found));
    profileName = name;
    return 0UL;
  };
  if (CTervixNode* renamed = renamedProfileOf(file.path()); renamed != nullptr)
    return handOut(renamed, tervix::changedNameOf(*this).former);
  ProfileKey key;
  const unsigned long status = readKey(key, file, *this);
  if (!key.schematic.empty())
    schematicName = key.schematic;
  if (!key.profile.empty())
    profileName = key.profile;
  if (key.isWhole() && findProfile(profile, key.schematic, key.profile) == 0)
    return 0;
  std::string path;
  if (CTervixProfile* listed = profileAtPathOf(path, file.path(), key, *this); listed != nullptr) {
    profileFilePath = path;
    return handOut(listed, tervix::nameOf(*listed));
  }
  return status != 0 ? status : 1;
}
