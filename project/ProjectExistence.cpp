#include "CTervixProject.h"
#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"
#include "model/TreeWalk.h"

namespace {

constexpr std::string_view kBackupEnding = ".bak";
constexpr std::string_view kAapBackupEnding = ".$ap";
constexpr std::string_view kAapEnding = ".aap";

// How a recorded rename shows in a path: the piece with the new name, and what it stands for.
struct PathRewrite {
  std::string changedPiece;
  std::string formerPiece;
  bool ignoresCase = false;
};

// None, with empty pieces, for a record that does not show in the paths of profiles.
PathRewrite rewriteFor(const tervix::ChangedName& record, PROJECT_TYPE type) {
  if (record.isWholeFor(RENAME_TYPE_SCHEMATIC)) {
    const std::string edge = type == PROJECT_TYPE_OTHER ? "-" : "/";
    return {edge + record.changed + edge, edge + record.former + edge, false};
  }
  // Deliberate: a folder's name is matched in any case, a schematic's is not.
  if (record.isWholeFor(RENAME_TYPE_PROJECT) && type == PROJECT_TYPE_SIMULATION)
    return {"/" + tervix::filesFolder(record.changed), "/" + tervix::filesFolder(record.former),
            true};
  return {};
}

std::string inCaseOf(const PathRewrite& rewrite, const std::string& text) {
  return rewrite.ignoresCase ? tervix::toLowerCase(text) : text;
}

// Puts the former name in the first place of the new one; false when there is none.
bool applyRewrite(const PathRewrite& rewrite, std::string& path) {
  if (rewrite.changedPiece.empty())
    return false;
  const std::string piece = inCaseOf(rewrite, rewrite.changedPiece);
  const std::size_t place = inCaseOf(rewrite, path).find(piece);
  if (place == std::string::npos)
    return false;
  path.replace(place, piece.size(), rewrite.formerPiece);
  return true;
}

// How often a path can be rewritten: once when the former name brings the new one back in,
// otherwise no more often than the path has characters.
std::size_t mostRewrites(const PathRewrite& rewrite, const std::string& path) {
  const bool comesBack = tervix::contains(inCaseOf(rewrite, rewrite.formerPiece),
                                          inCaseOf(rewrite, rewrite.changedPiece));
  return comesBack ? 1 : path.size();
}

CTervixNode* profileWithPath(const CTervixProject& project, const std::string& simPath) {
  CTervixNode* found = nullptr;
  TreeWalk::anyProfile(project, [&](CTervixSchematic&, CTervixProfile& profile) {
    std::string path;
    const bool isMatch = profile.getPath(path) == 0 && tervix::equalsAsPath(path, simPath);
    if (isMatch)
      found = &profile;
    return isMatch;
  });
  return found;
}

bool hasMarkerKey(const CTervixProfile& profile, const std::string& markerKey) {
  std::string key;
  profile.getMarkerKey(key);
  return tervix::equalsIgnoringCase(key, markerKey);
}

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
  simPath = tervix::toForwardSlashes(simPath.substr(0, simPath.find(kBackupEnding)));
  const PathRewrite rewrite =
      rewriteFor(tervix::changedNameOf(*this), tervix::projectTypeOf(*this));
  profile = profileWithPath(*this, simPath);
  for (std::size_t left = mostRewrites(rewrite, simPath); profile == nullptr && left > 0; --left) {
    if (!applyRewrite(rewrite, simPath))
      break;
    profile = profileWithPath(*this, simPath);
  }
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
  exists = TreeWalk::anyProfile(*this, [&](CTervixSchematic&, CTervixProfile& profile) {
    return hasMarkerKey(profile, markerKey);
  });
  return 0;
}

unsigned long CTervixProject::getDsnSchProfNamesForMarkerKey(std::string& designName,
                                                             std::string& schematicName,
                                                             std::string& profileName,
                                                             std::string& markerKey) {
  const std::string key = markerKey;
  designName.clear();
  schematicName.clear();
  profileName.clear();
  TreeWalk::anyProfile(*this, [&](CTervixSchematic& schematic, CTervixProfile& profile) {
    if (!hasMarkerKey(profile, key))
      return false;
    designName = designName_;
    schematicName = tervix::nameOf(schematic);
    profileName = tervix::nameOf(profile);
    return true;
  });
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
  if (record.kind == RENAME_TYPE_SCHEMATIC && schematicName == record.former)
    schematicName = record.changed;
  return 0;
}
