#include "tools/tervix/changes/Removal.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

void removeFile(ChangePlan& plan, const std::string& path) {
  std::error_code error;
  const fs::file_type type = fs::symlink_status(path, error).type();
  const bool isThere = type != fs::file_type::not_found && type != fs::file_type::directory;
  if (isThere && std::find(plan.removed.begin(), plan.removed.end(), path) == plan.removed.end())
    plan.removed.push_back(path);
}

// A folder that belongs to what is removed, with all that lies in it.
void removeFolder(ChangePlan& plan, const std::string& folder) {
  if (!fs::is_directory(fs::symlink_status(folder)))
    return;
  std::vector<std::string> folders = {folder};
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (fs::is_directory(entry.symlink_status()))
      folders.push_back(entry.path().generic_string());
    else
      removeFile(plan, entry.path().generic_string());
  }
  std::sort(folders.rbegin(), folders.rend());
  for (const std::string& inner : folders)
    if (std::find(plan.removedFolders.begin(), plan.removedFolders.end(), inner) ==
        plan.removedFolders.end())
      plan.removedFolders.push_back(inner);
}

} // namespace

void removeProfileFiles(ChangePlan& plan, const ProjectLayout& layout, const std::string& schematic,
                        const std::string& profile) {
  const ProfilePlaces places = layout.placesOf(schematic, profile);
  removeFile(plan, places.sim);
  for (const std::string& file : layout.filesOf(schematic, profile))
    removeFile(plan, file);
  if (layout.isSimulation())
    removeFolder(plan, places.folder);
}

void removeSchematicFiles(ChangePlan& plan, const ProjectLayout& layout,
                          const std::string& schematic) {
  const SchematicPlaces places = layout.placesOf(schematic);
  for (const std::string& file : places.files)
    removeFile(plan, file);
  if (layout.isSimulation() && layout.hasDesignFile())
    removeFolder(plan, places.folder);
}

void keepFilesNamedBy(ChangePlan& plan, const ProjectView& project, const ExpectedTree& remaining) {
  std::set<std::string> kept;
  const auto keep = [&](const std::vector<FileView>& files) {
    for (const FileView& file : files)
      if (const auto place = std::find(plan.removed.begin(), plan.removed.end(), file.place);
          place != plan.removed.end()) {
        plan.removed.erase(place);
        kept.insert(file.place);
      }
  };
  keep(project.variants);
  for (const SchematicView& schematic : project.schematics)
    for (const ProfileView& profile : schematic.profiles)
      if (remaining.count({schematic.name, profile.name}) != 0)
        keep(profile.variants);
  const auto holdsKept = [&](const std::string& folder) {
    return std::any_of(kept.begin(), kept.end(),
                       [&](const std::string& file) { return file.rfind(folder + "/", 0) == 0; });
  };
  plan.removedFolders.erase(
      std::remove_if(plan.removedFolders.begin(), plan.removedFolders.end(), holdsKept),
      plan.removedFolders.end());
}

} // namespace tervix::tool
