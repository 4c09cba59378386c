#pragma once

#include <optional>
#include <string>

#include "foundation/LineReader.h"

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

// A ".sim" file, opened once for all that is asked of it, when it is first asked.
class SimFile {
public:
  // Deliberately implicit: a path will do where one question is asked. It must live on.
  SimFile(const std::string& path) : path_(path) {}

  const std::string& path() const { return path_; }
  bool isReadableFile() const {
    return opening() != platform::FileReader::Opening::kNoReadableFile;
  }
  // Its lines from the first one on. 10104, 10105, recorded: no readable file, or it could not be
  // opened.
  unsigned long readLines(LineReader*& lines) const;

private:
  platform::FileReader::Opening opening() const {
    if (!opening_)
      opening_ = lines_.open(path_);
    return *opening_;
  }

  const std::string& path_;
  mutable LineReader lines_;
  mutable std::optional<platform::FileReader::Opening> opening_;
};

// Each reader needs as many lines with one of its keys as it has keys, and reads no further. It
// returns 0, or what it recorded with the file's path: 10104 no readable file, 10105 it could not
// be opened or read, 10121 too few of the lines.
unsigned long readProfileNameAndRoot(std::string& rootSchematic, std::string& profileName,
                                     const SimFile& file);
unsigned long readDataAndOutFile(std::string& outFile, std::string& dataFile, const SimFile& file);
unsigned long readSimProjectInfo(SimProjectInfo& info, const SimFile& file);

// Whether a file may become a profile of a front-end-1 project without simulation folders: it
// names design file, project file and root schematic, and its own name is that of its profile.
// Otherwise 10121, recorded.
unsigned long checkSimFile(const SimFile& file);

} // namespace tervix
