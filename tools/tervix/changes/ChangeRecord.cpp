#include "tools/tervix/changes/ChangeRecord.h"

#include <filesystem>
#include <map>
#include <set>

#include "foundation/platform/Process.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/changes/Folders.h"
#include "tools/tervix/changes/Journal.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

std::string fileNameOf(const std::string& path) {
  return fs::path(path).filename().generic_string();
}

std::vector<std::string> newFoldersOf(const ChangePlan& plan) {
  std::set<std::string> folders; // an outer folder's path comes before those in it
  const auto note = [&](std::string folder) {
    while (!folder.empty() && !isThere(folder) && folders.insert(folder).second)
      folder = folderHolding(folder);
  };
  for (const std::string& folder : plan.madeFolders)
    note(folder);
  for (const ChangePlan::Made& made : plan.made)
    note(folderHolding(made.path));
  return {folders.begin(), folders.end()};
}

} // namespace

std::vector<Scratch> scratchOf(const ChangeRecord& record) {
  std::map<std::string, std::string> sources;
  const std::string own = "/.tervix-" + std::to_string(record.process);
  for (const ChangePlan::Made& made : record.plan.made) {
    const std::string folder = folderHolding(made.path);
    // The library's own, of a copy and of a rewritten ".sim" file.
    sources[folder + own] = "";
    sources[made.path + ".bak"] = "";
    sources[folder + "/.tervix-" + fileNameOf(made.path)] = "";
    // A copied folder holds its files under their old names at first.
    if (!made.source.empty() && folder != folderHolding(made.source))
      sources[folder + "/" + fileNameOf(made.source)] = made.source;
  }
  for (const ChangePlan::Made& made : record.plan.made)
    sources.erase(made.path);
  for (const std::string& path : record.kept)
    sources.erase(path);
  std::vector<Scratch> scratch = {{journalOf(record.plan.projectFile) + kJournalScratch, ""}};
  for (const ChangeRecord::Former& former : record.former)
    scratch.push_back({former.staged, ""});
  for (const auto& [path, source] : sources)
    scratch.push_back({path, source});
  return scratch;
}

ChangeRecord recordOf(const ChangePlan& plan) {
  ChangeRecord record;
  record.plan = plan;
  record.plan.libraryCalls.clear();
  record.plan.check = nullptr;
  record.plan.progress = nullptr;
  record.process = platform::processNumber();
  for (const ChangePlan::Rewritten& file : plan.rewritten)
    record.former.push_back({contentOf(file.path), nameBeside(file.path)});
  record.newFolders = newFoldersOf(plan);
  for (const Scratch& scratch : scratchOf(record))
    if (isThere(scratch.path))
      record.kept.push_back(scratch.path);
  return record;
}

} // namespace tervix::tool
