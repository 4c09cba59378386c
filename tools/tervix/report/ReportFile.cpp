#include "tools/tervix/report/ReportFile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "foundation/Text.h"
#include "foundation/platform/Platform.h"
#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/report/ReportPage.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

bool isReport(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  std::string begin(pageBeginning().size(), '\0');
  stream.read(begin.data(), static_cast<std::streamsize>(begin.size()));
  return stream && begin == pageBeginning();
}

// The file that a report would be, in the folder as it is really named.
class Target {
public:
  explicit Target(const std::string& path)
      : path_(path), isThere_(platform::exists(path)), name_(fs::path(path).filename().string()),
        folder_(fs::absolute(path).parent_path().string()) {}

  bool is(const std::string& place) const {
    if (isThere_)
      return platform::isSameEntry(path_, place);
    // A file that is yet to be made: by its name, which need not differ in case.
    const fs::path other(place);
    return equalsIgnoringCase(other.filename().string(), name_) &&
           platform::isSameEntry(other.parent_path().string(), folder_);
  }

  bool isAnyOf(const std::vector<std::string>& places) const {
    return std::any_of(places.begin(), places.end(),
                       [this](const std::string& place) { return is(place); });
  }

  bool isAnyOf(const std::vector<FileView>& files) const {
    return std::any_of(files.begin(), files.end(),
                       [this](const FileView& file) { return is(file.place); });
  }

private:
  std::string path_;
  bool isThere_;
  std::string name_;
  std::string folder_;
};

bool isOf(const ProjectView& project, const Target& target) {
  if (target.is(project.path) || target.is(project.design.place) ||
      (project.outputFile && target.is(project.outputFile->place)) ||
      target.isAnyOf(project.variants) || target.isAnyOf(project.unusedProfiles))
    return true;
  for (const SchematicView& schematic : project.schematics) {
    if (target.isAnyOf(schematic.files))
      return true;
    for (const ProfileView& profile : schematic.profiles)
      if (target.is(profile.sim.place) || target.isAnyOf(profile.files) ||
          target.isAnyOf(profile.variants))
        return true;
  }
  return false;
}

} // namespace

void requireWritable(const std::string& path, bool isForced) {
  if (path.empty())
    throw Failure("the page has no name", kWrongUsage);
  if (platform::isFolder(path))
    throw Failure(inQuotes(path) + " is a folder");
  if (!platform::isFolder(fs::absolute(path).parent_path().string()))
    throw Failure("the folder of " + inQuotes(path) + " is not there");
  if (isThere(path) && !platform::exists(path))
    throw Failure(inQuotes(path) + " is a link that leads nowhere");
  std::error_code error;
  if (isThere(path) && !fs::is_regular_file(path, error))
    throw Failure(inQuotes(path) + " is no regular file");
  if (!isForced && isThere(path) && !isReport(path))
    throw Failure(inQuotes(path) + " is there and is no report; --force overwrites it");
}

void requireNoneOf(const CheckedProject& checked, const ProjectView* project,
                   const std::string& path) {
  if (project == nullptr && isThere(path) && !isReport(path))
    throw Failure(inQuotes(path) + " is there and is no report; whether it is a file of the "
                                   "project cannot be told");
  const Target target(path);
  if (project != nullptr && (isOf(*project, target) || target.isAnyOf(namedIn(checked))))
    throw Failure(inQuotes(path) + " is a file of the project");
}

} // namespace tervix::tool
