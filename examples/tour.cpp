// The code of docs/tour.md, as a program: tour PROJECT.tvp
#include <CTervixProject.h>

#include <iostream>
#include <memory>
#include <string>

std::unique_ptr<CTervixProject> openProject(const std::string& file) {
  auto project =
      std::make_unique<CTervixProject>(file.c_str(), FRONTEND_ID_DESIGN_FILE, false, nullptr);
  if (project->initialize() == 0)
    return project;
  return nullptr;
}

void walk(CTervixProject& project) {
  CTervixNode* node = nullptr;
  for (project.getTopSchematic(node); node != nullptr; project.getNextSchematic(node)) {
    auto& schematic = static_cast<CTervixSchematic&>(*node);
    std::string name;
    schematic.getName(name);
    std::cout << "schematic " << name << "\n";
    CTervixNode* listed = nullptr;
    for (schematic.getTopProfile(listed); listed != nullptr; schematic.getNextProfile(listed)) {
      auto& profile = static_cast<CTervixProfile&>(*listed);
      bool active = false;
      profile.getName(name);
      profile.isActive(active);
      std::cout << "  profile " << name << (active ? ", active" : "") << "\n";
    }
  }
}

void ask(CTervixProject& project) {
  CTervixNode* profile = nullptr;
  if (project.getActiveProfile(profile) != 0)
    return; // there is none
  std::string path;
  for (PROFILEFILE_TYPE type : {PROFILE_FILE_CIR, PROFILE_FILE_OUT, PROFILE_FILE_DAT}) {
    bool exists = false;
    static_cast<CTervixProfile&>(*profile).getProfileBasedFile(path, type);
    filePathExists(path, exists);
    std::cout << (exists ? "is there  " : "not there ") << path << "\n";
  }
  project.getRootSchematicNetFile(path);
  std::cout << "netlist   " << path << "\n";
}

bool change(CTervixProject& project) {
  CTervixNode* node = nullptr;
  if (project.getActiveProfile(node) != 0)
    return false;
  auto& profile = static_cast<CTervixProfile&>(*node);
  std::string file = "models/diode.lib";
  return profile.addProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY, true, false) == 0 &&
         profile.writeProfileLevelVariants() == 0;
}

std::string reasonFor(CTervixProject& project, unsigned long status) {
  if (status == 0)
    return "done";
  if (status == 1)
    return "not set, not found or not applicable";
  std::string text;
  project.getLastErrorString(text);
  return std::to_string(status) + ": " + text;
}

int main(int argc, char** argv) {
  const auto project = openProject(argc > 1 ? argv[1] : "");
  if (project == nullptr)
    return 1;
  walk(*project);
  ask(*project);
  if (!change(*project))
    return 1;
  std::string missing = "/no/such/folder/none.sim";
  CTervixNode* profile = nullptr;
  bool added = false;
  std::cout << reasonFor(*project, project->addProfile(profile, added, missing)) << "\n";
  std::string nobody = "nobody";
  std::cout << reasonFor(*project, project->findSchematic(profile, nobody)) << "\n";
}
