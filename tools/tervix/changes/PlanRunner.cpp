#include "tools/tervix/changes/PlanRunner.h"

#include <filesystem>
#include <set>

#include "TervixFiles.h"
#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/FileContent.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

bool isThere(const std::string& path) {
  std::error_code error;
  return fs::symlink_status(path, error).type() != fs::file_type::not_found;
}

std::string listed(const std::vector<std::string>& paths) {
  std::string text;
  for (const std::string& path : paths)
    text += "\n  " + printable(path);
  return text;
}

class Runner {
public:
  explicit Runner(const ChangePlan& plan) : plan_(plan) {}

  void run() {
    refuseTaken();
    try {
      makeNew();
      rewrite();
      if (plan_.check)
        plan_.check();
    } catch (const std::exception& failure) {
      takeBack(failure.what());
    }
    removeOld();
  }

private:
  void refuseTaken() const {
    for (const ChangePlan::Made& made : plan_.made)
      if (isThere(made.path))
        throw Failure(inQuotes(made.path) + " is there already; nothing was changed");
  }

  void makeNew() {
    for (const std::string& folder : plan_.madeFolders)
      makeFolder(folder);
    for (const ChangePlan::Made& made : plan_.made) {
      makeFolder(fs::path(made.path).parent_path().generic_string());
      if (!made.isCopy)
        writeNewFile(made.path, made.content);
    }
    for (const auto& call : plan_.libraryCalls)
      call();
    for (const ChangePlan::Made& made : plan_.made) {
      if (plan_.progress)
        plan_.progress(made);
      complete(made);
    }
    removeStrays();
  }

  // A library call may leave files under old names in a folder that is new.
  void removeStrays() const {
    std::set<std::string> planned;
    for (const ChangePlan::Made& made : plan_.made)
      planned.insert(made.path);
    std::vector<std::string> strays;
    for (const std::string& folder : newFolders_)
      for (const auto& entry : fs::directory_iterator(folder))
        if (!fs::is_directory(entry.symlink_status()) &&
            planned.count(entry.path().generic_string()) == 0)
          strays.push_back(entry.path().generic_string());
    for (const std::string& stray : strays)
      fs::remove(stray);
  }

  // Notes each folder that it makes, so that it can be taken back.
  void makeFolder(const std::string& folder) {
    if (folder.empty() || isThere(folder))
      return;
    const std::string above = fs::path(folder).parent_path().generic_string();
    if (above != folder)
      makeFolder(above);
    std::string path = folder;
    if (createDir(path) != 0)
      throw Failure("the folder " + inQuotes(folder) + " could not be made");
    newFolders_.push_back(folder);
  }

  // Brings a new file to what it is to be, whatever the library made of it.
  static void complete(const ChangePlan::Made& made) {
    if (!made.isCopy) {
      if (contentOf(made.path) != made.content)
        writeFile(made.path, made.content);
    } else if (fs::is_symlink(made.source)) {
      if (!isThere(made.path))
        fs::copy_symlink(made.source, made.path);
    } else if (!isThere(made.path) || !haveSameContent(made.source, made.path)) {
      copyFile(made.source, made.path);
    }
  }

  void rewrite() {
    for (const ChangePlan::Rewritten& file : plan_.rewritten) {
      former_.push_back({file.path, contentOf(file.path)});
      writeFile(file.path, file.content);
    }
  }

  [[noreturn]] void takeBack(const std::string& reason) const {
    std::vector<std::string> left;
    for (const ChangePlan::Rewritten& file : former_)
      try {
        if (contentOf(file.path) != file.content)
          writeFile(file.path, file.content);
      } catch (const std::exception&) {
        left.push_back(file.path + " (could not be put back)");
      }
    std::error_code error;
    for (const ChangePlan::Made& made : plan_.made)
      if (isThere(made.path) && !fs::remove(made.path, error))
        left.push_back(made.path);
    for (auto folder = newFolders_.rbegin(); folder != newFolders_.rend(); ++folder) {
      fs::remove_all(*folder, error);
      if (isThere(*folder))
        left.push_back(*folder);
    }
    if (left.empty())
      throw Failure(reason + "\nThe project is as it was.");
    throw Failure(reason + "\nThe project file is as it was, but these remain:" + listed(left));
  }

  void removeOld() const {
    std::vector<std::string> left;
    for (std::string path : plan_.removed)
      if (isThere(path) && rmFile(path) != 0)
        left.push_back(path);
    for (const std::string& folder : plan_.removedFolders) {
      std::error_code error;
      fs::remove(folder, error);
      if (error && error != std::errc::directory_not_empty)
        left.push_back(folder);
    }
    if (!left.empty())
      throw Failure("The change is made, but these old files could not be removed:" + listed(left));
  }

  const ChangePlan& plan_;
  std::vector<std::string> newFolders_;
  std::vector<ChangePlan::Rewritten> former_;
};

} // namespace

void runPlan(const ChangePlan& plan) {
  Runner(plan).run();
}

} // namespace tervix::tool
