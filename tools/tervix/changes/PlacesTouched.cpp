#include "tools/tervix/changes/PlacesTouched.h"

#include <algorithm>
#include <filesystem>

#include "tools/tervix/changes/Folders.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

bool liesBelow(const std::string& path, const std::string& folder) {
  return path.size() > folder.size() + 1 && path.compare(0, folder.size(), folder) == 0 &&
         path[folder.size()] == '/';
}

// All paths that a change of these touches, those of sources included.
template <class Visit> void forEachPath(const ChangeRecord& record, Visit visit) {
  const ChangePlan& plan = record.plan;
  for (const ChangePlan::Made& made : plan.made) {
    visit(made.path);
    if (!made.source.empty())
      visit(made.source);
  }
  for (const ChangePlan::Rewritten& file : plan.rewritten) {
    visit(file.path);
    visit(withoutLinks(file.path));
  }
  for (const auto* paths :
       {&plan.madeFolders, &plan.removed, &plan.removedFolders, &record.newFolders})
    for (const std::string& path : *paths)
      visit(path);
}

} // namespace

PlacesTouched::PlacesTouched(std::vector<std::string> folders) {
  for (std::string& folder : folders) {
    std::string real = withoutLinks(folder);
    folders_.push_back({std::move(folder), std::move(real)});
  }
}

std::optional<std::string> PlacesTouched::firstOutside(const ChangeRecord& record) {
  std::optional<std::string> outside;
  forEachPath(record, [&](const std::string& path) {
    if (!outside && !holds(path))
      outside = path;
  });
  return outside;
}

bool PlacesTouched::holds(const std::string& path) {
  if (fs::path(path).lexically_normal().generic_string() != path)
    return false;
  const std::string& place = realFolder(folderHolding(path));
  return std::any_of(folders_.begin(), folders_.end(), [&](const Folder& folder) {
    return path == folder.path || ((liesBelow(path, folder.path) || liesBelow(path, folder.real)) &&
                                   (place == folder.real || liesBelow(place, folder.real)));
  });
}

// Each folder is looked at once: a change may touch many files in few folders.
const std::string& PlacesTouched::realFolder(const std::string& folder) {
  const auto known = known_.find(folder);
  if (known != known_.end())
    return known->second;
  const std::string above = folderHolding(folder);
  std::string real = folder;
  if (!above.empty() && above != folder) {
    real = (fs::path(realFolder(above)) / fs::path(folder).filename()).generic_string();
    std::error_code error;
    if (fs::is_symlink(real, error))
      real = withoutLinks(real);
  }
  return known_.emplace(folder, std::move(real)).first->second;
}

std::vector<std::string> foldersOf(const ChangePlan& plan) {
  std::string folder = folderHolding(plan.projectFile);
  std::string former =
      plan.formerProjectFile.empty() ? folder : folderHolding(plan.formerProjectFile);
  if (folder != former) {
    folder = folderHolding(folder);
    former = folderHolding(former);
  }
  std::vector<std::string> folders = {folder, former};
  if (!plan.designFolder.empty())
    folders.push_back(plan.designFolder);
  return folders;
}

} // namespace tervix::tool
