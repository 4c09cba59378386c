#include "tvx_wobj.h"

#include "ProjectFile.h"

#include <string_view>
#include <utility>

namespace {

constexpr int succeeded = 0;
constexpr int failed = 1;

// A null name becomes the view without data, which the formats take for a name that is missing.
std::string_view nameOf(const char* text) noexcept {
  return text == nullptr ? std::string_view() : std::string_view(text);
}

int append(std::optional<std::list<std::string>> read, std::list<std::string>& files) noexcept {
  if (!read) {
    return failed;
  }
  files.splice(files.end(), *read);
  return succeeded;
}

} // namespace

int readProjectFiles(const std::string& projectFile, const char* section,
                     std::list<std::string>& files, std::list<std::string>& /*second*/,
                     bool /*flag*/) {
  return append(tervix::formats::readFileList(projectFile, nameOf(section)), files);
}

int readProjectFiles(const std::string& projectFile, const char* section, const std::string& item,
                     std::list<std::string>& files, std::list<std::string>& /*second*/,
                     bool /*flag*/) {
  return append(tervix::formats::readFileList(projectFile, nameOf(section), item), files);
}

int readSimProfiles(const std::string& projectFile, std::list<std::string>& profiles,
                    std::list<std::string>& /*second*/, std::string& activeProfile, bool /*flag*/) {
  auto read = tervix::formats::readSimulationProfiles(projectFile);
  if (!read) {
    return failed;
  }
  profiles.splice(profiles.end(), read->files);
  activeProfile = std::move(read->active);
  return succeeded;
}

int readItemFromProject(const std::string& projectFile, const char* section, const char* item,
                        std::string& value) {
  auto read = tervix::formats::readText(projectFile, nameOf(section), nameOf(item));
  if (!read) {
    return failed;
  }
  value = std::move(*read);
  return succeeded;
}
