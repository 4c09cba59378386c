#include "project/ProfileSearch.h"

#include <algorithm>

#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"
#include "model/TreeWalk.h"

namespace tervix {
namespace {

constexpr std::string_view kBackupEnding = ".bak";

} // namespace

CTervixProfile* profileNamed(const CTervixProject& project, const std::string& name) {
  return TreeWalk::firstProfile(project, NodeKey::kName, name).profile;
}

CTervixProfile* profileWithPath(const CTervixProject& project, const std::string& simPath) {
  return TreeWalk::firstProfile(project, NodeKey::kPath, simPath).profile;
}

SimPathSearch::SimPathSearch(const CTervixProject& project) : project_(project) {
  const ChangedName record = changedNameOf(project);
  const PROJECT_TYPE type = projectTypeOf(project);
  if (record.isWholeFor(RENAME_TYPE_SCHEMATIC)) {
    const std::string edge = type == PROJECT_TYPE_OTHER ? "-" : "/";
    changedPiece_ = edge + record.changed + edge;
    formerPiece_ = edge + record.former + edge;
  } else if (record.isWholeFor(RENAME_TYPE_PROJECT) && type == PROJECT_TYPE_SIMULATION) {
    // Deliberate: a folder's name is matched in any case, a schematic's is not.
    changedPiece_ = "/" + filesFolder(record.changed);
    formerPiece_ = "/" + filesFolder(record.former);
    ignoresCase_ = true;
  }
}

// Where text holds the piece with the new name, from a position on.
std::size_t SimPathSearch::placeOfChanged(const std::string& text, std::size_t from) const {
  const auto place = std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(),
                                 changedPiece_.begin(), changedPiece_.end(), [&](char a, char b) {
                                   return ignoresCase_ ? toLowerCase(a) == toLowerCase(b) : a == b;
                                 });
  return place == text.end() ? std::string::npos : static_cast<std::size_t>(place - text.begin());
}

CTervixProfile* SimPathSearch::find(std::string& simPath) const {
  simPath.erase(std::min(simPath.find(kBackupEnding), simPath.size()));
  std::replace(simPath.begin(), simPath.end(), '\\', '/');
  CTervixProfile* const listed = profileWithPath(project_, simPath);
  return listed != nullptr || changedPiece_.empty() ? listed : findRenamed(simPath);
}

CTervixProfile* SimPathSearch::findRenamed(std::string& simPath) const {
  // A former name that brings the new one back in is put in once; any other rewriting ends.
  const bool comesBack = placeOfChanged(formerPiece_, 0) != std::string::npos;
  // No more often than the path has characters, whatever the names.
  CTervixProfile* profile = nullptr;
  std::size_t from = 0;
  for (std::size_t left = comesBack ? 1 : simPath.size(); profile == nullptr && left > 0; --left) {
    const std::size_t place = placeOfChanged(simPath, from);
    if (place == std::string::npos)
      break;
    simPath.replace(place, changedPiece_.size(), formerPiece_);
    profile = profileWithPath(project_, simPath);
    // What stands before can hold the piece only where it reaches into what was put in.
    from = place - std::min(place, changedPiece_.size() - 1);
  }
  return profile;
}

} // namespace tervix
