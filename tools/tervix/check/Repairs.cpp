#include "tools/tervix/check/Repairs.h"

#include <algorithm>
#include <filesystem>
#include <map>

#include "tools/tervix/ProjectView.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/changes/OpenFormats.h"
#include "tools/tervix/changes/ProjectCheck.h"
#include "tools/tervix/check/Paths.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

using Repairs = std::vector<const Repair*>;

std::string unusedSavedFolder(const ProjectLayout& layout) {
  const std::string stem =
      layout.folder + "/" + stemOf(nameOf(layout.projectFile)) + "-TervixSaved-";
  for (int number = 1;; ++number)
    if (std::string folder = stem + std::to_string(number);
        fs::symlink_status(folder).type() == fs::file_type::not_found)
      return folder;
}

// The text of a project file, changed where a person would change it.
std::string repairedProjectFile(const std::string& path, const Repairs& repairs) {
  OpenFormatFile file(path);
  std::map<std::string, std::string> newTexts;
  std::vector<std::string> profiles;
  for (const Repair* repair : repairs)
    if (repair->action == Repair::Action::kReplaceText)
      newTexts[repair->text] = repair->newText;
    else if (repair->action == Repair::Action::kRegisterProfile)
      profiles.push_back(repair->newText);
  file.renamePaths([&](const std::string& text) {
    const auto found = newTexts.find(text);
    return found == newTexts.end() ? text : found->second;
  });
  file.addProfiles(profiles);
  return file.text();
}

// Any other text: each repair is of one line, and takes none away.
std::string repairedText(const std::string& path, const Repairs& repairs) {
  std::string text = contentOf(path);
  std::multimap<std::size_t, const Repair*> byLine;
  for (const Repair* repair : repairs)
    byLine.emplace(repair->line, repair);
  std::size_t line = 1;
  std::size_t begin = 0;
  for (const auto& [number, repair] : byLine) {
    for (; line < number && begin < text.size(); ++line)
      begin = std::min(text.find('\n', begin), text.size() - 1) + 1;
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    const std::size_t at = text.find(repair->text, begin);
    if (at < end && at + repair->text.size() <= end)
      text.replace(at, repair->text.size(), repair->newText);
  }
  return text;
}

void save(RepairPlan& repair, const ProjectLayout& layout, const std::string& path) {
  repair.plan.made.push_back({repair.savedTo + path.substr(layout.folder.size()), path, "", true});
}

} // namespace

RepairPlan planRepairs(CTervixProject& project, const std::vector<Finding>& findings) {
  const ProjectLayout layout = layoutOf(project);
  RepairPlan result;
  result.plan.title = "repair what loses nothing";
  result.plan.projectFile = layout.projectFile;
  result.savedTo = unusedSavedFolder(layout);
  ExpectedTree expected = treeOf(viewOf(project));
  std::map<std::string, Repairs> rewritten;
  for (const Finding& finding : findings) {
    const Repair& repair = finding.repair;
    if (repair.action == Repair::Action::kRemoveFile)
      result.plan.removed.push_back(repair.file);
    else if (repair.action != Repair::Action::kNone)
      rewritten[repair.file].push_back(&repair);
    if (repair.action == Repair::Action::kRegisterProfile)
      expected.insert({repair.schematic, repair.profile});
  }
  for (const std::string& path : result.plan.removed)
    save(result, layout, path);
  for (const auto& [path, repairs] : rewritten) {
    save(result, layout, path);
    result.plan.rewritten.push_back({path, path == layout.projectFile
                                               ? repairedProjectFile(path, repairs)
                                               : repairedText(path, repairs)});
  }
  checkTree(result.plan, layout, expected);
  return result;
}

} // namespace tervix::tool
