#include <algorithm>

#include "CTervixProject.h"
#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"
#include "model/TreeWalk.h"
#include "project/ProfileSearch.h"

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

bool matches(const PathRewrite& rewrite, char a, char b) {
  return rewrite.ignoresCase ? tervix::toLowerCase(a) == tervix::toLowerCase(b) : a == b;
}

// Where text holds the piece with the new name, from a position on.
std::size_t placeOfChanged(const PathRewrite& rewrite, const std::string& text, std::size_t from) {
  const std::string& piece = rewrite.changedPiece;
  const auto place =
      std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), piece.begin(),
                  piece.end(), [&](char a, char b) { return matches(rewrite, a, b); });
  return place == text.end() ? std::string::npos : static_cast<std::size_t>(place - text.begin());
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
  // A former name that brings the new one back in is put in once; any other rewriting ends.
  const bool comesBack = placeOfChanged(rewrite, rewrite.formerPiece, 0) != std::string::npos;
  profile = tervix::profileWithPath(*this, simPath);
  // No more often than the path has characters, whatever the names.
  std::size_t left = rewrite.changedPiece.empty() ? 0 : comesBack ? 1 : simPath.size();
  for (std::size_t from = 0; profile == nullptr && left > 0; --left) {
    const std::size_t place = placeOfChanged(rewrite, simPath, from);
    if (place == std::string::npos)
      break;
    simPath.replace(place, rewrite.changedPiece.size(), rewrite.formerPiece);
    profile = tervix::profileWithPath(*this, simPath);
    // What stands before can hold the piece only where it reaches into what was put in.
    from = place - std::min(place, rewrite.changedPiece.size() - 1);
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
  if (record.kind == RENAME_TYPE_SCHEMATIC && schematicName == record.former)
    schematicName = record.changed;
  return 0;
}
