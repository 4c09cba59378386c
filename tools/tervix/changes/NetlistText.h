#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <vector>

namespace tervix::tool {

// A file that a line of a netlist or library includes: ".inc", ".include", ".lib" or ".stmlib".
struct IncludedFile {
  std::size_t line;  // from 1
  std::string text;  // as it is written, without quotes
  bool maybeSection; // ".lib NAME" may also begin a section of the library itself
};

std::vector<IncludedFile> includedFiles(std::istream& netlist);

} // namespace tervix::tool
