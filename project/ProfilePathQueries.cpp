#include <array>

#include "CTervixProject.h"
#include "foundation/LastError.h"
#include "foundation/PathNames.h"
#include "foundation/Text.h"
#include "model/FileSuffixes.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"
#include "project/ProfileSearch.h"

// Where a profile and its files lie, asked of the project by name or by ".sim" path.

namespace {

// The profile that stands in the tree under this name or path.
CTervixProfile* profileFor(const CTervixProject& project, const std::string& nameOrPath) {
  if (nameOrPath.empty())
    return nullptr;
  CTervixProfile* named = tervix::profileNamed(project, nameOrPath);
  return named != nullptr ? named : tervix::profileWithPath(project, nameOrPath);
}

bool isSimPath(const std::string& text) {
  return tervix::endsWithIgnoringCase(text, tervix::kSimEnding) ||
         tervix::splitAtFirstOf(text, "/\\").has_value();
}

// The former profile that a recorded rename gives this new name; null for any other name.
CTervixProfile* formerProfileOf(const CTervixProject& project, const std::string& newName) {
  const tervix::ChangedName record = tervix::changedNameOf(project);
  const bool isNewName =
      record.isWholeFor(RENAME_TYPE_PROFILE) && tervix::equalsIgnoringCase(record.changed, newName);
  return isNewName ? tervix::profileNamed(project, record.former) : nullptr;
}

// The name of a file in the place of its profile, which need not be in the tree.
std::string composedFile(const std::string& folder, const std::string& stem,
                         const std::string& suffix, bool isSimulation) {
  return folder + "/" +
         (isSimulation ? tervix::fileInFolder(stem, suffix) : tervix::fileBesideSim(stem, suffix));
}

std::string fileOfPath(const std::string& simPath, const std::string& suffix, bool isSimulation) {
  const std::string normal = tervix::toForwardSlashes(simPath);
  const std::string folder = tervix::folderOf(normal).value_or(".");
  const std::string name = tervix::fileNameOf(normal);
  const std::string stem(tervix::stripSuffix(name, tervix::kSimEnding).value_or(name));
  return composedFile(isSimulation ? folder + "/" + stem : folder, stem, suffix, isSimulation);
}

std::string fileUnderNewName(const CTervixProject& project, const CTervixProfile& former,
                             const std::string& newName, const std::string& suffix) {
  const std::string folder = tervix::folderPathOf(former);
  if (tervix::isSimulation(project))
    return composedFile(tervix::folderOf(folder).value_or(folder) + "/" + newName, newName, suffix,
                        true);
  std::string stem = newName;
  if (tervix::frontEndOf(project) == FRONTEND_ID_DESIGN_FILE)
    stem = tervix::longNameOf(tervix::designNameOf(project),
                              tervix::nameOf(*tervix::parentOf(former)), newName);
  return composedFile(folder, stem, suffix, false);
}

// A ".sim" path of front end 1 under the new name of the recorded rename, if its file is named
// after what was renamed.
void followRename(std::string& simPath, const CTervixProject& project, const CTervixNode& schematic,
                  const CTervixNode& profile) {
  const tervix::ChangedName record = tervix::changedNameOf(project);
  if (!record.isWholeFor(RENAME_TYPE_SCHEMATIC) && !record.isWholeFor(RENAME_TYPE_PROFILE))
    return;
  const bool isSchematic = record.kind == RENAME_TYPE_SCHEMATIC;
  const CTervixNode& renamed = isSchematic ? schematic : profile;
  if (!tervix::equalsIgnoringCase(tervix::nameOf(renamed), record.former))
    return;
  const std::string design = tervix::designNameOf(project);
  const auto forms = [&](const std::string& name) {
    const std::string inSchematic = isSchematic ? name : tervix::nameOf(schematic);
    const std::string own = isSchematic ? tervix::nameOf(profile) : name;
    return std::array<std::string, 3>{tervix::longNameOf(design, inSchematic, own),
                                      inSchematic + "-" + own, own};
  };
  const std::string name = tervix::fileNameOf(simPath);
  const auto stem = tervix::stripSuffix(name, tervix::kSimEnding);
  const auto former = forms(record.former);
  const auto changed = forms(record.changed);
  for (std::size_t form = 0; stem && form < former.size(); ++form) {
    const bool isRenamed = former.at(form) != changed.at(form);
    if (!isRenamed || !tervix::equalsIgnoringCase(*stem, former.at(form)))
      continue;
    const auto folder = tervix::folderOf(simPath);
    simPath = (folder ? *folder + "/" : "") + changed.at(form) + name.substr(stem->size());
    return;
  }
}

} // namespace

// Finds the profile of a schematic, also by the new name of a recorded rename.
unsigned long CTervixProject::findProfileIn(CTervixNode*& schematic, CTervixNode*& profile,
                                            std::string& schematicName, std::string& profileName) {
  profile = nullptr;
  if (const unsigned long status = findSchematic(schematic, schematicName); status != 0)
    return status;
  auto& holder = static_cast<CTervixSchematic&>(*schematic);
  const unsigned long status = holder.findProfile(profile, profileName);
  tervix::ChangedName record = tervix::changedNameOf(*this);
  if (status == 0 || !record.isWholeFor(RENAME_TYPE_PROFILE) ||
      !tervix::equalsIgnoringCase(record.changed, profileName))
    return status;
  return holder.findProfile(profile, record.former);
}

unsigned long CTervixProject::getProfilePathForSchProf(std::string& path,
                                                       std::string& schematicName,
                                                       std::string& profileName) {
  CTervixNode* schematic = nullptr;
  CTervixNode* profile = nullptr;
  std::string simPath;
  unsigned long status = findProfileIn(schematic, profile, schematicName, profileName);
  if (status == 0)
    status = profile->getPath(simPath);
  if (status == 0 && tervix::frontEndOf(*this) == FRONTEND_ID_PROJECT_FILE)
    followRename(simPath, *this, *schematic, *profile);
  path = simPath;
  return status;
}

unsigned long CTervixProject::getProfilePathForAapProf(std::string& path, std::string& aapPath,
                                                       std::string& profileName) {
  bool exists = false;
  CTervixNode* schematic = nullptr;
  if (const unsigned long status = aapExists(exists, schematic, aapPath); status != 0) {
    path.clear();
    return status;
  }
  std::string schematicName = tervix::nameOf(*schematic);
  return getProfilePathForSchProf(path, schematicName, profileName);
}

unsigned long CTervixProject::getParentNameForProfile(std::string& name, std::string& profile) {
  std::string wanted = profile;
  name.clear();
  CTervixNode* found = profileFor(*this, wanted);
  if (found == nullptr)
    found = formerProfileOf(*this, wanted);
  if (found == nullptr && isSimPath(wanted)) {
    const tervix::LastErrorKept kept;
    std::string schematicName;
    std::string profileName;
    findProfile(found, schematicName, profileName, wanted);
  }
  if (found == nullptr)
    return 1;
  return tervix::parentOf(*found)->getName(name);
}

unsigned long CTervixProject::getProfileBasedFile(std::string& path, std::string& profile,
                                                  PROFILEFILE_TYPE type) {
  const auto index = static_cast<unsigned>(type);
  if (index >= tervix::kProfileFileSuffixes.size()) {
    path.clear();
    return tervix::raiseError(tervix::kInvalidProfileFileType);
  }
  std::string suffix = tervix::kProfileFileSuffixes[index];
  return getProfileBasedFile(path, profile, suffix);
}

unsigned long CTervixProject::getProfileBasedFile(std::string& path, std::string& profile,
                                                  std::string& suffix) {
  std::string found;
  const unsigned long status = profileBasedFile(found, profile, suffix);
  path = found;
  return status;
}

unsigned long CTervixProject::profileBasedFile(std::string& path, const std::string& profile,
                                               std::string& suffix) const {
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  if (const unsigned long status = getFrontEndId(frontEnd); status != 0)
    return status;
  if (CTervixProfile* listed = profileFor(*this, profile); listed != nullptr)
    return listed->getProfileBasedFile(path, suffix);
  if (frontEnd != FRONTEND_ID_PROJECT_FILE && frontEnd != FRONTEND_ID_DESIGN_FILE)
    return 1;
  if (const CTervixProfile* former = formerProfileOf(*this, profile); former != nullptr)
    path = fileUnderNewName(*this, *former, profile, suffix);
  else if (isSimPath(profile))
    path = fileOfPath(profile, suffix, tervix::isSimulation(*this));
  else
    return 1;
  return 0;
}
