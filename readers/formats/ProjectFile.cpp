#include "ProjectFile.h"

#include "Document.h"
#include "FileText.h"
#include "MistakeRecord.h"

namespace tervix::formats {

namespace {

constexpr std::string_view fileNames = "file names";

struct ParsedFile {
  ParsedFile(std::string name, std::string content)
      : file(std::move(name)), bytes(std::move(content)), document(file, bytes) {
    document.compact();
  }

  std::string file;
  std::string bytes;
  Document document;
};

// Opening a project asks its file six questions in a row, so the last one parsed is kept, and
// taken again as long as the file holds the same bytes.
const Document& documentOf(const std::string& file) {
  static std::optional<ParsedFile> last;
  std::string bytes = readFileBytes(file);
  if (!last || last->file != file || last->bytes != bytes) {
    last.reset();
    last.emplace(file, std::move(bytes));
  }
  return last->document;
}

} // namespace

std::optional<std::list<std::string>> readFileList(const std::string& projectFile,
                                                   std::string_view section,
                                                   std::string_view item) noexcept {
  return rememberingMistakes(
      projectFile, [&] { return documentOf(projectFile).list(section, item, fileNames); });
}

std::optional<std::string> readText(const std::string& projectFile, std::string_view section,
                                    std::string_view item) noexcept {
  return rememberingMistakes(projectFile,
                             [&] { return documentOf(projectFile).text(section, item); });
}

std::optional<SimulationProfiles> readSimulationProfiles(const std::string& projectFile) noexcept {
  return rememberingMistakes(projectFile, [&] {
    constexpr std::string_view section = "Simulation Profiles";
    const Document& document = documentOf(projectFile);
    return SimulationProfiles{document.list(section, "Files", fileNames),
                              document.text(section, "Active")};
  });
}

} // namespace tervix::formats
