#include "tools/tervix/check/Gathering.h"
#include "tools/tervix/check/Paths.h"

namespace tervix::tool {
namespace {

constexpr std::array<VARIANTFILE_TYPE, 3> kKinds = {
    VARIANTFILE_TYPE_LIBRARY, VARIANTFILE_TYPE_STIMULUS, VARIANTFILE_TYPE_INCLUDE};

LoadedProfile loadedFrom(CTervixProfile& profile, const std::string& schematic, bool isOfRoot,
                         bool hasIncludeList) {
  LoadedProfile loaded{};
  loaded.schematic = schematic;
  loaded.isOfRoot = isOfRoot;
  profile.getName(loaded.name);
  profile.getDisplayName(loaded.displayName);
  profile.getPath(loaded.sim);
  profile.getFolderPath(loaded.folder);
  profile.getProfileBasedFile(loaded.netlist, PROFILE_FILE_CIR);
  if (!hasIncludeList)
    return loaded;
  profile.getVariantFilePath(loaded.includeList);
  for (const VARIANTFILE_TYPE kind : kKinds) {
    std::string file;
    profile.getTopProfileLevelFile(file, kind);
    for (; !file.empty(); profile.getNextProfileLevelFile(file, kind))
      loaded.files[kind].push_back(file);
  }
  return loaded;
}

void takeSchematic(ProjectFacts& facts, CTervixSchematic& schematic) {
  std::string name;
  bool isRoot = false;
  schematic.getName(name);
  schematic.isRoot(isRoot);
  CTervixNode* profile = nullptr;
  schematic.getTopProfile(profile);
  for (; profile != nullptr; schematic.getNextProfile(profile)) {
    facts.loaded.push_back(loadedFrom(static_cast<CTervixProfile&>(*profile), name, isRoot,
                                      facts.layout.isSimulation()));
    facts.loadedByNames.emplace(keyOfNames(name, facts.loaded.back().name),
                                facts.loaded.size() - 1);
  }
}

// Folders in a folder, links left out: what they lead to is not the project's own.
std::vector<std::string> foldersIn(FolderIndex& index, const std::string& path) {
  std::vector<std::string> folders;
  for (const FolderIndex::Entry& entry : index.folder(path).entries)
    if (entry.type == EntryType::kFolder && !entry.isLink)
      folders.push_back((path + "/").append(entry.name));
  return folders;
}

// Level by level, so that the folders of one level can be listed together.
std::vector<std::string> treeBelow(ProjectFacts& facts, const std::string& top) {
  std::vector<std::string> tree;
  for (std::vector<std::string> level = {top}; !level.empty();) {
    facts.index.listAhead(level);
    std::vector<std::string> below;
    for (const std::string& folder : level)
      for (std::string& found : foldersIn(facts.index, folder))
        below.push_back(std::move(found));
    tree.insert(tree.end(), level.begin(), level.end());
    level = std::move(below);
  }
  return tree;
}

} // namespace

void gatherTree(ProjectFacts& facts, CTervixProject& project) {
  CTervixNode* schematic = nullptr;
  project.getTopSchematic(schematic);
  for (; schematic != nullptr; project.getNextSchematic(schematic))
    takeSchematic(facts, static_cast<CTervixSchematic&>(*schematic));
}

void gatherFolders(ProjectFacts& facts, Progress& progress) {
  progress.tell("listing the folders of profiles", facts.loaded.size());
  const ProjectLayout& layout = facts.layout;
  facts.ownFolders.push_back(layout.folder);
  if (layout.designFolder != layout.folder && liesBelow(layout.designFolder, facts.root))
    facts.ownFolders.push_back(layout.designFolder);
  if (!layout.isSimulation()) {
    facts.simFolders.push_back(layout.folder);
    return;
  }
  const std::string top =
      layout.hasDesignFile() ? layout.filesFolder() : (layout.folder + "/").append(kProfilesFolder);
  if (facts.index.typeOf(top) != EntryType::kFolder)
    return;
  const std::vector<std::string> tree = treeBelow(facts, top);
  facts.ownFolders.insert(facts.ownFolders.end(), tree.begin(), tree.end());
  const std::vector<std::string> found = {top};
  facts.schematicFolders = layout.hasDesignFile() ? foldersIn(facts.index, top) : found;
  // Front end 1 has as profiles what lies there; a profile of front end 2 may have gone astray.
  facts.simFolders = layout.hasDesignFile() ? tree : found;
}

} // namespace tervix::tool
