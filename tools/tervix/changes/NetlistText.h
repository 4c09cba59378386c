#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace tervix::tool {

// A file that a line of a netlist or library includes: ".inc", ".include", ".lib" or ".stmlib".
struct IncludedFile {
  std::size_t line;    // from 1
  std::string text;    // as it is written, without quotes
  bool maybeSection;   // ".lib NAME" may also begin a section of the library itself
  std::string section; // of that file, where ".lib FILE SECTION" takes no more of it
  std::string within;  // the section in which the line stands; empty outside
};

// A name that begins with "$" is a variable's, known to the simulator alone, and left out.
std::vector<IncludedFile> includedFiles(std::istream& netlist);
std::vector<IncludedFile> includedFiles(std::string_view netlist);

} // namespace tervix::tool
