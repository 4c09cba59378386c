#include "project/ProfileSearch.h"

#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/TreeWalk.h"

namespace tervix {
namespace {

template <class Matches>
CTervixProfile* firstProfile(const CTervixProject& project, Matches matches) {
  CTervixProfile* found = nullptr;
  TreeWalk::anyProfile(project, [&](CTervixSchematic&, CTervixProfile& profile) {
    const bool isMatch = matches(profile);
    if (isMatch)
      found = &profile;
    return isMatch;
  });
  return found;
}

} // namespace

CTervixProfile* profileNamed(const CTervixProject& project, const std::string& name) {
  return firstProfile(project, [&](const CTervixProfile& profile) {
    std::string listed;
    return profile.getName(listed) == 0 && equalsIgnoringCase(listed, name);
  });
}

CTervixProfile* profileWithPath(const CTervixProject& project, const std::string& simPath) {
  return firstProfile(project, [&](const CTervixProfile& profile) {
    std::string path;
    return profile.getPath(path) == 0 && equalsAsPath(path, simPath);
  });
}

} // namespace tervix
