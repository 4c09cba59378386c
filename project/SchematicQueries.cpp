#include "CTervixProject.h"
#include "foundation/LastError.h"
#include "foundation/Text.h"
#include "model/FileSuffixes.h"
#include "model/NodeFields.h"

// Schematics and their files, asked of the project by name.

namespace {

// The suffix of a type, 10118 for a value that is none.
unsigned long suffixOf(std::string& suffix, SCHEMATICFILE_TYPE type) {
  const auto index = static_cast<unsigned>(type);
  if (index >= tervix::kSchematicFileSuffixes.size())
    return tervix::raiseError(tervix::kInvalidSchematicFileType);
  suffix = tervix::kSchematicFileSuffixes[index];
  return 0;
}

unsigned long nameOrNothing(std::string& name, const CTervixNode* node) {
  name = node != nullptr ? tervix::nameOf(*node) : std::string();
  return 0;
}

} // namespace

unsigned long CTervixProject::getProjectPath(std::string& path) {
  return getPath(path);
}

unsigned long CTervixProject::getTopSchematicName(std::string& name) {
  CTervixNode* schematic = nullptr;
  getTopSchematic(schematic);
  return nameOrNothing(name, schematic);
}

unsigned long CTervixProject::getNextSchematicName(std::string& name) {
  CTervixNode* schematic = nullptr;
  getNextSchematic(schematic);
  return nameOrNothing(name, schematic);
}

unsigned long CTervixProject::getRootSchematicNetFile(std::string& file) {
  file.clear();
  CTervixNode* root = nullptr;
  if (const unsigned long status = getRootSchematic(root); status != 0)
    return status;
  const unsigned long status =
      static_cast<CTervixSchematic*>(root)->getSchematicBasedFile(file, SCHEMATIC_FILE_NET);
  file = tervix::toBackslashes(file);
  return status;
}

unsigned long CTervixProject::getSchematicBasedFile(std::string& file, std::string& schematicName,
                                                    SCHEMATICFILE_TYPE type, bool useNewName) {
  std::string suffix;
  if (const unsigned long status = suffixOf(suffix, type); status != 0) {
    file.clear();
    return status;
  }
  return getSchematicBasedFile(file, schematicName, suffix, useNewName);
}

unsigned long CTervixProject::getSchematicBasedFile(std::string& file, std::string& schematicName,
                                                    std::string& suffix, bool useNewName) {
  CTervixNode* schematic = nullptr;
  std::string found;
  unsigned long status = findSchematic(schematic, schematicName);
  if (status == 0)
    status =
        static_cast<CTervixSchematic*>(schematic)->getSchematicBasedFile(found, suffix, useNewName);
  file = found;
  return status;
}

unsigned long CTervixProject::getSchematicBasedFileForAap(std::string& file, std::string& aapPath,
                                                          SCHEMATICFILE_TYPE type) {
  std::string suffix;
  if (const unsigned long status = suffixOf(suffix, type); status != 0) {
    file.clear();
    return status;
  }
  return getSchematicBasedFileForAap(file, aapPath, suffix);
}

unsigned long CTervixProject::getSchematicBasedFileForAap(std::string& file, std::string& aapPath,
                                                          std::string& suffix) {
  bool exists = false;
  CTervixNode* schematic = nullptr;
  std::string found;
  unsigned long status = aapExists(exists, schematic, aapPath);
  if (status == 0)
    status = static_cast<CTervixSchematic*>(schematic)->getSchematicBasedFile(found, suffix);
  file = found;
  return status;
}
