#include "project/ProjectReaders.h"

#include <algorithm>
#include <array>

#include "foundation/LastError.h"
#include "foundation/PathNames.h"
#include "foundation/Text.h"
#include "foundation/platform/Platform.h"
#include "model/ProfileNames.h"
#include "project/ClosedReaders.h"

namespace tervix {
namespace {

constexpr const char* kDesignSection = "Design Resources";
constexpr const char* kOutputFileItem = "TERVIX_Output_File";
constexpr const char* kResourceSection = "Tervix Resources";
constexpr const char* kDesignEnding = ".dsn";
constexpr const char* kProfilesFolder = "/profiles";

struct ResourceItem {
  const char* name;
  std::vector<std::string>& files;
};

// A file that the project file lists. "ab/x" does not count as relative; a front end may mean it
// so all the same, and gets it so where it leads to a file.
std::string listedFile(const std::string& projectFolder, const std::string& listed) {
  const std::string named = toForwardSlashes(listed);
  auto file = resolvedAgainst(projectFolder, named);
  const bool hasDrive = named.size() > 1 && named[1] == ':';
  const bool hasRoot = !named.empty() && named.front() == '/';
  if (file && (*file != named || hasDrive || hasRoot || platform::isReadableFile(named)))
    return std::move(*file);
  return projectFolder.empty() ? named : joined({projectFolder, "/", named});
}

using SimFileVisit = std::function<void(const SimFile&)>;

// A file is told from anything else by opening it.
void visitIfReadable(const SimFileVisit& visit, const std::string& path) {
  const SimFile file(path);
  if (file.isReadableFile())
    visit(file);
}

bool canBeFile(platform::EntryKind kind) {
  return kind == platform::EntryKind::kFile || kind == platform::EntryKind::kUnknown;
}

// Visits the ".sim" files of a folder; false when it cannot be listed.
bool visitSimFiles(const SimFileVisit& visit, const std::string& folder) {
  const auto entries = platform::listFolder(folder);
  if (!entries)
    return false;
  for (const platform::FolderEntry& entry : *entries)
    if (canBeFile(entry.kind) && isSimFileName(entry.name))
      visitIfReadable(visit, joined({folder, "/", entry.name}));
  return true;
}

unsigned long readRegisteredProfiles(const SimFileVisit& visit, std::string& activeProfile,
                                     const std::string& projectFile,
                                     const std::string& projectFolder) {
  std::list<std::string> registered;
  if (!closed::listProfiles(projectFile, registered, activeProfile))
    return raiseError(kInvalidFileSyntax, projectFile);
  for (; !registered.empty(); registered.pop_front()) // what is done with makes room
    visitIfReadable(visit, listedFile(projectFolder, registered.front()));
  return 0;
}

} // namespace

bool isSimFileName(const std::string& fileName) {
  return fileName.size() > kEndingLength && endsWithIgnoringCase(fileName, kSimEnding);
}

unsigned long readDesignFromProject(DesignPlace& design, const std::string& projectFile,
                                    const std::string& projectFolder, FRONTEND_ID frontEnd) {
  if (frontEnd == FRONTEND_ID_PROJECT_FILE) {
    const auto above = folderOf(projectFolder);
    if (!above || !folderOf(*above))
      return 1;
    const std::string name = fileNameOf(*above);
    design = {projectFolder + "/" + name, projectFolder, name};
    return 0;
  }
  if (frontEnd != FRONTEND_ID_DESIGN_FILE)
    return 1;
  std::list<std::string> files;
  if (!closed::listFiles(projectFile, kDesignSection, files))
    return raiseError(kInvalidFileSyntax, projectFile);
  const auto listed = std::find_if(files.begin(), files.end(), [](const std::string& file) {
    return endsWithIgnoringCase(file, kDesignEnding);
  });
  if (listed == files.end())
    return raiseError(kNoValidDesign, projectFile);
  const std::string file = listedFile(projectFolder, *listed);
  if (!platform::isReadableFile(file))
    return raiseError(kNoValidDesign, projectFile);
  design = {file, folderOf(file).value_or(std::string()), stemOf(file)};
  return 0;
}

unsigned long readDesignSchematics(std::vector<std::string>& schematics, std::string& rootSchematic,
                                   const std::string& designPath, const std::string& designName,
                                   FRONTEND_ID frontEnd) {
  schematics.clear();
  if (frontEnd == FRONTEND_ID_PROJECT_FILE)
    schematics.push_back(designName);
  if (frontEnd != FRONTEND_ID_DESIGN_FILE)
    return 0;
  std::list<std::string> names;
  if (!closed::readDesign(designPath, rootSchematic, names))
    return raiseError(kCannotReadDesign, designPath);
  schematics.assign(names.begin(), names.end());
  return 0;
}

unsigned long readProfileFiles(const SimFileVisit& visit, std::string& activeProfile,
                               const std::string& projectFile, const std::string& projectFolder,
                               const std::vector<std::string>& schematicFolders,
                               FRONTEND_ID frontEnd, PROJECT_TYPE projectType) {
  if (frontEnd == FRONTEND_ID_DESIGN_FILE)
    return readRegisteredProfiles(visit, activeProfile, projectFile, projectFolder);
  if (frontEnd != FRONTEND_ID_PROJECT_FILE)
    return 1;
  if (projectType == PROJECT_TYPE_OTHER) {
    // A folder that is missing or cannot be opened has no profiles.
    for (const std::string& folder : schematicFolders)
      visitSimFiles(visit, folder);
    return 0;
  }
  if (projectType != PROJECT_TYPE_SIMULATION)
    return 1;
  const std::string folder = projectFolder + kProfilesFolder;
  if (!platform::exists(folder))
    return raiseError(kNoProfilesDirectory);
  return visitSimFiles(visit, folder) ? 0 : raiseError(kCannotOpenDirectory, folder);
}

unsigned long readOutputFileFromProject(std::string& outputFile, const std::string& projectFile,
                                        FRONTEND_ID frontEnd) {
  if (frontEnd != FRONTEND_ID_DESIGN_FILE)
    return 0;
  if (!closed::readItem(projectFile, kDesignSection, kOutputFileItem, outputFile))
    return raiseError(kInvalidFileSyntax, projectFile);
  return 0;
}

unsigned long readProjectResources(DesignResources& resources, const std::string& projectFile) {
  resources = {};
  const std::array<ResourceItem, 3> items = {{{"Model Libraries", resources.libraries},
                                              {"Stimulus Files", resources.stimuli},
                                              {"Include Files", resources.includes}}};
  for (const ResourceItem& item : items) {
    std::list<std::string> listed;
    if (!closed::listFiles(projectFile, kResourceSection, item.name, listed))
      return raiseError(kInvalidFileSyntax, projectFile);
    item.files.assign(listed.begin(), listed.end());
  }
  return 0;
}

} // namespace tervix
