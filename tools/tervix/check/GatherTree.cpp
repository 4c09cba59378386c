#include <algorithm>
#include <iterator>

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
std::vector<std::string> foldersIn(const ListedFolder& folder) {
  std::vector<std::string> folders;
  for (const FolderIndex::Entry& entry : folder.entries())
    if (entry.type == EntryType::kFolder && !entry.isLink)
      folders.push_back((folder.path + "/").append(entry.name));
  return folders;
}

ListedFolder listed(ProjectFacts& facts, std::string path) {
  const FolderIndex::Folder& folder = facts.index.folder(path);
  return {std::move(path), &folder};
}

std::vector<ListedFolder> listed(ProjectFacts& facts, std::vector<std::string> paths) {
  std::vector<ListedFolder> folders;
  facts.index.listAhead(paths);
  folders.reserve(paths.size());
  for (std::string& path : paths)
    folders.push_back(listed(facts, std::move(path)));
  return folders;
}

// Level by level, so that the folders of one level can be listed together.
std::vector<ListedFolder> treeBelow(ProjectFacts& facts, const std::string& top) {
  std::vector<ListedFolder> tree = {listed(facts, top)};
  for (std::size_t done = 0; done < tree.size();) {
    std::vector<std::string> below;
    for (; done < tree.size(); ++done)
      for (std::string& found : foldersIn(tree[done]))
        below.push_back(std::move(found));
    std::vector<ListedFolder> level = listed(facts, std::move(below));
    std::move(level.begin(), level.end(), std::back_inserter(tree));
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
  facts.ownFolders.push_back(listed(facts, layout.folder));
  if (layout.designFolder != layout.folder && liesBelow(layout.designFolder, facts.root))
    facts.ownFolders.push_back(listed(facts, layout.designFolder));
  if (!layout.isSimulation()) {
    facts.simFolders.push_back(facts.ownFolders.front());
    return;
  }
  const std::string top =
      layout.hasDesignFile() ? layout.filesFolder() : (layout.folder + "/").append(kProfilesFolder);
  if (facts.index.typeOf(top) != EntryType::kFolder)
    return;
  std::vector<ListedFolder> tree = treeBelow(facts, top);
  for (const ListedFolder& folder : tree)
    if (!folder.listed->isListed)
      facts.unread.push_back({folder.path, 0});
  facts.ownFolders.insert(facts.ownFolders.end(), tree.begin(), tree.end());
  if (layout.hasDesignFile()) {
    facts.schematicFolders = listed(facts, foldersIn(tree.front()));
    facts.simFolders = std::move(tree); // a profile may have gone astray
  } else {
    facts.schematicFolders = {tree.front()};
    facts.simFolders = {tree.front()}; // what lies there is a profile
  }
}

} // namespace tervix::tool
