#include "tools/tervix/changes/ArchiveNetlists.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>

#include "tools/tervix/changes/Folders.h"
#include "tools/tervix/changes/Names.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 8> kNetlistEndings = {".cir", ".net", ".lib", ".inc",
                                                        ".stl", ".mod", ".sub", ".ckt"};
constexpr std::uintmax_t kLargestNetlist = std::uintmax_t{64} << 20U;

bool endsAsNetlist(const std::string& place) {
  const std::string ending = fs::path(place).extension().string();
  return std::any_of(kNetlistEndings.begin(), kNetlistEndings.end(),
                     [&](const char* known) { return isSameName(ending, known); });
}

std::string described(const IncludedFile& included) {
  return "line " + std::to_string(included.line) + " includes \"" + included.text + "\"";
}

} // namespace

void ArchiveNetlists::follow(const std::set<std::string>& netlists,
                             const std::set<std::string>& texts) {
  std::vector<std::string> waiting(netlists.begin(), netlists.end());
  for (const std::string& file : files_.files())
    if (endsAsNetlist(file))
      waiting.push_back(file);
  std::set<std::string> done = texts;
  while (!waiting.empty()) {
    const std::string netlist = waiting.back();
    waiting.pop_back();
    if (done.insert(netlist).second && files_.files().count(netlist) != 0)
      read(netlist, waiting);
  }
}

void ArchiveNetlists::read(const std::string& netlist, std::vector<std::string>& more) {
  std::error_code error;
  if (fs::file_size(netlist, error) > kLargestNetlist)
    return files_.remark("unread", netlist, "is too large to look for what it includes");
  std::ifstream stream(netlist, std::ios::binary);
  for (const IncludedFile& included : includedFiles(stream)) {
    const std::string folder = folderHolding(netlist);
    const std::string place = paths_.placeOf({included.text, folder});
    if (files_.addFile(place)) {
      if (!isFullText(included.text))
        paths_.keepTogether(folder, folderHolding(place));
      lines_.push_back({netlist, included, place});
      more.push_back(place);
    } else if (!included.maybeSection) {
      files_.remark("unresolved", netlist,
                    described(included) + ", which is not a file beside it; not followed");
    }
  }
}

void ArchiveNetlists::tellUnresolved() {
  for (const Line& line : lines_) {
    const std::string newPlace = paths_(line.place);
    const NamedPath named = {line.included.text, folderHolding(paths_(line.netlist))};
    if (isFullText(line.included.text) || placeOf(named) != newPlace)
      files_.remark("unresolved", line.netlist,
                    described(line.included) +
                        ", which does not lead to its copy in the archive: \"" + newPlace + "\"");
  }
}

} // namespace tervix::tool
