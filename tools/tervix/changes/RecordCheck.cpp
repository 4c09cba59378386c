#include "tools/tervix/changes/RecordCheck.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <set>
#include <sstream>

#include "tools/tervix/Failure.h"
#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/ProjectView.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/changes/Folders.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/changes/PlacesTouched.h"
#include "tools/tervix/changes/ProjectLayout.h"
#include "tools/tervix/changes/Removal.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

// The same name in the same folder, however the folder is spelt.
bool isSamePlace(const std::string& a, const std::string& b) {
  return fs::path(a).filename() == fs::path(b).filename() &&
         withoutLinks(folderHolding(a)) == withoutLinks(folderHolding(b));
}

// The project as far as it opens in the state that an interrupted change left.
struct OpenedState {
  ProjectLayout layout;
  ProjectView view;
};

std::optional<OpenedState> openedState(const std::string& projectFile) {
  try {
    CTervixProject& project = openProject(projectFile, std::nullopt);
    return OpenedState{layoutOf(project), viewOf(project)};
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

class RecordChecker {
public:
  RecordChecker(const std::string& projectFile, const ChangeRecord& record, std::string journal)
      : record_(record), journal_(std::move(journal)), state_(openedState(projectFile)) {
    requireProjectFiles(projectFile);
    if (state_ && !state_->layout.designFolder.empty())
      folders_.push_back(state_->layout.designFolder);
  }

  void check() {
    if (const auto outside = PlacesTouched(folders_).firstOutside(record_))
      refuse(*outside);
    requireStaged();
    requireDeleted();
  }

private:
  [[noreturn]] void refuse(const std::string& path) const {
    throw Failure(inQuotes(journal_) +
                  " tells of an interrupted change, but not of one that this project could have "
                  "had: it names " +
                  inQuotes(path) + ". Nothing was changed. Look at it, and remove it by hand.");
  }

  // The project file keeps its folder, or for front end 1 the folder that holds that one gets
  // another name.
  void requireProjectFiles(const std::string& projectFile) {
    const std::string& former = record_.formerProjectFile();
    const std::string& later = record_.plan.projectFile;
    const bool isFormer = isSamePlace(projectFile, former);
    if (!isFormer && !isSamePlace(projectFile, later))
      refuse(later);
    for (const std::string& file : {former, later})
      if (fs::path(file).lexically_normal().generic_string() != file ||
          !isSameName(fs::path(file).extension().string(), ".tvp"))
        refuse(file);
    const std::string folder = folderHolding(isFormer ? former : later);
    const std::string otherFolder = folderHolding(isFormer ? later : former);
    folders_ = {folder};
    if (folder == otherFolder)
      return;
    const bool isRenamed =
        folderHolding(folderHolding(folder)) == folderHolding(folderHolding(otherFolder)) &&
        fs::path(folder).filename() == fs::path(otherFolder).filename() &&
        (isSameName(fs::path(folder).filename().string(), "tvx_sim_1") ||
         isSameName(fs::path(folder).filename().string(), "cfg_analog"));
    if (!isRenamed)
      refuse(isFormer ? later : former);
    folders_ = {folderHolding(folder), folderHolding(otherFolder)};
  }

  void requireStaged() const {
    for (std::size_t i = 0; i < record_.former.size(); ++i) {
      const std::string place = withoutLinks(record_.plan.rewritten[i].path);
      const std::string& staged = record_.former[i].staged;
      if (folderHolding(staged) != folderHolding(place) ||
          fs::path(staged).filename().string().rfind(".tervix-", 0) != 0)
        refuse(staged);
    }
  }

  void requireDeleted() const {
    std::set<std::string> expected;
    for (const ChangePlan::Made& made : record_.plan.made)
      expected.insert(made.source);
    ChangePlan deletion;
    if (state_)
      for (const auto& [schematic, profile] : record_.plan.deleted) {
        requireUsable(schematic);
        if (profile.empty()) {
          removeSchematicFiles(deletion, state_->layout, schematic);
        } else {
          requireUsable(profile);
          removeProfileFiles(deletion, state_->layout, schematic, profile);
        }
      }
    expected.insert(deletion.removed.begin(), deletion.removed.end());
    for (const std::string& path : record_.plan.removed)
      if (isThere(path) && expected.count(path) == 0)
        refuse(path);
    if (record_.isComplete && state_ && state_->layout.hasDesignFile())
      requireGone();
  }

  void requireUsable(const std::string& name) const {
    if (name.empty() || name.find_first_of("/\\") != std::string::npos || name == "..")
      refuse(name);
  }

  void requireGone() const {
    for (const SchematicView& schematic : state_->view.schematics)
      for (const ProfileView& profile : schematic.profiles)
        for (const auto& deleted : record_.plan.deleted)
          if (isSameName(deleted.first, schematic.name) && isSameName(deleted.second, profile.name))
            refuse(profile.sim.place);
  }

  const ChangeRecord& record_;
  std::string journal_;
  std::optional<OpenedState> state_;
  std::vector<std::string> folders_;
};

// The library rewrites these lines of a ".sim" file before the plan brings it to what it is to be.
bool isLibrarysLine(const std::string& line) {
  const std::array<std::string, 2> keys = {"NetlistFile", "ProjectFile"};
  return std::any_of(keys.begin(), keys.end(), [&](const std::string& key) {
    return isSameName(line.substr(0, key.size()), key);
  });
}

bool differsByLibraryOnly(const std::string& text, const std::string& planned) {
  std::istringstream lines(text);
  std::istringstream plannedLines(planned);
  std::string line;
  std::string plannedLine;
  while (std::getline(lines, line)) {
    if (!std::getline(plannedLines, plannedLine))
      return false;
    if (line != plannedLine && !isLibrarysLine(line))
      return false;
  }
  return !std::getline(plannedLines, plannedLine);
}

} // namespace

void requireRecordOf(const std::string& projectFile, const ChangeRecord& record,
                     const std::string& journal) {
  RecordChecker(projectFile, record, journal).check();
}

bool isMadeByPlan(const ChangePlan::Made& made) {
  if (!made.source.empty() && !isThere(made.source))
    return false;
  if (fs::is_symlink(fs::symlink_status(made.path)))
    return made.isCopy && fs::is_symlink(fs::symlink_status(made.source)) &&
           fs::read_symlink(made.path) == fs::read_symlink(made.source);
  if (made.isCopy)
    return isBeginningOf(made.path, made.source);
  const std::string content = contentOf(made.path);
  return made.content.compare(0, content.size(), content) == 0 ||
         differsByLibraryOnly(content, made.content);
}

bool isWhole(const ChangePlan::Made& made) {
  if (!made.isCopy)
    return contentOf(made.path) == made.content;
  if (fs::is_symlink(fs::symlink_status(made.source)))
    return isMadeByPlan(made);
  return haveSameContent(made.source, made.path);
}

} // namespace tervix::tool
