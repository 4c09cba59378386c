#pragma once

#include <functional>
#include <string>
#include <vector>

#include "CTervixNode.h"
#include "model/SimFile.h"

namespace tervix {

// What a project's files say of it. Each reader returns 0, or the code that it recorded with the
// path of the file at fault; outputs keep what they held when it fails.

struct DesignPlace {
  std::string path;
  std::string folder;
  std::string name;
};

struct DesignResources {
  std::vector<std::string> libraries;
  std::vector<std::string> stimuli;
  std::vector<std::string> includes;
};

// Finds the design of a project. For FRONTEND_ID_DESIGN_FILE the first ".dsn" file that the
// project file lists: 10109 the project file cannot be read, 10124 no such file listed, or it
// does not exist. For FRONTEND_ID_PROJECT_FILE no file is read: the design is named after the
// folder that holds the project folder, and lies in the project folder.
// 1: another front end, or a folder without a name above it.
unsigned long readDesignFromProject(DesignPlace& design, const std::string& projectFile,
                                    const std::string& projectFolder, FRONTEND_ID frontEnd);

// Lists the schematics of a design, its root named. 10110: the design reader is missing or fails.
// For FRONTEND_ID_PROJECT_FILE the one schematic is named like the design and none is root.
unsigned long readDesignSchematics(std::vector<std::string>& schematics, std::string& rootSchematic,
                                   const std::string& designPath, const std::string& designName,
                                   FRONTEND_ID frontEnd);

// Calls visit for each ".sim" file of a project that exists, opened: those registered in the
// project file, for FRONTEND_ID_PROJECT_FILE those found in its folders. activeProfile is read
// before. 10109: the project file cannot be read;
// 10122, 10103: no "profiles" folder, or it cannot be opened. 1: another front end or type.
unsigned long readProfileFiles(const std::function<void(const SimFile&)>& visit,
                               std::string& activeProfile, const std::string& projectFile,
                               const std::string& projectFolder,
                               const std::vector<std::string>& schematicFolders,
                               FRONTEND_ID frontEnd, PROJECT_TYPE projectType);

// The simulator output file, only for FRONTEND_ID_DESIGN_FILE. 10109.
unsigned long readOutputFileFromProject(std::string& outputFile, const std::string& projectFile,
                                        FRONTEND_ID frontEnd);

// The three lists of design-level files, as far as they could be read. 10109.
unsigned long readProjectResources(DesignResources& resources, const std::string& projectFile);

// Whether a file name ends in ".sim", in any case, with something in front of it.
bool isSimFileName(const std::string& fileName);

} // namespace tervix
