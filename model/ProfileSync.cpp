#include <algorithm>
#include <string_view>

#include "CTervixProfile.h"
#include "TervixFiles.h"
#include "foundation/LastError.h"
#include "foundation/PathNames.h"
#include "foundation/Text.h"
#include "foundation/platform/Platform.h"
#include "model/FileSuffixes.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"
#include "model/SimFileRewrite.h"

namespace platform = tervix::platform;

namespace {

constexpr std::string_view kSeparators = "/\\";

// Whether a file stands there that a copy must not touch, be it readable or not.
bool isFileThere(const std::string& path) {
  return platform::isTaken(path) && !platform::isFolder(path);
}

// The copy is complete under a name of its own before it takes its place: half a copy, left by a
// process that was killed, would pass for a whole one the next time.
bool copyWhole(std::string& source, const std::string& target) {
  std::string arriving = platform::unusedNameBeside(target);
  if (cpFile(source, arriving) == 0 &&
      platform::moveEntry(arriving, target) == platform::MoveResult::kMoved)
    return true;
  rmFile(arriving);
  return false;
}

unsigned long copySimFile(std::string& oldPath, std::string& newPath) {
  if (!platform::isReadableFile(oldPath) || isFileThere(newPath))
    return 0;
  auto folder = tervix::folderOf(newPath);
  const bool hasFolder =
      !folder || folder->empty() || platform::isFolder(*folder) || createPath(*folder) == 0;
  if (hasFolder && copyWhole(oldPath, newPath))
    return 0;
  return tervix::raiseError(tervix::kCannotCopyFile, oldPath, newPath);
}

// In a copied folder a file under its new name is the newer one; the one under the old name was
// only carried along.
void takeNewName(std::string oldFile, std::string newFile) {
  if (!platform::isReadableFile(oldFile) || platform::isSameEntry(oldFile, newFile))
    return;
  if (platform::isReadableFile(newFile))
    rmFile(oldFile);
  else if (!isFileThere(newFile))
    mvFile(oldFile, newFile);
}

// Whether a link stands where folder is to be made, or one of the two above it: those of the
// profile, its schematic and the project are composed from names, and something else may bear such
// a name. What origin shares with it is where the project lies, by whatever link.
bool leadsAway(const std::string& folder, const std::string& origin) {
  constexpr int kComposedFolders = 3;
  std::string_view place = folder;
  for (int depth = 0; depth < kComposedFolders && !place.empty(); ++depth) {
    const bool isShared = origin.compare(0, place.size(), place) == 0 &&
                          (origin.size() == place.size() ||
                           kSeparators.find(origin[place.size()]) != std::string_view::npos);
    if (isShared)
      return false;
    if (platform::isLink(std::string(place)))
      return true;
    place = place.substr(0, std::min(place.find_last_of(kSeparators), place.size()));
  }
  return false;
}

std::string withoutEnding(const std::string& path) {
  return std::string(tervix::withoutLast(path, tervix::kEndingLength));
}

} // namespace

unsigned long CTervixProfile::syncUpProfileFiles(std::string& oldPath, std::string& newPath) {
  datFilePath_.clear();
  outFilePath_.clear();
  const CTervixNode* schematic = tervix::parentOf(*this);
  if (schematic == nullptr || tervix::projectAbove(*schematic) == nullptr)
    return 1;
  const PROJECT_TYPE type = tervix::projectTypeOf(*this);
  if (type != PROJECT_TYPE_SIMULATION && type != PROJECT_TYPE_OTHER)
    return 1;
  const std::string oldFolder = withoutEnding(oldPath);
  const std::string newFolder = withoutEnding(newPath);
  if (type == PROJECT_TYPE_SIMULATION && leadsAway(newFolder, oldFolder) &&
      !platform::isSameEntry(oldFolder, newFolder))
    return tervix::raiseError(tervix::kCannotCopyDirectory, oldFolder, newFolder);
  if (const unsigned long status = copySimFile(oldPath, newPath); status != 0)
    return status;
  return type == PROJECT_TYPE_SIMULATION ? syncUpFolder(oldPath, newPath)
                                         : syncUpFiles(oldPath, newPath);
}

// A profile with a folder of its own: the folder goes along, and its files take the new name.
unsigned long CTervixProfile::syncUpFolder(std::string& oldPath, std::string& newPath) {
  std::string oldFolder = withoutEnding(oldPath);
  std::string newFolder = withoutEnding(newPath);
  if (oldFolder.empty() || newFolder.empty())
    return tervix::raiseError(tervix::kCannotCopyDirectory, oldFolder, newFolder);
  unsigned long result = 0;
  if (cpDir(oldFolder, newFolder) != 0) {
    // A folder is not copied onto itself, and need not be.
    if (platform::isSameEntry(oldFolder, newFolder))
      return 0;
    result = tervix::raiseError(tervix::kCannotCopyDirectory, oldFolder, newFolder);
  }
  const std::string oldStem = tervix::stemOf(oldPath);
  const std::string newStem = tervix::stemOf(newPath);
  if (tervix::equalsIgnoringCase(oldStem, newStem))
    return result;
  takeNewName(tervix::includeListIn(newFolder, oldStem), tervix::includeListIn(newFolder, newStem));
  for (const char* suffix : tervix::kProfileFileSuffixes)
    takeNewName(newFolder + "/" + tervix::fileInFolder(oldStem, suffix),
                newFolder + "/" + tervix::fileInFolder(newStem, suffix));
  return result;
}

// A profile whose files lie beside its ".sim" file: they are copied one by one, and the old ones
// stay (deliberate: they share their folder with everything else).
unsigned long CTervixProfile::syncUpFiles(std::string& oldPath, std::string& newPath) {
  unsigned long result = platform::isReadableFile(newPath) ? 1 : 0;
  // Not through a link that bears the new name: what it leads to is another file.
  if (result != 0 && (newPath == oldPath || !platform::isLink(newPath)))
    result = rewriteSimFile(newPath);
  for (const char* suffix : tervix::kProfileFileSuffixes) {
    std::string oldFile = tervix::fileBesideSim(withoutEnding(oldPath), suffix);
    std::string newFile = tervix::fileBesideSim(withoutEnding(newPath), suffix);
    if (!platform::isReadableFile(oldFile) || isFileThere(newFile))
      continue;
    if (!copyWhole(oldFile, newFile))
      result = tervix::raiseError(tervix::kCannotCopyFile, oldFile, newFile);
  }
  return result;
}

unsigned long CTervixProfile::rewriteSimFile(std::string& simPath) {
  std::string design;
  std::string schematic;
  if (const unsigned long status = namesForFiles(design, schematic); status != 0)
    return status;
  const CTervixProject* project = tervix::projectAbove(*tervix::parentOf(*this));
  const std::string netlist =
      tervix::longNameOf(design, schematic, tervix::nameOf(*this)) + ".sim.cir";
  return tervix::rewriteSimKeys(
      simPath, {{"NetlistFile", netlist}, {"ProjectFile", tervix::nameOf(*project) + ".tvp"}});
}
