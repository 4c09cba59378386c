#include <vector>

#include "CTervixProject.h"
#include "foundation/ErrorTable.h"
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

// The names that the file holds. A simulation project's file has all keys of a profile file, some
// of them without a value, but two suffice.
unsigned long readKey(ProfileKey& key, const std::string& simPath, const CTervixProject& project) {
  if (!tervix::isSimulation(project))
    return tervix::readProfileNameAndRoot(key.schematic, key.profile, simPath);
  tervix::SimProjectInfo info;
  unsigned long status = tervix::readSimProjectInfo(info, simPath);
  if (status == tervix::kInvalidSimFile)
    status = tervix::readProfileNameAndRoot(info.rootSchematic, info.profileName, simPath);
  if (status != 0)
    return status;
  key = {info.rootSchematic, info.profileName};
  completeFromPlace(key, simPath, project);
  return 0;
}

// The paths under which the tree may list the profile of a file: its own, then those that its
// names give beside it.
std::vector<std::string> candidatePaths(const std::string& simPath, const ProfileKey& key,
                                        const std::string& design) {
  std::vector<std::string> paths = {simPath};
  const auto own = tervix::folderOf(tervix::toForwardSlashes(simPath));
  const std::string folder = own ? *own + "/" : std::string();
  if (!key.profile.empty())
    paths.push_back(folder + key.profile + tervix::kSimEnding);
  if (!key.isWhole())
    return paths;
  for (const std::string& name :
       {key.schematic + "-" + key.profile, tervix::longNameOf(design, key.schematic, key.profile),
        key.schematic + "/" + key.profile})
    paths.push_back(folder + name + tervix::kSimEnding);
  return paths;
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
  if (CTervixNode* renamed = renamedProfileOf(profileFilePath); renamed != nullptr)
    return handOut(renamed, tervix::changedNameOf(*this).former);
  ProfileKey key;
  const unsigned long status = readKey(key, profileFilePath, *this);
  // Composed first, as the caller may want a name in the string that holds the path.
  std::vector<std::string> candidates = candidatePaths(profileFilePath, key, designName_);
  if (!key.schematic.empty())
    schematicName = key.schematic;
  if (!key.profile.empty())
    profileName = key.profile;
  if (key.isWhole() && findProfile(profile, key.schematic, key.profile) == 0)
    return 0;
  for (std::string& candidate : candidates) {
    bool exists = false;
    CTervixNode* found = nullptr;
    simProfileExists(exists, found, candidate);
    if (exists) {
      profileFilePath = candidate;
      return handOut(found, tervix::nameOf(*found));
    }
  }
  return status != 0 ? status : 1;
}
