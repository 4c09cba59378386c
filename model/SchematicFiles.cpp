#include <optional>

#include "CTervixSchematic.h"
#include "foundation/LastError.h"
#include "foundation/Text.h"
#include "model/FileSuffixes.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"

namespace {

constexpr std::string_view kDefaultMarker = "default.mrk";
constexpr std::string_view kProperties = "prp";

bool isMarker(const std::string& suffix) {
  return tervix::equalsIgnoringCase(suffix, kDefaultMarker);
}

std::string separatorFor(const std::string& suffix, bool isSimulation) {
  if (isMarker(suffix))
    return "-";
  return isSimulation && tervix::equalsIgnoringCase(suffix, kProperties) ? "_sch." : ".";
}

// What a schematic's file is composed of.
struct FilePieces {
  std::string folder;
  std::string design; // not used by a simulation project
  std::string schematic;
};

std::string composed(const FilePieces& pieces, const std::string& suffix, bool isSimulation) {
  const std::string prefix = isSimulation ? "" : pieces.design + "-";
  return pieces.folder + "/" + prefix + pieces.schematic + separatorFor(suffix, isSimulation) +
         suffix;
}

// Without a project only a simulation project's pieces are complete.
FilePieces piecesOf(const CTervixSchematic& schematic, const CTervixProject* project,
                    const std::string& suffix, bool isSimulation) {
  FilePieces pieces{tervix::folderPathOf(schematic), "", tervix::nameOf(schematic)};
  if (isSimulation || project == nullptr)
    return pieces;
  pieces.design = tervix::designNameOf(*project);
  if (isMarker(suffix))
    pieces.folder = tervix::folderPathOf(*project);
  return pieces;
}

// Puts the new or the former name of the recorded rename in its place.
void substitute(FilePieces& pieces, const tervix::ChangedName& record, bool useNewName,
                const CTervixProject& project, bool isSimulation) {
  const std::string& name = useNewName ? record.changed : record.former;
  switch (record.kind) {
  case RENAME_TYPE_SCHEMATIC:
    if (!tervix::equalsIgnoringCase(pieces.schematic, record.former) &&
        !tervix::equalsIgnoringCase(pieces.schematic, record.changed))
      return;
    pieces.schematic = name;
    if (isSimulation)
      pieces.folder = tervix::simulationFolder(project, name);
    return;
  case RENAME_TYPE_DESIGN:
    pieces.design = name;
    return;
  case RENAME_TYPE_PROJECT:
    if (isSimulation)
      return;
    // A bare name says nothing about a folder, so the files are where the project is.
    pieces.folder = tervix::splitAtFirstOf(name, "/\\") ? name : tervix::folderPathOf(project);
    return;
  default:
    return;
  }
}

} // namespace

unsigned long CTervixSchematic::getSchematicBasedFile(std::string& file, SCHEMATICFILE_TYPE type) {
  const auto index = static_cast<unsigned>(type);
  if (index >= tervix::kSchematicFileSuffixes.size())
    return tervix::raiseError(tervix::kInvalidSchematicFileType);
  std::string suffix = tervix::kSchematicFileSuffixes[index];
  return getSchematicBasedFile(file, suffix);
}

// The status of what a file's name cannot do without.
unsigned long CTervixSchematic::checkNamed() const {
  std::string name;
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  PROJECT_TYPE type = PROJECT_TYPE_UNSET;
  if (const unsigned long status = getName(name); status != 0)
    return status;
  if (const unsigned long status = getFrontEndId(frontEnd); status != 0)
    return status;
  return getProjectType(type);
}

unsigned long CTervixSchematic::getSchematicBasedFile(std::string& file, std::string& suffix) {
  if (const unsigned long status = checkNamed(); status != 0)
    return status;
  const bool isSimulation = tervix::isSimulation(*this);
  const CTervixProject* project = tervix::projectAbove(*this);
  if (!isSimulation && project == nullptr)
    return 1;
  file = composed(piecesOf(*this, project, suffix, isSimulation), suffix, isSimulation);
  return 0;
}

unsigned long CTervixSchematic::getSchematicBasedFile(std::string& file, std::string& suffix,
                                                      bool useNewName) {
  const CTervixProject* project = tervix::projectAbove(*this);
  if (project == nullptr)
    return 1;
  if (const unsigned long status = checkNamed(); status != 0)
    return status;
  const bool isSimulation = tervix::isSimulation(*this);
  FilePieces pieces = piecesOf(*this, project, suffix, isSimulation);
  if (const tervix::ChangedName record = tervix::changedNameOf(*project); record.isWhole())
    substitute(pieces, record, useNewName, *project, isSimulation);
  file = composed(pieces, suffix, isSimulation);
  return 0;
}
