#include "tools/tervix/OpenedProject.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "tools/tervix/Failure.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

enum class FileKind { kProject, kProfileOrAnalysis };

std::string lowered(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return text;
}

FileKind kindOf(const std::string& file) {
  const std::string extension = fs::path(file).extension().string();
  if (lowered(extension) == ".tvp")
    return FileKind::kProject;
  for (const char* known : {".sim", ".aap", ".$ap"})
    if (extension == known)
      return FileKind::kProfileOrAnalysis;
  throw Failure("\"" + file + "\" is no project: expected a .tvp, .sim, .aap or .$ap file",
                kWrongUsage);
}

FRONTEND_ID frontEndFor(FileKind kind, const fs::path& file, std::optional<int> chosen) {
  if (kind == FileKind::kProfileOrAnalysis) {
    if (chosen.value_or(0) != 0)
      throw Failure("front end " + std::to_string(*chosen) + " opens .tvp files only", kWrongUsage);
    return FRONTEND_ID_UNSET;
  }
  if (chosen == 0)
    throw Failure("front end 0 opens .sim, .aap and .$ap files only", kWrongUsage);
  if (chosen)
    return static_cast<FRONTEND_ID>(*chosen);
  const std::string folder = lowered(file.parent_path().filename().string());
  return folder == "cfg_analog" || folder == "tvx_sim_1" ? FRONTEND_ID_PROJECT_FILE
                                                         : FRONTEND_ID_DESIGN_FILE;
}

} // namespace

CTervixProject& openProject(const std::string& file, std::optional<int> frontEnd) {
  const FileKind kind = kindOf(file);
  std::error_code error;
  if (fs::is_directory(file, error))
    throw Failure("\"" + file + "\" is a folder, not a project");
  if (!fs::exists(file, error))
    throw Failure("\"" + file + "\" does not exist");
  const fs::path full = fs::absolute(file).lexically_normal();
  static CTervixProject* project = nullptr;
  project = new CTervixProject(full.generic_string().c_str(), frontEndFor(kind, full, frontEnd),
                               false, nullptr);
  if (const unsigned long status = project->initialize(); status != 0)
    throw libraryFailure(status, "\"" + file + "\" could not be opened as a project");
  std::string path;
  if (project->getPath(path) != 0)
    throw Failure("no project file was found for \"" + file + "\"");
  return *project;
}

} // namespace tervix::tool
