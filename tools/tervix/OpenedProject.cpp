#include "tools/tervix/OpenedProject.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <vector>

#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"

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
  throw Failure(inQuotes(file) + " is no project file: expected a .tvp, .sim, .aap or .$ap file",
                kWrongUsage);
}

FRONTEND_ID frontEndFor(FileKind kind, const fs::path& file, std::optional<int> chosen) {
  if (kind == FileKind::kProfileOrAnalysis) {
    if (chosen.value_or(0) != 0)
      throw Failure("front end " + std::to_string(*chosen) + " opens .tvp files only", kWrongUsage);
    return FRONTEND_ID_UNSET;
  }
  const std::string folder = lowered(file.parent_path().filename().string());
  const bool isOfFrontEnd1 = folder == "cfg_analog" || folder == "tvx_sim_1";
  if (!chosen)
    return isOfFrontEnd1 ? FRONTEND_ID_PROJECT_FILE : FRONTEND_ID_DESIGN_FILE;
  const auto frontEnd = static_cast<FRONTEND_ID>(*chosen);
  if (frontEnd == FRONTEND_ID_UNSET)
    throw Failure("front end 0 opens .sim, .aap and .$ap files only", kWrongUsage);
  if (frontEnd == FRONTEND_ID_PROJECT_FILE && !isOfFrontEnd1)
    throw Failure("front end 1 opens project files in a folder cfg_analog or tvx_sim_1 only",
                  kWrongUsage);
  return frontEnd;
}

void requireFile(const std::string& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (status.type() == fs::file_type::not_found)
    throw Failure(inQuotes(file) + " does not exist");
  if (error)
    throw Failure(inQuotes(file) + ": " + error.message());
  if (fs::is_directory(status))
    throw Failure(inQuotes(file) + " is a folder, not a project file");
}

std::string withForwardSlashes(std::string path) {
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

} // namespace

std::string fullPathOf(const std::string& file) {
  const fs::path full = fs::absolute(withForwardSlashes(file));
  std::error_code error;
  if (std::find(full.begin(), full.end(), "..") != full.end())
    if (const fs::path folder = fs::canonical(full.parent_path(), error); !error)
      return (folder / full.filename()).generic_string();
  return full.lexically_normal().generic_string();
}

CTervixProject& openProject(const std::string& path, std::optional<int> frontEnd) {
  const std::string file = withForwardSlashes(path);
  requireFile(file);
  const FileKind kind = kindOf(file);
  const std::string full = fullPathOf(file);
  static auto& projects = *new std::vector<CTervixProject*>;
  auto* const project =
      new CTervixProject(full.c_str(), frontEndFor(kind, full, frontEnd), false, nullptr);
  projects.push_back(project);
  if (const unsigned long status = project->initialize(); status != 0)
    throw libraryFailure(status, inQuotes(file) + " could not be opened as a project");
  if (projectFileOf(*project).empty())
    throw failureWithLastError("no project file (.tvp) was found for " + inQuotes(file));
  return *project;
}

std::string projectFileFor(const std::string& path, std::optional<int> frontEnd) {
  const std::string file = withForwardSlashes(path);
  return kindOf(file) == FileKind::kProject ? fullPathOf(file)
                                            : projectFileOf(openProject(path, frontEnd));
}

std::string projectFileOf(const CTervixProject& project) {
  std::string file;
  project.getPath(file);
  return file;
}

} // namespace tervix::tool
