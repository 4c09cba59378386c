#ifndef TERVIX_FORMATS_PROJECT_FILE_H
#define TERVIX_FORMATS_PROJECT_FILE_H

// What a ".tvp" project file says: sections that hold items, each a list of file names or a text.
// A section or item that the file does not have reads as empty. A read that fails returns nothing
// and leaves the reason in lastMistake(). A section or item name without data, as a default
// std::string_view is, is a missing name and fails too.

#include "FormatsExport.h"

#include <list>
#include <optional>
#include <string>
#include <string_view>

namespace tervix::formats {

struct SimulationProfiles {
  std::list<std::string> files;
  std::string active;
};

TERVIX_FORMATS_API std::optional<std::list<std::string>>
readFileList(const std::string& projectFile, std::string_view section,
             std::string_view item = "Files") noexcept;

TERVIX_FORMATS_API std::optional<std::string>
readText(const std::string& projectFile, std::string_view section, std::string_view item) noexcept;

TERVIX_FORMATS_API std::optional<SimulationProfiles>
readSimulationProfiles(const std::string& projectFile) noexcept;

} // namespace tervix::formats

#endif
