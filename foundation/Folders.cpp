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

unsigned long copyTree(const std::string& source, const std::string& target);

// Copies one entry; see cpDir for what decides between file and folder.
unsigned long copyEntry(const std::string& source, const std::string& target,
                        platform::FolderEntry& entry) {
  std::string from = source + "/" + entry.name;
  std::string to = target + "/" + entry.name;
  std::string extension;
  if (getExtensionFromFileName(entry.name, extension) == 0)
    return cpFile(from, to);
  if (entry.kind == platform::EntryKind::kFolder)
    return copyTree(from, to);
  // A link, say: it may lead anywhere, back to where the copy goes as well.
  return platform::exists(from) ? cpDir(from, to) : 0;
}

unsigned long copyTree(const std::string& source, const std::string& target) {
  std::string folder = target;
  if (const unsigned long status = createPath(folder); status != 0)
    return status;
  auto entries = platform::listFolder(source);
  if (!entries)
    return 1;
  for (platform::FolderEntry& entry : *entries) {
    if (entry.name == "." || entry.name == "..")
      continue;
    if (const unsigned long status = copyEntry(source, target, entry); status != 0)
      return status;
  }
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
  return platform::liesIn(target, source) ? 1 : copyTree(source, target);
}
