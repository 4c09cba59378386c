#include <algorithm>
#include <string>
#include <vector>

#include "TervixFiles.h"
#include "foundation/LastError.h"
#include "foundation/Text.h"
#include "foundation/platform/Platform.h"

namespace platform = tervix::platform;

namespace {

constexpr std::size_t kLongestPath = 259;

bool isThereOrMade(std::string folder) {
  return platform::exists(folder) || createDir(folder) == 0;
}

// The source folders whose copies are under way, from the outermost inwards.
using OpenFolders = std::vector<std::string>;

unsigned long copyTree(const std::string& source, const std::string& target, OpenFolders& open);

// A link may lead anywhere: to where the copy goes, or back to a folder that is being copied.
unsigned long copyLinked(const std::string& source, const std::string& target, OpenFolders& open) {
  if (!platform::exists(source))
    return 0;
  const bool leadsBack = std::any_of(open.begin(), open.end(), [&](const std::string& folder) {
    return platform::isSameEntry(folder, source);
  });
  return leadsBack || platform::liesIn(target, source) ? 1 : copyTree(source, target, open);
}

// Half a copy would pass for a whole one the next time.
unsigned long copyWholeFile(const std::string& source, const std::string& target) {
  const platform::CopyResult result =
      platform::copyFile(source, target, platform::LinkedTarget::kRefused);
  if (result == platform::CopyResult::kMadePart)
    platform::removeFile(target);
  return result == platform::CopyResult::kCopied ? 0 : 1;
}

// Copies one entry; see cpDir for what decides between file and folder.
unsigned long copyEntry(const std::string& source, const std::string& target,
                        platform::FolderEntry& entry, OpenFolders& open) {
  const std::string from = source + "/" + entry.name;
  const std::string to = target + "/" + entry.name;
  std::string extension;
  if (getExtensionFromFileName(entry.name, extension) == 0)
    return copyWholeFile(from, to);
  // What a link in the target leads to is no part of it.
  if (platform::isLink(to))
    return 1;
  return entry.kind == platform::EntryKind::kFolder ? copyTree(from, to, open)
                                                    : copyLinked(from, to, open);
}

unsigned long copyTree(const std::string& source, const std::string& target, OpenFolders& open) {
  std::string folder = target;
  if (const unsigned long status = createPath(folder); status != 0)
    return status;
  auto entries = platform::listFolder(source);
  if (!entries)
    return 1;
  open.push_back(source);
  for (platform::FolderEntry& entry : *entries) {
    if (entry.name == "." || entry.name == "..")
      continue;
    if (const unsigned long status = copyEntry(source, target, entry, open); status != 0)
      return status;
  }
  open.pop_back();
  return 0;
}

} // namespace

unsigned long dirPathExists(std::string& path, bool& exists) {
  exists = platform::exists(path);
  return 0;
}

unsigned long createDir(std::string& path) {
  if (platform::isReadableFolder(path))
    return 0;
  const std::size_t last = path.find_last_not_of("/\\");
  if (last == std::string::npos)
    return 1;
  return platform::makeFolder(path.substr(0, last + 1)) ? 0 : 1;
}

unsigned long createPath(std::string& path) {
  if (path.size() > kLongestPath)
    return tervix::raiseError(tervix::kCannotCreateDirectory, path);
  // Mostly the last folder alone is missing.
  if (platform::makeFolder(path) || platform::exists(path))
    return 0;
  const std::string normal = tervix::toForwardSlashes(path);
  std::size_t slash = normal.find('/');
  // "//server/share": the first folder is the name of a server, which cannot be made.
  bool serverAhead = slash != std::string::npos && normal.compare(slash, 2, "//") == 0;
  if (serverAhead)
    ++slash;
  do {
    slash = slash == std::string::npos ? slash : normal.find('/', slash + 1);
    const std::string folder = normal.substr(0, slash);
    if (isThereOrMade(folder))
      continue;
    if (!serverAhead || slash == std::string::npos)
      return tervix::raiseError(tervix::kCannotCreateDirectory, folder);
    serverAhead = false;
  } while (slash != std::string::npos);
  return 0;
}

unsigned long cpDir(std::string& source, std::string& target) {
  OpenFolders open;
  return platform::liesIn(target, source) ? 1 : copyTree(source, target, open);
}
