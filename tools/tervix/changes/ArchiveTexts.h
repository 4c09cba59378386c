#pragma once

#include <functional>
#include <map>
#include <string>

#include "tools/tervix/ProjectView.h"
#include "tools/tervix/changes/NamedPath.h"
#include "tools/tervix/changes/ProjectLayout.h"

namespace tervix::tool {

// A file that a text of the project names.
struct NamedFile {
  NamedPath named;
  std::string by; // the text
  // Told when it is not there. A key that only says what a profile belongs to need not lead to a
  // file, and neither need a key that the library does not know.
  bool isExpected;
  // A bare name would count from another folder.
  bool isNeverBare;
  // A netlist or library, which may include other files.
  bool isNetlist;
};

// Gives a name its new text.
using NewText = std::function<std::string(const NamedFile&)>;

// Every text of the project that names files, by its path: the project file, and of each profile
// the ".sim" file and the include list. Each name has its new text; every other byte stays.
std::map<std::string, std::string> textsOf(const ProjectView& view, const ProjectLayout& layout,
                                           const NewText& newText);

} // namespace tervix::tool
