#include <algorithm>

#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/check/Checkers.h"
#include "tools/tervix/check/Paths.h"

// The root schematic and the active profile must be some of those that there are; the project file
// of front end 1 bears the name by which it is found.

namespace tervix::tool {
namespace {

void checkRoot(const ProjectFacts& facts, Findings& findings) {
  if (!facts.rootSchematic.empty() && !facts.hasSchematic(facts.rootSchematic))
    findings.add(Code::kUnknownRoot, facts.rootPlace,
                 "the root schematic " + inQuotes(facts.rootSchematic) +
                     " is not one of the design's schematics");
}

void checkActive(const ProjectFacts& facts, Findings& findings) {
  if (facts.activeProfile.empty())
    return;
  const auto isActive = [&](const LoadedProfile& profile) {
    return profile.isOfRoot && isSameName(profile.displayName, facts.activeProfile);
  };
  if (std::none_of(facts.loaded.begin(), facts.loaded.end(), isActive))
    findings.add(Code::kUnknownActive, facts.activePlace,
                 "the active profile " + inQuotes(facts.activeProfile) +
                     " is not a profile of the root schematic");
}

void checkProjectName(const ProjectFacts& facts, Findings& findings) {
  const std::string folder = nameOf(folderOf(facts.layout.folder));
  const std::string name = nameOf(facts.layout.projectFile);
  if (!facts.isFrontEnd2() && !isSameName(name, folder + ".tvp"))
    findings.add(Code::kMisnamedProject, {facts.layout.projectFile},
                 "the design is named after its folder, " + inQuotes(folder) +
                     ", and a profile is opened with " + inQuotes(folder + ".tvp"));
}

} // namespace

void checkSelection(ProjectFacts& facts, Findings& findings) {
  checkRoot(facts, findings);
  // Without a root no profile can be active, and that has been told.
  if (!facts.knowsDesign())
    return;
  if (facts.rootSchematic.empty() || facts.hasSchematic(facts.rootSchematic))
    checkActive(facts, findings);
  checkProjectName(facts, findings);
}

} // namespace tervix::tool
