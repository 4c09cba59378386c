#include "tools/tervix/ProjectView.h"

#include <filesystem>
#include <list>
#include <unordered_set>
#include <utility>

#include <tvx_wobj.h>

#include "model/FileSuffixes.h"
#include "tools/tervix/VariantKinds.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

// Reads one text of a node through its getter; empty when it is not set.
template <class Object, class Getter> std::string textOf(Object& object, Getter getter) {
  std::string text;
  (object.*getter)(text);
  return text;
}

bool isFile(const std::string& path) {
  std::string copy = path;
  bool exists = false;
  filePathExists(copy, exists);
  return exists;
}

// A file that a project or profile names, with its place: relative names start in folder.
FileView namedFile(const std::string& kind, const std::string& path, const std::string& folder) {
  std::string forward = path;
  for (char& c : forward)
    c = c == '\\' ? '/' : c;
  const bool hasDrive = forward.size() > 1 && forward[1] == ':';
  const fs::path place = hasDrive ? fs::path(forward) : fs::path(folder) / forward;
  return {kind, path, place.lexically_normal().generic_string(), isFile(place.generic_string())};
}

ProfileView viewOf(CTervixProfile& profile) {
  ProfileView view{};
  view.name = textOf(profile, &CTervixProfile::getName);
  view.displayName = textOf(profile, &CTervixProfile::getDisplayName);
  if (view.displayName.empty())
    view.displayName = view.name;
  profile.isActive(view.active);
  view.folder = textOf(profile, &CTervixProfile::getFolderPath);
  view.markerKey = textOf(profile, &CTervixProfile::getMarkerKey);
  view.sim = namedFile("sim", textOf(profile, &CTervixProfile::getPath), view.folder);
  for (const auto& [type, kind] : kVariantKinds) {
    std::string file;
    profile.getTopProfileLevelFile(file, type);
    for (; !file.empty(); profile.getNextProfileLevelFile(file, type))
      view.variants.push_back(namedFile(kind, file, view.folder));
  }
  view.files.reserve(kProfileFileSuffixes.size());
  for (std::size_t type = 0; type < kProfileFileSuffixes.size(); ++type) {
    std::string file;
    if (profile.getProfileBasedFile(file, static_cast<PROFILEFILE_TYPE>(type)) == 0)
      view.files.push_back({kProfileFileSuffixes.at(type), file, file, isFile(file)});
  }
  return view;
}

SchematicView viewOf(CTervixSchematic& schematic) {
  SchematicView view{};
  view.name = textOf(schematic, &CTervixSchematic::getName);
  schematic.isRoot(view.root);
  view.folder = textOf(schematic, &CTervixSchematic::getFolderPath);
  for (std::size_t type = 0; type < kSchematicFileSuffixes.size(); ++type) {
    std::string file;
    if (schematic.getSchematicBasedFile(file, static_cast<SCHEMATICFILE_TYPE>(type)) == 0)
      view.files.push_back({kSchematicFileSuffixes.at(type), file, file, isFile(file)});
  }
  CTervixNode* profile = nullptr;
  schematic.getTopProfile(profile);
  for (; profile != nullptr; schematic.getNextProfile(profile))
    view.profiles.push_back(viewOf(static_cast<CTervixProfile&>(*profile)));
  return view;
}

std::unordered_set<std::string> simsOf(const std::vector<SchematicView>& schematics) {
  std::unordered_set<std::string> sims;
  for (const SchematicView& schematic : schematics)
    for (const ProfileView& profile : schematic.profiles)
      sims.insert(profile.sim.place);
  return sims;
}

// The profile files that the project file lists and that the library passed over, as they are not
// there or not valid.
std::vector<FileView> unusedProfiles(const std::string& projectFile, const std::string& folder,
                                     const std::vector<SchematicView>& schematics) {
  std::list<std::string> listed;
  std::list<std::string> unused;
  std::string active;
  std::vector<FileView> passedOver;
  if (readSimProfiles(projectFile, listed, unused, active, true) != 0)
    return passedOver;
  const auto sims = simsOf(schematics);
  for (const std::string& path : listed)
    if (FileView file = namedFile("sim", path, folder); sims.count(file.place) == 0)
      passedOver.push_back(std::move(file));
  return passedOver;
}

} // namespace

const char* layoutName(PROJECT_TYPE type) {
  switch (type) {
  case PROJECT_TYPE_SIMULATION:
    return "a folder for each profile";
  case PROJECT_TYPE_OTHER:
    return "files beside the schematic";
  default:
    return "";
  }
}

ProjectView viewOf(CTervixProject& project) {
  ProjectView view{};
  view.name = textOf(project, &CTervixProject::getName);
  view.path = textOf(project, &CTervixProject::getPath);
  view.folder = textOf(project, &CTervixProject::getFolderPath);
  project.getProjectType(view.type);
  project.getFrontEndId(view.frontEnd);
  view.designName = textOf(project, &CTervixProject::getDesignName);
  view.hasDesign = !view.designName.empty();
  view.design = namedFile("design", textOf(project, &CTervixProject::getDesignPath), view.folder);
  if (const std::string file = textOf(project, &CTervixProject::getTervixOutputFile); !file.empty())
    view.outputFile = namedFile("output", file, view.folder);
  project.getRootSchematic(view.rootSchematic);
  project.getActiveProfile(view.activeProfile);
  for (const auto& [type, kind] : kVariantKinds) {
    std::string file;
    project.getTopDesignLevelFile(file, type);
    for (; !file.empty(); project.getNextDesignLevelFile(file, type))
      view.variants.push_back(namedFile(kind, file, view.folder));
  }
  CTervixNode* schematic = nullptr;
  project.getTopSchematic(schematic);
  for (; schematic != nullptr; project.getNextSchematic(schematic))
    view.schematics.push_back(viewOf(static_cast<CTervixSchematic&>(*schematic)));
  if (view.frontEnd == FRONTEND_ID_DESIGN_FILE)
    view.unusedProfiles = unusedProfiles(view.path, view.folder, view.schematics);
  return view;
}

} // namespace tervix::tool
