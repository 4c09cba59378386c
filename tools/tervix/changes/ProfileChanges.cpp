#include "tools/tervix/changes/ProfileChanges.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include "foundation/platform/Platform.h"
#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/changes/Lookup.h"
#include "tools/tervix/changes/NamedPath.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/changes/OpenFormats.h"
#include "tools/tervix/changes/ProjectCheck.h"
#include "tools/tervix/changes/ProjectLayout.h"
#include "tools/tervix/changes/Removal.h"
#include "tools/tervix/changes/Renaming.h"
#include "tools/tervix/changes/SimText.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

// A file as its neighbours name it: bare beside them, otherwise "./" and the way there.
std::string seenFrom(const std::string& folder, const std::string& path) {
  const std::string relative = fs::path(path).lexically_relative(folder).generic_string();
  return relative.find('/') == std::string::npos || relative.rfind("../", 0) == 0 ? relative
                                                                                  : "./" + relative;
}

// The text of a new profile's ".sim" file. A simulation project leaves to the place of the file
// what it belongs to.
std::string simTextFor(const ProjectLayout& layout, const ProjectView& view,
                       const std::string& schematic, const std::string& name) {
  const ProfilePlaces places = layout.placesOf(schematic, name);
  const std::vector<std::string> files = layout.filesOf(schematic, name);
  const std::string folder = fs::path(places.sim).parent_path().generic_string();
  const auto fileName = [](const std::string& path) {
    return fs::path(path).filename().generic_string();
  };
  return newSim([&](SimKey key) -> std::string {
    const bool isPlaced = layout.isSimulation();
    switch (key) {
    case SimKey::kProfileName:
      return name;
    case SimKey::kProfileFile:
      return fileName(places.sim);
    case SimKey::kRootSchematics:
      return isPlaced ? "" : schematic;
    case SimKey::kDesignFile:
      return isPlaced ? "" : layout.hasDesignFile() ? fileName(view.design.place) : layout.design;
    case SimKey::kProjectFile:
      return isPlaced ? "" : fileName(layout.projectFile);
    case SimKey::kNetlistFile:
      return fileName(files[PROFILE_FILE_CIR]);
    case SimKey::kDataFile:
      return seenFrom(folder, files[PROFILE_FILE_DAT]);
    case SimKey::kOutFile:
      return seenFrom(folder, files[PROFILE_FILE_OUT]);
    }
    return {};
  });
}

std::vector<std::string> allPaths(const ProjectLayout& layout, const std::string& schematic,
                                  const std::string& name) {
  const ProfilePlaces places = layout.placesOf(schematic, name);
  std::vector<std::string> paths = layout.filesOf(schematic, name);
  paths.push_back(places.sim);
  if (layout.isSimulation())
    paths.push_back(places.folder);
  return paths;
}

// A file or folder that is there already would become the new profile's, and be deleted with it.
// On a disk that ignores case it may be what is renamed.
void requireNothingThere(const ProjectLayout& layout, const std::string& schematic,
                         const std::string& name, const std::string& formerName) {
  const auto paths = allPaths(layout, schematic, name);
  const auto former = formerName.empty() ? paths : allPaths(layout, schematic, formerName);
  for (std::size_t i = 0; i < paths.size(); ++i)
    if (isThere(paths[i]) && (formerName.empty() || !platform::isSameEntry(paths[i], former[i])))
      throw Failure(
          inQuotes(paths[i]) +
          " is there already and would become part of the new profile; nothing was changed");
}

// What a profile is called in its ".sim" file decides where the library looks for its files.
FoundProfile profileWithFile(const ProjectView& view, const std::string& schematic,
                             const std::string& name) {
  const FoundProfile found = profileNamed(view, schematic, name);
  if (!found.profile.sim.exists)
    throw Failure("profile " + inQuotes(found.profile.name) + " has no file " +
                  inQuotes(found.profile.sim.place) +
                  "; does the name in its .sim file differ from the file's?");
  return found;
}

struct UnusedProfile {
  std::string schematic;
  std::string name;
  std::string sim;
};

// The registered file that belongs to the name in any case and is no valid profile, or is not
// there: the library passed it over.
std::optional<UnusedProfile> unusedProfile(const ProjectView& view, const ProjectLayout& layout,
                                           const std::string& schematic, const std::string& name) {
  if (name.empty())
    return std::nullopt;
  for (const SchematicView& candidate : view.schematics) {
    if (!schematic.empty() && !isSameName(candidate.name, schematic))
      continue;
    const std::string sim = layout.placesOf(candidate.name, name).sim;
    for (const FileView& file : view.unusedProfiles)
      if (isSameName(file.place, sim)) {
        const std::size_t start = sim.size() - std::string(".sim").size() - name.size();
        return UnusedProfile{candidate.name, file.place.substr(start, name.size()), file.place};
      }
  }
  return std::nullopt;
}

void unregister(ChangePlan& plan, OpenFormatFile& file, const ProjectLayout& layout,
                const std::string& sim) {
  file.removeProfiles([&](const std::string& text) {
    return placeOf({text, layout.folder}) == sim;
  });
  plan.rewritten.push_back({layout.projectFile, file.text()});
}

// Such a profile is no part of the tree: all but what is registered and on disk stays the same.
ChangePlan planUnusedDelete(const ProjectView& view, const ProjectLayout& layout,
                            const UnusedProfile& profile) {
  ChangePlan plan;
  plan.title = "delete profile " + profile.name + " of schematic " + profile.schematic;
  plan.projectFile = layout.projectFile;
  const ExpectedTree expected = treeOf(view);
  removeProfileFiles(plan, layout, profile.schematic, profile.name);
  keepFilesNamedBy(plan, view, expected);
  OpenFormatFile file(layout.projectFile);
  unregister(plan, file, layout, profile.sim);
  checkTree(plan, layout, expected);
  return plan;
}

} // namespace

ChangePlan planProfileAdd(CTervixProject& project, const std::string& schematicName,
                          const std::string& name) {
  const ProjectView view = viewOf(project);
  const ProjectLayout layout = layoutOf(project);
  const SchematicView& schematic = schematicForNew(view, schematicName);
  requireUsableName(name, "profile");
  requireFreeProfileName(schematic, name, "");
  const ProfilePlaces places = layout.placesOf(schematic.name, name);

  requireNothingThere(layout, schematic.name, name, "");

  ChangePlan plan;
  plan.title = "add profile " + name + " to schematic " + schematic.name;
  plan.projectFile = layout.projectFile;
  plan.made.push_back({places.sim, "", simTextFor(layout, view, schematic.name, name), false});
  if (layout.hasDesignFile()) {
    OpenFormatFile file(layout.projectFile);
    const auto isIt = [&](const FileView& listed) { return listed.place == places.sim; };
    if (std::none_of(view.unusedProfiles.begin(), view.unusedProfiles.end(), isIt)) {
      file.addProfile(seenFrom(layout.folder, places.sim));
      plan.rewritten.push_back({layout.projectFile, file.text()});
    }
  }
  ExpectedTree expected = treeOf(view);
  expected.insert({schematic.name, name});
  checkTree(plan, layout, expected);
  return plan;
}

ChangePlan planProfileCopy(CTervixProject& project, const std::string& schematicName,
                           const std::string& name, const std::string& newName) {
  Renaming copying(project);
  const auto [schematic, profile] = profileWithFile(copying.view(), schematicName, name);
  requireUsableName(newName, "profile");
  requireFreeProfileName(schematic, newName, "");
  requireNothingThere(copying.before(), schematic.name, newName, "");
  return copying.planCopy(schematic.name, profile.name, newName,
                          "copy profile " + profile.name + " to " + newName);
}

ChangePlan planProfileRename(CTervixProject& project, const std::string& schematicName,
                             const std::string& name, const std::string& newName) {
  Renaming renaming(project);
  const auto [schematic, profile] = profileWithFile(renaming.view(), schematicName, name);
  requireUsableName(newName, "profile");
  if (profile.name == newName)
    throw Failure("the profile is named " + inQuotes(newName) + " already");
  requireFreeProfileName(schematic, newName, profile.name);
  requireNothingThere(renaming.before(), schematic.name, newName, profile.name);
  renaming.renameProfile(schematic.name, profile.name, newName);
  return renaming.plan("rename profile " + profile.name + " to " + newName);
}

ChangePlan planProfileDelete(CTervixProject& project, const std::string& schematicName,
                             const std::string& name) {
  const ProjectView view = viewOf(project);
  const ProjectLayout layout = layoutOf(project);
  if (const auto unused = unusedProfile(view, layout, schematicName, name))
    return planUnusedDelete(view, layout, *unused);
  const auto [schematic, profile] = profileWithFile(view, schematicName, name);
  ChangePlan plan;
  plan.title = "delete profile " + profile.name + " of schematic " + schematic.name;
  plan.projectFile = layout.projectFile;
  ExpectedTree expected = treeOf(view);
  expected.erase({schematic.name, profile.name});
  removeProfileFiles(plan, layout, schematic.name, profile.name);
  plan.deleted.emplace_back(schematic.name, profile.name);
  keepFilesNamedBy(plan, view, expected);
  if (layout.hasDesignFile()) {
    OpenFormatFile file(layout.projectFile);
    file.renameActive([&name = profile.displayName](const std::string& active) {
      return isSameName(active, name) ? std::string() : active;
    });
    unregister(plan, file, layout, profile.sim.place);
    checkTree(plan, layout, expected);
  }
  return plan;
}

ChangePlan planProfileActivate(CTervixProject& project, const std::string& schematicName,
                               const std::string& name) {
  const ProjectView view = viewOf(project);
  const ProjectLayout layout = layoutOf(project);
  if (!layout.hasDesignFile())
    throw Failure("a project of front end 1 keeps no active profile");
  const auto [schematic, profile] = profileNamed(view, schematicName, name);
  if (!schematic.root)
    throw Failure(inQuotes(schematic.name) +
                  " is not the root schematic; only the root's profiles can be active");
  ChangePlan plan;
  plan.title = "activate profile " + profile.displayName;
  plan.projectFile = layout.projectFile;
  OpenFormatFile file(layout.projectFile);
  file.setActive(profile.displayName);
  if (file.text() != contentOf(layout.projectFile))
    plan.rewritten.push_back({layout.projectFile, file.text()});
  checkTree(plan, layout, treeOf(view));
  return plan;
}

} // namespace tervix::tool
