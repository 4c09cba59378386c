#include "CTervixProfile.h"
#include "foundation/LastError.h"
#include "foundation/PathNames.h"
#include "foundation/Text.h"
#include "model/FileSuffixes.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"
#include "model/SimFile.h"

namespace {

// Deliberate: "dat" and "out" are looked for anywhere in the suffix and in lower case, the two
// whole suffixes in any case.
bool isDataLike(const std::string& suffix) {
  return tervix::contains(suffix, "dat") || tervix::equalsIgnoringCase(suffix, "csd") ||
         tervix::equalsIgnoringCase(suffix, "prb");
}

bool isOutputLike(const std::string& suffix) {
  return tervix::contains(suffix, "out");
}

} // namespace

unsigned long CTervixProfile::loadRunFilePaths() {
  std::string outFile;
  std::string dataFile;
  std::string simPath;
  const tervix::LastErrorKept kept;
  if (getPath(simPath) != 0 || tervix::readDataAndOutFile(outFile, dataFile, simPath) != 0)
    return 1;
  setDatFilePath(dataFile);
  setOutFilePath(outFile);
  return 0;
}

unsigned long CTervixProfile::getFilePathFromProfile(std::string& path, std::string& suffix) {
  path.clear();
  const bool besideData = isDataLike(suffix);
  if (!besideData && !isOutputLike(suffix))
    return tervix::raiseError(tervix::kInvalidProfileFileSuffix, suffix);
  const std::string& anchor = besideData ? datFilePath_ : outFilePath_;
  if (anchor.empty() && (loadRunFilePaths() != 0 || anchor.empty()))
    return 1;
  const auto folder = tervix::folderOf(anchor);
  std::string name = tervix::fileNameOf(anchor);
  if (!folder || removeExtensionFromFileName(name, name) != 0)
    return 1;
  path = *folder + "/" + tervix::fileInFolder(name, suffix);
  return 0;
}

// The names above the profile; 1 when there is no schematic or no project.
unsigned long CTervixProfile::namesForFiles(std::string& design, std::string& schematic) const {
  const CTervixNode* parent = tervix::parentOf(*this);
  const CTervixProject* project = parent != nullptr ? tervix::projectAbove(*parent) : nullptr;
  if (project == nullptr)
    return 1;
  design = tervix::designNameOf(*project);
  schematic = tervix::nameOf(*parent);
  return 0;
}

unsigned long CTervixProfile::getProfileBasedFile(std::string& path, PROFILEFILE_TYPE type) {
  const auto index = static_cast<unsigned>(type);
  if (index >= tervix::kProfileFileSuffixes.size())
    return tervix::raiseError(tervix::kInvalidProfileFileType);
  std::string suffix = tervix::kProfileFileSuffixes[index];
  return getProfileBasedFile(path, suffix);
}

unsigned long CTervixProfile::getProfileBasedFile(std::string& path, std::string& suffix) {
  std::string wanted = suffix;
  if (const unsigned long status = getFolderPath(path); status != 0)
    return status;
  std::string name;
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  PROJECT_TYPE type = PROJECT_TYPE_UNSET;
  if (const unsigned long status = getName(name); status != 0)
    return status;
  if (const unsigned long status = getFrontEndId(frontEnd); status != 0)
    return status;
  if (isDataLike(wanted) || isOutputLike(wanted)) {
    std::string besideRunFile;
    if (getFilePathFromProfile(besideRunFile, wanted) == 0) {
      path = besideRunFile;
      return 0;
    }
  }
  if (const unsigned long status = getProjectType(type); status != 0)
    return status;
  if (frontEnd != FRONTEND_ID_PROJECT_FILE && frontEnd != FRONTEND_ID_DESIGN_FILE)
    return 1;
  if (type == PROJECT_TYPE_SIMULATION) {
    path += "/" + tervix::fileInFolder(name, wanted);
    return 0;
  }
  if (frontEnd == FRONTEND_ID_DESIGN_FILE) {
    std::string design;
    std::string schematic;
    if (const unsigned long status = namesForFiles(design, schematic); status != 0)
      return status;
    name = tervix::longNameOf(design, schematic, name);
  }
  path += "/" + tervix::fileBesideSim(name, wanted);
  return 0;
}
