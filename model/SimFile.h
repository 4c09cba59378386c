#pragma once

#include <string>

namespace tervix {

// What a profile's ".sim" file says. A key stands at the very start of its line, in any case, its
// value in double quotes behind it. A text without value in the file stays as it was; of several
// values of one key the last counts.
struct SimProjectInfo {
  std::string profileName;
  std::string profileFile;
  std::string designFile;
  std::string projectFile;
  std::string rootSchematic;
};

// Each reader needs as many lines with one of its keys as it has keys, and reads no further. It
// returns 0, or what it recorded with the file's path: 10104 no readable file, 10105 it could not
// be opened or read, 10121 too few of the lines.
unsigned long readProfileNameAndRoot(std::string& rootSchematic, std::string& profileName,
                                     const std::string& simPath);
unsigned long readDataAndOutFile(std::string& outFile, std::string& dataFile,
                                 const std::string& simPath);
unsigned long readSimProjectInfo(SimProjectInfo& info, const std::string& simPath);

// Whether a file may become a profile of a front-end-1 project without simulation folders: it
// names design file, project file and root schematic, and its own name is that of its profile.
// Otherwise 10121, recorded.
unsigned long checkSimFile(const std::string& simPath);

} // namespace tervix
