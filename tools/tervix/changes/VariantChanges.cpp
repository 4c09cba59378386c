#include "tools/tervix/changes/VariantChanges.h"

#include <algorithm>
#include <filesystem>
#include <functional>

#include "tools/tervix/Failure.h"
#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/VariantKinds.h"
#include "tools/tervix/changes/NamedPath.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/changes/ProjectCheck.h"
#include "tools/tervix/changes/ProjectLayout.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

const char* reasonAgainst(const std::string& path) {
  if (path.empty())
    return "the path is empty";
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; };
  if (std::any_of(path.begin(), path.end(), isControl))
    return "the path holds a control character";
  if (path.find('"') != std::string::npos)
    return "the path holds a double quote";
  if (path.find_last_of("/\\") == path.size() - 1)
    return "the path ends in a separator; it must name a file";
  return nullptr;
}

void requireUsable(const VariantStore& store, VARIANTFILE_TYPE kind, const std::string& path) {
  const char* reason = reasonAgainst(path);
  if (reason == nullptr)
    reason = store.reasonAgainst(kind, path);
  if (reason == nullptr && fs::is_directory(placeOf({path, store.folder()})))
    reason = "this is a folder";
  if (reason != nullptr)
    throw Failure(inQuotes(path) + " cannot be added: " + reason);
}

std::string listed(const std::vector<std::string>& paths) {
  std::string text;
  for (const std::string& path : paths)
    text.append(text.empty() ? "" : ", ").append(inQuotes(path));
  return text.empty() ? "none" : text;
}

using SamePlace = std::function<bool(const std::string&, const std::string&)>;

// The entries, by index, that name the file of a path.
std::vector<std::size_t> entriesFor(const VariantStore& store, VARIANTFILE_TYPE kind,
                                    const std::string& path, const SamePlace& isSame) {
  const std::vector<std::string> paths = store.paths(kind);
  const std::string place = placeOf({path, store.folder()});
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < paths.size(); ++i)
    if (isSame(placeOf({paths[i], store.folder()}), place))
      found.push_back(i);
  return found;
}

ChangePlan planFor(CTervixProject& project, const std::shared_ptr<VariantStore>& store) {
  const ProjectLayout layout = layoutOf(project);
  ChangePlan plan;
  plan.projectFile = layout.projectFile;
  store->planInto(plan);
  checkTree(plan, layout, treeOf(viewOf(project)));
  plan.check = [checkTree = plan.check, file = plan.projectFile, frontEnd = layout.frontEnd,
                store] {
    checkTree();
    store->requireLoaded(viewOf(openProject(file, static_cast<int>(frontEnd))));
  };
  return plan;
}

// A person who names a file from where they stand is told how to name it from the folder that
// counts.
std::string warningFor(const VariantStore& store, const std::string& path) {
  const std::string place = placeOf({path, store.folder()});
  std::error_code error;
  if (fs::exists(place, error))
    return {};
  std::string warning = inQuotes(place) + " does not exist";
  const std::string here = placeOf({path, fs::current_path().generic_string()});
  if (fs::exists(here, error))
    warning += "; from the folder of " + printable(store.owner()) + " the file here is " +
               inQuotes(fs::path(here).lexically_relative(store.folder()).generic_string());
  return warning;
}

} // namespace

VariantAddition planVariantAdd(CTervixProject& project, const VariantOwner& owner,
                               VARIANTFILE_TYPE kind, const std::string& path) {
  const std::shared_ptr<VariantStore> store = variantStoreOf(project, owner);
  requireUsable(*store, kind, path);
  if (const auto same = entriesFor(*store, kind, path, isSameName); !same.empty())
    throw Failure(printable(store->owner()) + " lists the " + nameOf(kind) + " file already, as " +
                  inQuotes(store->paths(kind).at(same.front())));
  store->add(kind, relativeToTheLibrary(path));
  ChangePlan plan = planFor(project, store);
  plan.title = std::string("add ") + nameOf(kind) + " " + path + " to " + store->owner();
  return {plan, warningFor(*store, path)};
}

ChangePlan planVariantRemove(CTervixProject& project, const VariantOwner& owner,
                             VARIANTFILE_TYPE kind, const std::string& path) {
  const std::shared_ptr<VariantStore> store = variantStoreOf(project, owner);
  // Where case counts there may be two files; the one in the case that was given is meant.
  std::vector<std::size_t> found = entriesFor(*store, kind, path, std::equal_to<>());
  if (found.empty())
    found = entriesFor(*store, kind, path, isSameName);
  if (found.empty())
    throw Failure(printable(store->owner()) + " lists no " + nameOf(kind) + " file " +
                  inQuotes(path) + "; it lists: " + listed(store->paths(kind)));
  for (auto entry = found.rbegin(); entry != found.rend(); ++entry)
    store->remove(kind, *entry);
  ChangePlan plan = planFor(project, store);
  plan.title = std::string("remove ") + nameOf(kind) + " " + path + " from " + store->owner();
  return plan;
}

} // namespace tervix::tool
