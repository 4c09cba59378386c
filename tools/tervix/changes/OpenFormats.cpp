#include "tools/tervix/changes/OpenFormats.h"

#include <algorithm>
#include <array>

#include "readers/formats/Mistake.h"
#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/Names.h"

namespace tervix::tool {
namespace {

constexpr const char* kDesign = "Design";
constexpr const char* kSchematics = "Schematics";
constexpr const char* kRoot = "Root";
constexpr const char* kFiles = "Files";
constexpr const char* kProfiles = "Simulation Profiles";
constexpr const char* kActive = "Active";
constexpr const char* kDesignResources = "Design Resources";
constexpr const char* kOutputFile = "TERVIX_Output_File";
constexpr const char* kModelFiles = "Tervix Resources";
constexpr std::array<const char*, 3> kModelItems = {"Model Libraries", "Stimulus Files",
                                                    "Include Files"};

struct PathList {
  const char* section;
  const char* item;
};

// Every list of files in a project file.
constexpr std::array<PathList, 5> kPathLists = {
    {{kModelFiles, kModelItems[VARIANTFILE_TYPE_LIBRARY]},
     {kModelFiles, kModelItems[VARIANTFILE_TYPE_STIMULUS]},
     {kModelFiles, kModelItems[VARIANTFILE_TYPE_INCLUDE]},
     {kDesignResources, kFiles},
     {kProfiles, kFiles}}};

Failure unreadable(const std::string& path) {
  const auto mistake = formats::lastMistake();
  return Failure(inQuotes(path) + " could not be changed" +
                 (mistake ? ": " + mistake->text : std::string()));
}

formats::EditableFile opened(const std::string& path) {
  auto file = formats::EditableFile::open(path);
  if (!file)
    throw unreadable(path);
  return std::move(*file);
}

} // namespace

OpenFormatFile::OpenFormatFile(const std::string& path) : path_(path), file_(opened(path)) {}

void OpenFormatFile::require(bool done) const {
  if (!done)
    throw unreadable(path_);
}

std::vector<std::string> OpenFormatFile::list(const char* section, const char* item) const {
  const auto elements = file_.elementsOf(section, item);
  require(elements.has_value());
  return *elements;
}

void OpenFormatFile::replaceAll(const char* section, const char* item,
                                const std::function<std::string(const std::string&)>& newText) {
  std::vector<std::string> elements = list(section, item);
  std::transform(elements.begin(), elements.end(), elements.begin(), newText);
  require(file_.replaceElements(section, item, elements));
}

void OpenFormatFile::removeMatching(const char* section, const char* item,
                                    const std::function<bool(const std::string&)>& matches) {
  const std::vector<std::string> elements = list(section, item);
  for (std::size_t i = elements.size(); i-- > 0;)
    if (matches(elements[i]))
      require(file_.removeElement(section, item, i));
}

void OpenFormatFile::replaceText(const char* section, const char* item,
                                 const std::function<std::string(const std::string&)>& newText) {
  const auto text = file_.textOf(section, item);
  require(text.has_value());
  // An item that is not there, or empty, names nothing.
  if (text->empty())
    return;
  if (const std::string renamed = newText(*text); renamed != *text)
    require(file_.setText(section, item, renamed));
}

void OpenFormatFile::renameSchematics(
    const std::function<std::string(const std::string&)>& newName) {
  replaceAll(kDesign, kSchematics, newName);
  replaceText(kDesign, kRoot, newName);
}

void OpenFormatFile::addSchematic(const std::string& name) {
  require(file_.addToList(kDesign, kSchematics, name));
}

void OpenFormatFile::removeSchematic(const std::string& name) {
  removeMatching(kDesign, kSchematics,
                 [&](const std::string& element) { return isSameName(element, name); });
}

void OpenFormatFile::renamePaths(const std::function<std::string(const std::string&)>& newPath) {
  for (const PathList& paths : kPathLists)
    replaceAll(paths.section, paths.item, newPath);
  replaceText(kDesignResources, kOutputFile, newPath);
}

void OpenFormatFile::renameActive(
    const std::function<std::string(const std::string&)>& newDisplayName) {
  replaceText(kProfiles, kActive, newDisplayName);
}

void OpenFormatFile::setActive(const std::string& displayName) {
  require(file_.setText(kProfiles, kActive, displayName));
}

void OpenFormatFile::addProfile(const std::string& file) {
  addProfiles({file});
}

void OpenFormatFile::addProfiles(const std::vector<std::string>& files) {
  require(file_.addAllToList(kProfiles, kFiles, files));
}

void OpenFormatFile::removeProfiles(const std::function<bool(const std::string&)>& matches) {
  removeMatching(kProfiles, kFiles, matches);
}

void OpenFormatFile::addProfileLike(const std::function<bool(const std::string&)>& matches,
                                    const std::function<std::string(const std::string&)>& newFile) {
  for (const std::string& element : list(kProfiles, kFiles))
    if (matches(element))
      return addProfile(newFile(element));
}

std::vector<std::string> OpenFormatFile::modelFiles(VARIANTFILE_TYPE kind) const {
  return list(kModelFiles, kModelItems.at(kind));
}

void OpenFormatFile::addModelFile(VARIANTFILE_TYPE kind, const std::string& file) {
  require(file_.addToList(kModelFiles, kModelItems.at(kind), file));
}

void OpenFormatFile::removeModelFile(VARIANTFILE_TYPE kind, std::size_t index) {
  require(file_.removeElement(kModelFiles, kModelItems.at(kind), index));
}

} // namespace tervix::tool
