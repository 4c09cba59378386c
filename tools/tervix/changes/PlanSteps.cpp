#include "tools/tervix/changes/PlanSteps.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "TervixFiles.h"
#include "foundation/platform/Durability.h"
#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/changes/RecordCheck.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

using Left = std::vector<std::string>;

// Does to each of the paths what may throw, and notes those that it fails for.
template <class Paths, class Work> void forEach(const Paths& paths, Left& left, Work work) {
  for (const auto& path : paths)
    try {
      work(path);
    } catch (const std::exception& failure) {
      left.emplace_back(failure.what());
    }
}

void removeEntry(const std::string& path) {
  std::error_code error;
  fs::remove(path, error);
  if (error)
    throw Failure(inQuotes(path) + " (" + error.message() + ")");
}

enum class Remaining { kFails, kStays };

// A folder that holds something is not removed, whatever it is.
void removeFolder(const std::string& path, Remaining remaining) {
  const fs::file_type type = fs::symlink_status(path).type();
  if (type == fs::file_type::not_found)
    return;
  std::error_code error = std::make_error_code(std::errc::not_a_directory);
  if (type == fs::file_type::directory)
    fs::remove(path, error);
  const bool stays = error == std::errc::directory_not_empty || error == std::errc::file_exists;
  if (error && !(stays && remaining == Remaining::kStays))
    throw Failure(inQuotes(path) + " (" + error.message() + ")");
}

// What is new may be read by nobody else than what it comes from, and a copy is as old, by which a
// front end tells which results are up to date; in an archive all is. Some file systems keep
// neither.
void takeAttributes(const ChangePlan::Made& made, bool isElsewhere) {
  if (made.source.empty() || fs::is_symlink(made.path))
    return;
  std::error_code ignored;
  fs::permissions(made.path, fs::status(made.source).permissions(), ignored);
  if (isElsewhere || made.isCopy || haveSameContent(made.source, made.path))
    fs::last_write_time(made.path, fs::last_write_time(made.source), ignored);
}

void takeFolderPermissions(const ChangeRecord& record) {
  std::set<std::string> left(record.newFolders.begin(), record.newFolders.end());
  for (const ChangePlan::Made& made : record.plan.made) {
    fs::path folder = fs::path(made.path).parent_path();
    fs::path source = fs::path(made.source).parent_path();
    for (; left.erase(folder.generic_string()) != 0 && !source.empty();
         folder = folder.parent_path(), source = source.parent_path()) {
      std::error_code ignored;
      fs::permissions(folder, fs::status(source).permissions() | fs::perms::owner_all, ignored);
    }
  }
}

// Brings a new file to what it is to be, whatever the library made of it.
void complete(const ChangePlan::Made& made, bool isElsewhere) {
  if (!made.isCopy) {
    if (contentOf(made.path) != made.content)
      writeFile(made.path, made.content);
  } else if (fs::is_symlink(made.source)) {
    if (!isThere(made.path))
      fs::copy_symlink(made.source, made.path);
  } else if (!isThere(made.path) || !haveSameContent(made.source, made.path)) {
    copyFile(made.source, made.path);
  }
  takeAttributes(made, isElsewhere);
}

void restore(const ChangePlan::Rewritten& file, const ChangeRecord::Former& former) {
  const std::string content = contentOf(file.path);
  if (content == former.content)
    return;
  if (content != file.content)
    throw Failure(inQuotes(file.path) + " (it was changed since)");
  stageFile(file.path, former.staged, former.content);
  putInPlace(former.staged, file.path);
}

} // namespace

void makeFolders(const ChangeRecord& record) {
  for (std::string folder : record.newFolders)
    if (createDir(folder) != 0)
      throw Failure("the folder " + inQuotes(folder) + " could not be made");
}

void makeFiles(const ChangeRecord& record, const ChangePlan& plan) {
  for (const ChangePlan::Made& made : plan.made)
    if (!made.isCopy)
      writeNewFile(made.path, made.content);
  for (const auto& call : plan.libraryCalls)
    call();
  for (const ChangePlan::Made& made : plan.made) {
    if (plan.progress)
      plan.progress(made);
    complete(made, plan.isElsewhere);
  }
  takeFolderPermissions(record);
  if (const Left left = removeScratch(record); !left.empty())
    throw Failure(left.front() + " could not be removed");
}

// First everything is written that takes room, so that a full disk changes nothing.
void rewriteFiles(const ChangeRecord& record) {
  const auto& files = record.plan.rewritten;
  for (std::size_t i = 0; i < files.size(); ++i)
    stageFile(files[i].path, record.former[i].staged, files[i].content);
  for (std::size_t i = 0; i < files.size(); ++i)
    putInPlace(record.former[i].staged, files[i].path);
}

void flushFiles(const ChangeRecord& record) {
  if (!platform::flushFileSystemOf(fs::path(record.plan.projectFile).parent_path().string()))
    throw Failure("what is new could not be brought to the disk");
}

Left takeFilesBack(const ChangeRecord& record) {
  Left left;
  for (std::size_t i = 0; i < record.former.size(); ++i)
    try {
      restore(record.plan.rewritten[i], record.former[i]);
    } catch (const std::exception& failure) {
      left.emplace_back(failure.what());
    }
  forEach(record.plan.made, left, [](const ChangePlan::Made& made) {
    if (!isThere(made.path))
      return;
    if (!isMadeByPlan(made))
      throw Failure(inQuotes(made.path) + " (it is not what the change made)");
    removeEntry(made.path);
  });
  return left;
}

Left removeScratch(const ChangeRecord& record) {
  Left left;
  forEach(scratchOf(record), left, [](const Scratch& scratch) {
    if (scratch.source.empty() || !isThere(scratch.path))
      return removeEntry(scratch.path);
    if (!isMadeByPlan({scratch.path, scratch.source, "", true}))
      throw Failure(inQuotes(scratch.path) + " (it is not what the change made)");
    removeEntry(scratch.path);
  });
  return left;
}

Left takeFoldersBack(const ChangeRecord& record) {
  Left left;
  const std::vector<std::string> inside(record.newFolders.rbegin(), record.newFolders.rend());
  forEach(inside, left, [](const std::string& folder) { removeFolder(folder, Remaining::kFails); });
  return left;
}

Left removeOldFiles(const ChangeRecord& record) {
  std::map<std::string, const ChangePlan::Made*> successors;
  for (const ChangePlan::Made& made : record.plan.made)
    successors.insert({made.source, &made});
  Left left;
  forEach(record.plan.removed, left, [&](const std::string& path) {
    const auto successor = successors.find(path);
    if (successor != successors.end() && !isThere(successor->second->path))
      throw Failure(inQuotes(path) + " (its new file is gone)");
    removeEntry(path);
  });
  return left;
}

// One that somebody else put a file into stays, and is no failure.
Left removeOldFolders(const ChangeRecord& record) {
  Left left;
  forEach(record.plan.removedFolders, left,
          [](const std::string& folder) { removeFolder(folder, Remaining::kStays); });
  return left;
}

} // namespace tervix::tool
