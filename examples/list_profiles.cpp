// Lists the profiles of a project: list_profiles /full/path/to/amp.tvp
#include <CTervixProject.h>

#include <iostream>

int main(int argc, char** argv) {
  CTervixProject project(argc > 1 ? argv[1] : nullptr, FRONTEND_ID_DESIGN_FILE, false, nullptr);
  std::string text;
  if (project.initialize() != 0) {
    project.getLastErrorString(text);
    std::cerr << "cannot open the project: " << text << "\n";
    return 1;
  }
  CTervixNode* schematic = nullptr;
  for (project.getTopSchematic(schematic); schematic; project.getNextSchematic(schematic)) {
    auto& listed = static_cast<CTervixSchematic&>(*schematic);
    CTervixNode* profile = nullptr;
    for (listed.getTopProfile(profile); profile; listed.getNextProfile(profile)) {
      static_cast<CTervixProfile&>(*profile).getProfileBasedFile(text, PROFILE_FILE_OUT);
      std::cout << text << "\n";
    }
  }
}
