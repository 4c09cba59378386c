// Opens a project and prints "schematic:profile" for each profile; the names of front end 1's
// profiles are sorted, since they come in the order of the file system.

#include <CTervixProject.h>

#include <algorithm>
#include <iostream>
#include <vector>

// A client may derive nodes of its own.
class Bookmark : public CTervixNode {
public:
  unsigned long writeVariants() override { return 0; }
  unsigned long readVariants() override { return 0; }
};

int main(int argc, char** argv) {
  if (argc != 3)
    return 2;
  const auto frontEnd = static_cast<FRONTEND_ID>(argv[2][0] - '0');
  CTervixProject project(argv[1], frontEnd, false, nullptr);
  if (project.initialize() != 0) {
    std::string error;
    project.getLastErrorString(error);
    std::cerr << error << "\n";
    return 1;
  }
  std::vector<std::string> names;
  Bookmark bookmark;
  bookmark.setParent(&project);
  CTervixNode* schematic = nullptr;
  CTervixNode* profile = nullptr;
  for (project.getTopSchematic(schematic); schematic != nullptr;
       project.getNextSchematic(schematic)) {
    auto& listed = dynamic_cast<CTervixSchematic&>(*schematic);
    for (listed.getTopProfile(profile); profile != nullptr; listed.getNextProfile(profile)) {
      std::string schematicName;
      std::string profileName;
      schematic->getName(schematicName);
      profile->getName(profileName);
      names.push_back(schematicName + ":" + profileName);
    }
  }
  if (frontEnd == FRONTEND_ID_PROJECT_FILE)
    std::sort(names.begin(), names.end());
  for (const std::string& name : names)
    std::cout << name << " ";
  std::cout << "\n";
  // The project leaves its schematics to whoever opened it.
  for (project.getTopSchematic(schematic); schematic != nullptr;
       project.getTopSchematic(schematic)) {
    std::string name;
    schematic->getName(name);
    project.deleteSchematic(name);
  }
}
