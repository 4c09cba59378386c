#ifndef TERVIX_FORMATS_DESIGN_FILE_H
#define TERVIX_FORMATS_DESIGN_FILE_H

#include "FormatsExport.h"

#include <list>
#include <optional>
#include <string>

namespace tervix::formats {

// What a ".dsn" design file says. The root need not be one of the schematics.
struct Design {
  std::list<std::string> schematics;
  std::string root;
};

// Nothing, with the reason in lastMistake(), when the file cannot be read.
TERVIX_FORMATS_API std::optional<Design> readDesign(const std::string& designFile) noexcept;

} // namespace tervix::formats

#endif
