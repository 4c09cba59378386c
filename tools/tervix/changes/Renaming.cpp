#include "tools/tervix/changes/Renaming.h"

#include <algorithm>
#include <filesystem>
#include <set>

#include "tools/tervix/Failure.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/changes/Folders.h"
#include "tools/tervix/changes/NamedPath.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/changes/OpenFormats.h"
#include "tools/tervix/changes/ProjectCheck.h"
#include "tools/tervix/changes/References.h"
#include "tools/tervix/changes/SoughtNames.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

void mapAll(PathMap& map, const std::vector<std::string>& from,
            const std::vector<std::string>& to) {
  for (std::size_t i = 0; i < from.size(); ++i)
    map.moveFile(from[i], to[i]);
}

// The library's copy of a folder takes names with a dot for files and others for folders, and
// copies what a link leads to.
bool suitsFolderCopy(const std::string& folder) {
  const fs::recursive_directory_iterator entries(folder);
  return std::all_of(begin(entries), end(entries), [](const fs::directory_entry& entry) {
    const fs::file_type type = entry.symlink_status().type();
    const bool hasDot = entry.path().filename().string().find('.') != std::string::npos;
    return type == (hasDot ? fs::file_type::regular : fs::file_type::directory);
  });
}

// The library takes the new names from the record and the node. What it does not carry the plan
// does, so its status does not count.
void carry(CTervixProfile& profile, const ProfileChange& change, std::string oldSim,
           std::string newSim) {
  std::string name = change.newProfile;
  profile.setName(name);
  profile.syncUpProfileFiles(oldSim, newSim);
}

} // namespace

Renaming::Renaming(CTervixProject& project)
    : project_(project), view_(viewOf(project)), before_(layoutOf(project)), after_(before_) {
  for (const SchematicView& schematic : view_.schematics)
    for (const ProfileView& profile : schematic.profiles)
      profiles_.push_back({schematic.name, profile.name, schematic.name, profile.name});
}

void Renaming::renameProject(const std::string& newName) {
  changedName_ = {before_.project, newName, RENAME_TYPE_PROJECT};
  if (!before_.hasDesignFile())
    return renameAll(newName);
  after_.project = newName;
  after_.projectFile =
      after_.folder + "/" + newName + fs::path(before_.projectFile).extension().string();
}

// For front end 1 project, design and schematic bear the name of the folder that holds them all.
void Renaming::renameAll(const std::string& newName) {
  const std::string outer = folderHolding(before_.folder);
  const std::string newOuter = folderHolding(outer) + "/" + newName;
  after_.project = newName;
  after_.design = newName;
  after_.folder = newOuter + before_.folder.substr(outer.size());
  after_.designFolder = after_.folder;
  after_.projectFile =
      after_.folder + "/" + newName + fs::path(before_.projectFile).extension().string();
  for (ProfileChange& change : profiles_)
    change.newSchematic = newName;
  map_.moveFolder(outer, newOuter);
}

void Renaming::renameDesign(const std::string& newName) {
  changedName_ = {before_.design, newName, RENAME_TYPE_DESIGN};
  if (!before_.hasDesignFile())
    return renameAll(newName);
  after_.design = newName;
}

void Renaming::renameSchematic(const std::string& name, const std::string& newName) {
  changedName_ = {name, newName, RENAME_TYPE_SCHEMATIC};
  if (!before_.hasDesignFile())
    return renameAll(newName);
  for (ProfileChange& change : profiles_)
    if (change.schematic == name)
      change.newSchematic = newName;
  schematicNames_[name] = newName;
}

void Renaming::renameProfile(const std::string& schematic, const std::string& name,
                             const std::string& newName) {
  changedName_ = {name, newName, RENAME_TYPE_PROFILE};
  for (ProfileChange& change : profiles_)
    if (change.schematic == schematic && change.profile == name)
      change.newProfile = newName;
}

std::string Renaming::newNameOf(const std::string& schematic) const {
  if (!before_.hasDesignFile())
    return after_.design;
  const auto changed =
      std::find_if(schematicNames_.begin(), schematicNames_.end(),
                   [&](const auto& names) { return isSameName(names.first, schematic); });
  return changed != schematicNames_.end() ? changed->second : schematic;
}

void Renaming::mapPaths() {
  map_.moveFile(before_.projectFile, after_.projectFile);
  if (before_.hasDesignFile()) {
    map_.moveFile(view_.design.place, after_.designFolder + "/" + after_.design +
                                          fs::path(view_.design.place).extension().string());
    if (before_.isSimulation())
      map_.moveFolder(before_.filesFolder(), after_.filesFolder());
  }
  for (const SchematicView& schematic : view_.schematics) {
    const SchematicPlaces from = before_.placesOf(schematic.name);
    const SchematicPlaces to = after_.placesOf(newNameOf(schematic.name));
    if (before_.isSimulation() && before_.hasDesignFile())
      map_.moveFolder(from.folder, to.folder);
    mapAll(map_, from.files, to.files);
  }
  for (const ProfileChange& change : profiles_)
    mapProfile(change);
}

void Renaming::mapProfile(const ProfileChange& change) {
  if (change.schematic == change.newSchematic && change.profile == change.newProfile &&
      before_.placesAllLike(after_))
    return;
  const ProfilePlaces from = before_.placesOf(change.schematic, change.profile);
  const ProfilePlaces to = after_.placesOf(change.newSchematic, change.newProfile);
  map_.moveFile(from.sim, to.sim);
  mapAll(map_, before_.filesOf(change.schematic, change.profile),
         after_.filesOf(change.newSchematic, change.newProfile));
  if (!before_.isSimulation())
    return;
  map_.moveFile(from.includeList, to.includeList);
  map_.moveFolder(from.folder, to.folder);
}

ChangePlan Renaming::plan(const std::string& title) {
  mapPaths();
  ChangePlan plan;
  plan.title = title;
  plan.projectFile = after_.projectFile;
  if (after_.projectFile != before_.projectFile)
    plan.formerProjectFile = before_.projectFile;
  planTexts(plan);
  planMovedFiles(plan);
  remarkNetlists(plan);
  planLibraryCalls(plan);
  ExpectedTree expected;
  for (const SchematicView& schematic : view_.schematics)
    expected.insert({newNameOf(schematic.name), ""});
  for (const ProfileChange& change : profiles_)
    expected.insert({change.newSchematic, change.newProfile});
  checkTree(plan, after_, expected);
  return plan;
}

ChangePlan Renaming::planCopy(const std::string& schematic, const std::string& name,
                              const std::string& newName, const std::string& title) {
  const ProfileChange change{schematic, name, schematic, newName};
  profiles_ = {change};
  changedName_ = {name, newName, RENAME_TYPE_PROFILE};
  mapProfile(change);
  ChangePlan plan;
  plan.title = title;
  plan.projectFile = before_.projectFile;
  planProfileTexts(plan, change);
  planMovedFiles(plan);
  remarkNetlists(plan);
  planLibraryCalls(plan);
  plan.removed.clear();
  plan.removedFolders.clear();
  if (before_.hasDesignFile()) {
    OpenFormatFile file(before_.projectFile);
    file.addProfileLike(
        [this, sim = before_.placesOf(schematic, name).sim](const std::string& text) {
          return placeOf({text, before_.folder}) == sim;
        },
        [this](const std::string& text) {
          return renamedText({text, before_.folder}, before_.folder, map_);
        });
    plan.rewritten.push_back({before_.projectFile, file.text()});
  }
  ExpectedTree expected = treeOf(view_);
  expected.insert({schematic, newName});
  checkTree(plan, before_, expected);
  return plan;
}

// A file with text that may name what changes: it moves, is rewritten, or both, or neither.
void Renaming::planText(ChangePlan& plan, const std::string& path, const std::string& content) {
  texts_.insert(path);
  const std::string newPath = map_(path);
  if (newPath != path) {
    plan.made.push_back({newPath, path, content, false});
    plan.removed.push_back(path);
  } else if (content != contentOf(path)) {
    plan.rewritten.push_back({path, content});
  }
}

void Renaming::planProfileTexts(ChangePlan& plan, const ProfileChange& change) {
  const ProfilePlaces from = before_.placesOf(change.schematic, change.profile);
  const References references{before_, after_, change, from, map_};
  if (isThere(from.sim))
    planText(plan, from.sim, references.renamedSim(contentOf(from.sim)));
  if (!from.includeList.empty() && isThere(from.includeList))
    planText(plan, from.includeList, references.renamedIncludeList(contentOf(from.includeList)));
}

void Renaming::planTexts(ChangePlan& plan) {
  for (const ProfileChange& change : profiles_)
    planProfileTexts(plan, change);
  if (before_.hasDesignFile()) {
    OpenFormatFile design(view_.design.place);
    design.renameSchematics([this](const std::string& name) { return newNameOf(name); });
    planText(plan, view_.design.place, design.text());
  }
  OpenFormatFile file(before_.projectFile);
  file.renamePaths([this](const std::string& text) {
    return renamedText({text, before_.folder}, after_.folder, map_);
  });
  file.renameActive([this](const std::string& active) {
    for (const ProfileChange& change : profiles_)
      if (isSameName(before_.placesOf(change.schematic, change.profile).displayName, active))
        return after_.placesOf(change.newSchematic, change.newProfile).displayName;
    return active;
  });
  planText(plan, before_.projectFile, file.text());
}

void Renaming::planMovedFiles(ChangePlan& plan) const {
  std::set<std::string> planned = texts_;
  const auto planFile = [&](const std::string& path) {
    const std::string newPath = map_(path);
    if (newPath == path || !planned.insert(path).second)
      return;
    plan.made.push_back({newPath, path, "", true});
    plan.removed.push_back(path);
  };
  for (const auto& [folder, newFolder] : map_.folders()) {
    if (!isThere(folder) || !planned.insert(folder).second)
      continue;
    std::vector<std::string> inner = {folder};
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      const std::string path = entry.path().generic_string();
      if (!fs::is_directory(entry.symlink_status()))
        planFile(path);
      else if (planned.insert(path).second)
        inner.push_back(path);
    }
    for (const std::string& path : inner) {
      if (!isThere(map_(path)))
        plan.madeFolders.push_back(map_(path));
      plan.removedFolders.push_back(path);
    }
  }
  // The innermost folder goes first: its path is the longest of those that hold it.
  std::sort(plan.removedFolders.rbegin(), plan.removedFolders.rend());
  for (const auto& [path, newPath] : map_.files())
    if (isThere(path))
      planFile(path);
}

// A netlist says where the simulator writes; copied as it is, it still names the former files. Who
// runs it writes it anew first, as front ends do, or the results of the original are gone.
void Renaming::remarkNetlists(ChangePlan& plan) const {
  SoughtNames former;
  for (const auto& [file, newFile] : map_.files())
    if (const std::string name = fs::path(file).filename().string();
        name != fs::path(newFile).filename().string() && isThere(file))
      former.add(name);
  for (const ChangePlan::Made& made : plan.made) {
    if (!made.isCopy || fs::path(made.path).extension() != ".cir" ||
        !fs::is_regular_file(made.source))
      continue;
    if (const std::string name = former.firstIn(contentOf(made.source)); !name.empty())
      plan.remarks.push_back(
          {"netlist", made.path,
           "it still names \"" + name + "\"; have it written anew before the next run"});
  }
}

void Renaming::planLibraryCalls(ChangePlan& plan) {
  plan.libraryCalls.emplace_back([&project = project_, record = changedName_]() mutable {
    project.setChangedName(record.former, record.changed, record.kind);
  });
  for (const ProfileChange& change : profiles_) {
    const ProfilePlaces from = before_.placesOf(change.schematic, change.profile);
    const std::string newSim = map_(from.sim);
    if (newSim == from.sim || !isThere(from.sim))
      continue;
    CTervixNode* node = nullptr;
    std::string schematic = change.schematic;
    std::string profile = change.profile;
    project_.findProfile(node, schematic, profile);
    // A profile that was never run has no folder to carry along.
    const bool isCarried =
        !before_.isSimulation() || (fs::is_directory(from.folder) && suitsFolderCopy(from.folder));
    if (node == nullptr || !isCarried)
      continue;
    plan.libraryCalls.emplace_back([node, change, from, newSim] {
      carry(static_cast<CTervixProfile&>(*node), change, from.sim, newSim);
    });
  }
}

} // namespace tervix::tool
