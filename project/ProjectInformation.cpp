#include <string>
#include <string_view>

#include "CTervixProject.h"
#include "foundation/LastError.h"
#include "foundation/PathNames.h"
#include "foundation/Text.h"
#include "foundation/platform/Platform.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/SimFile.h"

// What a project can tell of itself from the path of the file that was opened and the folders
// around it.

namespace platform = tervix::platform;

namespace {

constexpr std::string_view kSimulationFolder = "tvx_sim_1"; // of front end 1, with simulation files
constexpr std::string_view kAnalogFolder = "cfg_analog";    // of front end 1, without
constexpr std::string_view kProfilesFolder = "profiles";
constexpr const char* kProjectEnding = ".tvp";

std::string folderAbove(const std::string& path) {
  return tervix::folderOf(path).value_or(std::string());
}

// A file beside another one.
std::string besideOf(const std::string& path, const std::string& name) {
  const auto folder = tervix::folderOf(path);
  return folder ? *folder + "/" + name : name;
}

bool isNamed(const std::string& folder, std::string_view name) {
  return tervix::equalsIgnoringCase(tervix::fileNameOf(folder), name);
}

// The type that the folder of a front-end-1 project file tells; unset for any other folder.
PROJECT_TYPE typeOfFolder(const std::string& folder) {
  if (isNamed(folder, kSimulationFolder))
    return PROJECT_TYPE_SIMULATION;
  return isNamed(folder, kAnalogFolder) ? PROJECT_TYPE_OTHER : PROJECT_TYPE_UNSET;
}

// A front-end-1 project file is named after the folder above the one it lies in.
std::string projectFileIn(const std::string& folder) {
  return folder + "/" + tervix::fileNameOf(folderAbove(folder)) + kProjectEnding;
}

// The project file beside the nearest "-TervixFiles" folder among folder and those above it, of
// which depth are looked at; empty when none of them is one.
std::string projectFileBesideFiles(std::string folder, int depth) {
  for (; depth > 0 && !folder.empty(); --depth, folder = folderAbove(folder)) {
    const std::string name = tervix::fileNameOf(folder);
    const auto project = tervix::stripSuffix(name, tervix::kFilesFolderEnding);
    if (project && !project->empty())
      return besideOf(folder, std::string(*project) + kProjectEnding);
  }
  return {};
}

PROJECT_TYPE typeOfSim(const tervix::SimProjectInfo& info) {
  const int filled = static_cast<int>(!info.designFile.empty()) +
                     static_cast<int>(!info.projectFile.empty()) +
                     static_cast<int>(!info.rootSchematic.empty());
  if (filled == 0)
    return PROJECT_TYPE_SIMULATION;
  return filled == 3 ? PROJECT_TYPE_OTHER : PROJECT_TYPE_UNSET;
}

// What a profile or analysis file tells of its project.
struct ProjectHint {
  PROJECT_TYPE type = PROJECT_TYPE_UNSET;
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  std::string projectFile;
};

ProjectHint hintOfSim(const tervix::SimProjectInfo& info, const std::string& simPath) {
  ProjectHint hint;
  hint.type = typeOfSim(info);
  const std::string folder = folderAbove(simPath);
  if (hint.type == PROJECT_TYPE_OTHER) {
    if (!info.profileName.empty() && !info.profileFile.empty())
      hint.frontEnd = tervix::equalsIgnoringCase(tervix::stemOf(info.profileFile), info.profileName)
                          ? FRONTEND_ID_PROJECT_FILE
                          : FRONTEND_ID_DESIGN_FILE;
    // Deliberate: whatever folder the key names, the project file lies beside the profile file.
    hint.projectFile = besideOf(simPath, tervix::fileNameOf(info.projectFile));
  } else if (hint.type == PROJECT_TYPE_SIMULATION) {
    const std::string above = folderAbove(folder);
    if (isNamed(folder, kProfilesFolder) && isNamed(above, kSimulationFolder)) {
      hint.frontEnd = FRONTEND_ID_PROJECT_FILE;
      hint.projectFile = projectFileIn(above);
    } else if (hint.projectFile = projectFileBesideFiles(folder, 3); !hint.projectFile.empty()) {
      hint.frontEnd = FRONTEND_ID_DESIGN_FILE;
    }
  }
  return hint;
}

// The project file D.tvp beside a file named D-schematic; both names may hold a "-" themselves.
std::string projectFileBeside(const std::string& path) {
  constexpr std::size_t kLongestName = 255;
  const std::string stem = tervix::stemOf(path);
  std::string candidate;
  for (std::size_t dash = stem.rfind('-', kLongestName); dash != std::string::npos && dash != 0;
       dash = stem.rfind('-', dash - 1)) {
    candidate = besideOf(path, stem.substr(0, dash) + kProjectEnding);
    if (platform::isReadableFile(candidate))
      break;
  }
  return candidate;
}

ProjectHint hintOfAap(const std::string& aapPath) {
  ProjectHint hint;
  const std::string folder = folderAbove(aapPath);
  hint.type = typeOfFolder(folder);
  if (hint.type != PROJECT_TYPE_UNSET) {
    hint.frontEnd = FRONTEND_ID_PROJECT_FILE;
    hint.projectFile = projectFileIn(folder);
    return hint;
  }
  hint.projectFile = projectFileBesideFiles(folder, 2);
  hint.type = PROJECT_TYPE_SIMULATION;
  if (hint.projectFile.empty()) {
    hint.projectFile = projectFileBeside(aapPath);
    hint.type = hint.projectFile.empty() ? PROJECT_TYPE_UNSET : PROJECT_TYPE_OTHER;
  }
  if (hint.type != PROJECT_TYPE_UNSET)
    hint.frontEnd = FRONTEND_ID_DESIGN_FILE;
  return hint;
}

} // namespace

unsigned long CTervixProject::setProjectInfoForTvp(std::string& projectFilePath,
                                                   FRONTEND_ID frontEnd, std::string& projectName,
                                                   bool typeTwoKnown) {
  setPath(projectFilePath);
  setFrontEndId(frontEnd);
  if (frontEnd != FRONTEND_ID_PROJECT_FILE && frontEnd != FRONTEND_ID_DESIGN_FILE)
    return 1;
  if (projectName.empty()) {
    std::string fileName;
    if (const unsigned long status = getFileNameFromFileNamePath(projectFilePath, fileName);
        status != 0)
      return status;
    if (const unsigned long status = removeExtensionFromFileName(fileName, projectName);
        status != 0)
      return status;
  }
  setName(projectName);
  std::string folder;
  if (const unsigned long status = getFilePathFromFileNamePath(projectFilePath, folder);
      status != 0)
    return status;
  setFolderPath(folder);
  PROJECT_TYPE type = PROJECT_TYPE_SIMULATION;
  if (!typeTwoKnown && frontEnd == FRONTEND_ID_DESIGN_FILE) {
    if (!platform::isFolder(folder + "/" + tervix::filesFolder(projectName)))
      type = PROJECT_TYPE_OTHER;
  } else if (!typeTwoKnown) {
    type = tervix::folderOf(folder) ? typeOfFolder(folder) : PROJECT_TYPE_UNSET;
  }
  setProjectType(type);
  return type != PROJECT_TYPE_UNSET ? 0 : 1;
}

// Takes the project file that was found around another file, if it is there.
void CTervixProject::takeProjectFile(std::string& candidate) {
  if (candidate.empty() || !platform::isReadableFile(candidate))
    return;
  std::string folder = folderAbove(candidate);
  std::string name = tervix::stemOf(candidate);
  setPath(candidate);
  setFolderPath(folder);
  setName(name);
  setInitializationPath(candidate);
}

unsigned long CTervixProject::setProjectInfoForSim(std::string& simPath) {
  tervix::SimProjectInfo info;
  const unsigned long status = tervix::readSimProjectInfo(info, simPath);
  if (status == 0) {
    ProjectHint hint = hintOfSim(info, simPath);
    setProjectType(hint.type);
    setFrontEndId(hint.frontEnd);
    takeProjectFile(hint.projectFile);
    return 0;
  }
  if (status != tervix::kFileDoesNotExist && status != tervix::kInvalidSimFile)
    return status;
  // Without a valid profile file the folders alone may tell.
  std::string folder = folderAbove(simPath);
  if (isNamed(folder, kProfilesFolder))
    folder = folderAbove(folder);
  if (typeOfFolder(folder) == PROJECT_TYPE_UNSET)
    return 0;
  std::string projectFile = projectFileIn(folder);
  if (!platform::isReadableFile(projectFile))
    return 0;
  setInitializationPath(projectFile);
  std::string name = tervix::fileNameOf(folderAbove(folder));
  return setProjectInfoForTvp(projectFile, FRONTEND_ID_PROJECT_FILE, name, false);
}

unsigned long CTervixProject::setProjectInfoForAap(std::string& aapPath) {
  ProjectHint hint = hintOfAap(aapPath);
  setProjectType(hint.type);
  setFrontEndId(hint.frontEnd);
  takeProjectFile(hint.projectFile);
  return 0;
}
