#include "tools/tervix/changes/ArchiveFolder.h"

#include <algorithm>
#include <filesystem>

#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/ArchivePaths.h"
#include "tools/tervix/changes/Names.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

Failure refused(const std::string& folder, const std::string& reason) {
  return Failure("the archive cannot be made in " + inQuotes(folder) + ": " + reason);
}

bool isThere(const fs::path& path) {
  std::error_code error;
  const fs::file_type type = fs::symlink_status(path, error).type();
  return type != fs::file_type::not_found && type != fs::file_type::none;
}

// What stands nearest above a folder that is still to be made has to be a folder.
void requireMakeable(const std::string& folder) {
  fs::path above = folder;
  while (above.has_relative_path() && !isThere(above))
    above = above.parent_path();
  std::error_code error;
  if (fs::is_directory(above, error))
    return;
  throw refused(folder, fs::is_symlink(fs::symlink_status(above, error))
                            ? inQuotes(above.generic_string()) + " is a link that leads nowhere"
                            : inQuotes(above.generic_string()) + " is not a folder");
}

} // namespace

std::string archiveFolderFor(const std::string& text, const std::string& root,
                             const ProjectLayout& layout) {
  if (text.empty())
    throw Failure("the archive needs the name of a folder");
  std::string forward = text;
  std::replace(forward.begin(), forward.end(), '\\', '/');
  std::error_code error;
  fs::path full = fs::weakly_canonical(fs::absolute(forward), error);
  if (error)
    throw refused(forward, error.message());
  if (!full.has_filename())
    full = full.parent_path();
  std::string folder = full.generic_string();
  requireMakeable(folder);
  const std::string realRoot = fs::canonical(root).generic_string();
  if (liesIn(folder, realRoot))
    throw refused(folder, "it lies in the project's own folder " + inQuotes(realRoot));
  if (liesIn(realRoot, folder))
    throw refused(folder, "it holds the project");
  if (isThere(folder) && !fs::is_empty(folder, error))
    throw refused(folder, error ? error.message() : "it is not empty");
  for (const char* name : {"cfg_analog", "tvx_sim_1"})
    if (layout.hasDesignFile() && isSameName(full.filename().string(), name))
      throw refused(folder, "a project in a folder of that name is one of front end 1");
  return folder;
}

} // namespace tervix::tool
