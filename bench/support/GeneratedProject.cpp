#include "bench/support/GeneratedProject.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace tervix::bench {
namespace {

namespace fs = std::filesystem;

void writeFile(const fs::path& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  if (!file.flush())
    throw std::runtime_error("cannot write " + path.string());
}

std::string keyLine(const char* key, const std::string& value) {
  return std::string(key) + " = \"" + value + "\"\n";
}

} // namespace

Layout layoutOf(const std::string& text) {
  if (text.size() != 3 || text.find_first_not_of("12-") != std::string::npos)
    throw std::invalid_argument("no layout: " + text);
  return {text.front() == '1' ? FRONTEND_ID_PROJECT_FILE : FRONTEND_ID_DESIGN_FILE,
          text.back() == '1' ? PROJECT_TYPE_OTHER : PROJECT_TYPE_SIMULATION};
}

GeneratedProject::GeneratedProject(std::string folder, Layout layout, ProjectSize size)
    : folder_(std::move(folder)), layout_(layout), size_(size) {
  if (layout_.frontEnd == FRONTEND_ID_PROJECT_FILE && size_.schematics != 1)
    throw std::invalid_argument("front end 1 has one schematic");
}

std::string GeneratedProject::projectFolder() const {
  if (layout_.frontEnd == FRONTEND_ID_DESIGN_FILE)
    return folder_;
  return folder_ + "/prj/" + (layout_.type == PROJECT_TYPE_SIMULATION ? "tvx_sim_1" : "cfg_analog");
}

std::string GeneratedProject::padded(std::string name) const {
  const auto length = static_cast<std::size_t>(size_.nameLength);
  if (name.size() < length)
    name.append(length - name.size(), 'x');
  return name;
}

std::string GeneratedProject::projectFile() const {
  return projectFolder() + "/prj.tvp";
}

std::string GeneratedProject::schematic(int index) const {
  return layout_.frontEnd == FRONTEND_ID_PROJECT_FILE ? "prj" : "SCH" + std::to_string(index);
}

std::string GeneratedProject::profile(int index) const {
  return padded("profile" + std::to_string(index));
}

std::string GeneratedProject::simFile(int schematicIndex, int profileIndex) const {
  const std::string name = profile(profileIndex) + ".sim";
  const std::string place = projectFolder() + "/";
  if (layout_.frontEnd == FRONTEND_ID_PROJECT_FILE)
    return place + (layout_.type == PROJECT_TYPE_SIMULATION ? "profiles/" : "") + name;
  return place +
         (layout_.type == PROJECT_TYPE_SIMULATION
              ? "prj-TervixFiles/" + schematic(schematicIndex) + "/"
              : "prj-" + schematic(schematicIndex) + "-") +
         name;
}

std::string GeneratedProject::markerKey(int schematicIndex, int profileIndex) const {
  return "prj-" + schematic(schematicIndex) + "-" + profile(profileIndex) + ".mrk";
}

void GeneratedProject::writeProfile(int schematicIndex, int profileIndex) const {
  const fs::path sim = simFile(schematicIndex, profileIndex);
  const std::string stem = sim.stem().string();
  const bool hasFolder = layout_.type == PROJECT_TYPE_SIMULATION;
  const std::string beside = hasFolder ? "./" + stem + "/" + stem : stem;
  writeFile(sim, keyLine("ProfileName", profile(profileIndex)) +
                     keyLine("ProfileFile", stem + ".sim") +
                     keyLine("DesignFile", hasFolder ? "" : "prj.dsn") +
                     keyLine("ProjectFile", hasFolder ? "" : "prj.tvp") +
                     keyLine("RootSchematics", schematic(schematicIndex)) +
                     keyLine("NetlistFile", stem + (hasFolder ? ".cir" : ".sim.cir")) +
                     keyLine("DataFile", beside + ".dat") + keyLine("OutFile", beside + ".out") +
                     keyLine("Analysis", "tran 1us 2ms"));
  if (!hasFolder)
    return;
  const fs::path own = sim.parent_path() / stem;
  fs::create_directories(own);
  writeFile(own / (stem + "_profile.inc"),
            ".INC\t\".\\load.inc\" \n.LIB\t\"..\\..\\models.lib\" \n");
  writeFile(own / "load.inc", "Rload out 0 1k\n");
  if (size_.runBytes > 0)
    for (const char* suffix : {".dat", ".out", ".cir", ".mrk"})
      writeFile(own / (stem + suffix), std::string(static_cast<std::size_t>(size_.runBytes), 'x'));
}

std::string GeneratedProject::projectText() const {
  std::string text = "[\"Design Resources\"]\nFiles = [\"prj.dsn\"]\n\n"
                     "[\"Tervix Resources\"]\n\"Model Libraries\" = [\"models.lib\"]\n\n"
                     "[\"Simulation Profiles\"]\nFiles = [\n";
  if (layout_.frontEnd == FRONTEND_ID_DESIGN_FILE)
    for (int s = 0; s < size_.schematics; ++s)
      for (int p = 0; p < size_.profiles; ++p)
        text += "\"./" + simFile(s, p).substr(projectFolder().size() + 1) + "\",\n";
  return text + "]\nActive = \"SCH0-" + profile(0) + "\"\n";
}

// That of the project, and that of the include lists, seen from the folders of their profiles.
void GeneratedProject::writeLibraries() const {
  const std::string text = ".model fast D(Is=1f)\n";
  writeFile(projectFolder() + "/models.lib", text);
  if (layout_.type == PROJECT_TYPE_SIMULATION)
    writeFile(fs::path(simFile(0, 0)).parent_path().parent_path() / "models.lib", text);
}

void GeneratedProject::write() const {
  fs::create_directories(projectFolder());
  std::string names;
  for (int s = 0; s < size_.schematics; ++s) {
    names += "\"" + schematic(s) + "\", ";
    fs::create_directories(fs::path(simFile(s, 0)).parent_path());
  }
  writeFile(projectFolder() + "/prj.dsn",
            "[Design]\nSchematics = [" + names + "]\nRoot = \"" + schematic(0) + "\"\n");
  writeFile(projectFile(), projectText());
  writeLibraries();
  for (int s = 0; s < size_.schematics; ++s)
    for (int p = 0; p < size_.profiles; ++p)
      writeProfile(s, p);
}

} // namespace tervix::bench
