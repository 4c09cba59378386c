#include "project/ProfileSearch.h"

#include "model/TreeWalk.h"

namespace tervix {

CTervixProfile* profileNamed(const CTervixProject& project, const std::string& name) {
  return TreeWalk::firstProfile(project, NodeKey::kName, name).profile;
}

CTervixProfile* profileWithPath(const CTervixProject& project, const std::string& simPath) {
  return TreeWalk::firstProfile(project, NodeKey::kPath, simPath).profile;
}

} // namespace tervix
