#include "CTervixProject.h"
#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"
#include "model/TreeWalk.h"
#include "project/ProfileSearch.h"

namespace {

constexpr std::string_view kAapBackupEnding = ".$ap";
constexpr std::string_view kAapEnding = ".aap";

// Spells a key with the former name of the recorded rename; false when it does not hold the new
// one.
bool toFormerKey(std::string& key, const tervix::ChangedName& record) {
  const auto replaceBetween = [&](const std::string& before, const std::string& after) {
    return tervix::replaceFirst(key, before + record.changed + after,
                                before + record.former + after);
  };
  switch (record.kind) {
  case RENAME_TYPE_SCHEMATIC:
    return replaceBetween("-", "-");
  case RENAME_TYPE_PROFILE: {
    const auto head = tervix::stripSuffix(key, "-" + record.changed + tervix::kMarkerEnding);
    if (!head)
      return false;
    key = std::string(*head) + "-" + record.former + tervix::kMarkerEnding;
    return true;
  }
  case RENAME_TYPE_DESIGN:
    return replaceBetween("", "-");
  default:
    return false;
  }
}

} // namespace

unsigned long CTervixProject::simProfileExists(bool& exists, CTervixNode*& profile,
                                               std::string& simPath) {
  profile = tervix::SimPathSearch(*this).find(simPath);
  exists = profile != nullptr;
  return 0;
}

unsigned long CTervixProject::aapExists(bool& exists, CTervixNode*& schematic,
                                        std::string& aapPath) {
  exists = false;
  schematic = nullptr;
  aapPath = tervix::toForwardSlashes(aapPath);
  if (const auto stem = tervix::stripSuffix(aapPath, kAapBackupEnding))
    aapPath = std::string(*stem).append(kAapEnding);
  for (CTervixSchematic& candidate : TreeWalk::schematicsOf(*this)) {
    std::string file;
    if (candidate.getSchematicBasedFile(file, SCHEMATIC_FILE_AAP) != 0 ||
        !tervix::equalsAsPath(file, aapPath))
      continue;
    exists = true;
    schematic = &candidate;
    return 0;
  }
  return 1;
}

unsigned long CTervixProject::markerKeyExists(bool& exists, std::string& markerKey) {
  exists = TreeWalk::firstProfile(*this, tervix::NodeKey::kMarkerKey, markerKey).profile != nullptr;
  return 0;
}

unsigned long CTervixProject::getDsnSchProfNamesForMarkerKey(std::string& designName,
                                                             std::string& schematicName,
                                                             std::string& profileName,
                                                             std::string& markerKey) {
  const auto [schematic, profile] =
      TreeWalk::firstProfile(*this, tervix::NodeKey::kMarkerKey, markerKey);
  designName = profile != nullptr ? designName_ : std::string();
  schematicName = profile != nullptr ? tervix::nameOf(*schematic) : std::string();
  profileName = profile != nullptr ? tervix::nameOf(*profile) : std::string();
  return 0;
}

unsigned long CTervixProject::getDsnSchProfNamesForNewMarkerKey(std::string& designName,
                                                                std::string& schematicName,
                                                                std::string& profileName,
                                                                std::string& newMarkerKey) {
  std::string key = newMarkerKey;
  designName.clear();
  schematicName.clear();
  profileName.clear();
  tervix::ChangedName record = tervix::changedNameOf(*this);
  if (record.kind == RENAME_TYPE_DESIGN && record.former.empty())
    record.former = designName_;
  if (!record.isWhole() || !toFormerKey(key, record))
    return 1;
  getDsnSchProfNamesForMarkerKey(designName, schematicName, profileName, key);
  // Deliberate: only a renamed schematic is reported under its new name.
  if (record.kind == RENAME_TYPE_SCHEMATIC &&
      tervix::equalsIgnoringCase(schematicName, record.former))
    schematicName = record.changed;
  return 0;
}
