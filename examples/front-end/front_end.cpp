// A front end in small: lists the profiles of a project with their output files, or renames one.
//   front_end PROJECT.tvp [SCHEMATIC PROFILE NEW-NAME]
#include <CTervixProject.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <regex>
#include <sstream>

namespace fs = std::filesystem;

// Schematics and profiles live on when their project goes, so nothing is saved by accident.
std::unique_ptr<CTervixProject> opened(const std::string& file) {
  const char* path = file.c_str();
  auto project = std::make_unique<CTervixProject>(path, FRONTEND_ID_DESIGN_FILE, false, nullptr);
  std::string reason;
  if (project->initialize() == 0)
    return project;
  project->getLastErrorString(reason);
  std::cerr << "cannot open " << file << ": " << reason << "\n";
  return nullptr;
}

void list(CTervixProject& project) {
  CTervixNode* node = nullptr;
  for (project.getTopSchematic(node); node != nullptr; project.getNextSchematic(node)) {
    auto& schematic = static_cast<CTervixSchematic&>(*node);
    std::string of, name, outputFile;
    schematic.getName(of);
    for (schematic.getTopProfile(node); node != nullptr; schematic.getNextProfile(node)) {
      auto& profile = static_cast<CTervixProfile&>(*node);
      profile.getName(name);
      profile.getProfileBasedFile(outputFile, PROFILE_FILE_OUT);
      std::cout << of << " " << name << " " << outputFile << "\n";
    }
  }
}

std::string textOf(const std::string& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

// The new text is whole before it takes the place of the old one.
bool replaceText(std::string file, const std::string& text) {
  std::string fresh = file + ".new";
  const bool written = (std::ofstream(fresh, std::ios::binary) << text).flush().good();
  return written && mvFile(fresh, file) == 0;
}

// Gives the file the new name wherever the old one stands behind one of the beginnings.
bool edit(const std::string& file, const std::string& beginnings, const std::string& old,
          const std::string& name) {
  const std::regex place("(" + beginnings + ")" + old + "(?=[\"./])");
  return replaceText(file, std::regex_replace(textOf(file), place, "$1" + name));
}

// For projects in which each profile has a folder. The old files go when the project has opened
// under the new name; when anything fails before that, the new ones do.
bool rename(std::unique_ptr<CTervixProject>& project, std::string schematic, std::string old,
            std::string name) {
  CTervixNode* node = nullptr;
  std::string file, oldSim;
  PROJECT_TYPE type{};
  if (project->findProfile(node, schematic, old) != 0 || node->getPath(oldSim) != 0 ||
      project->getPath(file) != 0 || project->getProjectType(type) != 0)
    return false;
  const fs::path folder = fs::path(oldSim).parent_path();
  const std::string sim = (folder / (name + ".sim")).string();
  const std::regex plain("\\w+/\\w+/[A-Za-z]\\w*"); // fit to stand in a regular expression
  if (type != PROJECT_TYPE_SIMULATION || fs::exists(sim) || fs::exists(folder / name) ||
      !std::regex_match(schematic + "/" + old + "/" + name, plain))
    return false;
  const std::string former = textOf(file);
  const std::string in = "/" + schematic + "/";
  project->setChangedName(old, name, RENAME_TYPE_PROFILE);
  auto& profile = static_cast<CTervixProfile&>(*node);
  const bool done = profile.rename(name) == 0 && profile.writeVariants() == 0 &&
                    edit(sim, "[\"/]", old, name) &&
                    edit(file, in + "|\"" + schematic + "-", old, name) &&
                    edit(file, in + name + "/", old, name) && (project = opened(file)) &&
                    project->findProfile(node, schematic, name) == 0;
  if (!done && !replaceText(file, former))
    return false; // whatever the project file says, both are there
  fs::remove(done ? oldSim : sim);
  fs::remove_all(folder / (done ? old : name));
  std::cout << (done ? "renamed\n" : "not renamed; the project is as it was\n");
  return done;
}

int main(int argc, char** argv) {
  auto project = opened(fs::absolute(argc > 1 ? argv[1] : "").string());
  if (project != nullptr && argc < 5)
    list(*project);
  return project != nullptr && (argc < 5 || rename(project, argv[2], argv[3], argv[4])) ? 0 : 1;
}
