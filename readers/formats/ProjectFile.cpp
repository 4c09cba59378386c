#include "ProjectFile.h"

#include "Document.h"
#include "MistakeRecord.h"

namespace tervix::formats {

namespace {

constexpr std::string_view fileNames = "file names";

} // namespace

std::optional<std::list<std::string>> readFileList(const std::string& projectFile,
                                                   std::string_view section,
                                                   std::string_view item) noexcept {
  return rememberingMistakes(projectFile,
                             [&] { return Document(projectFile).list(section, item, fileNames); });
}

std::optional<std::string> readText(const std::string& projectFile, std::string_view section,
                                    std::string_view item) noexcept {
  return rememberingMistakes(projectFile,
                             [&] { return Document(projectFile).text(section, item); });
}

std::optional<SimulationProfiles> readSimulationProfiles(const std::string& projectFile) noexcept {
  return rememberingMistakes(projectFile, [&] {
    constexpr std::string_view section = "Simulation Profiles";
    const Document document(projectFile);
    return SimulationProfiles{document.list(section, "Files", fileNames),
                              document.text(section, "Active")};
  });
}

} // namespace tervix::formats
