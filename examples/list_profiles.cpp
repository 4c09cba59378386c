// Lists the output files of a project's profiles: list_profiles amp.tvp
#include <CTervixProject.h>

#include <filesystem>
#include <iostream>

int main(int argc, char** argv) {
  if (argc != 2)
    return 2;
  const std::string file = std::filesystem::absolute(argv[1]).generic_string();
  CTervixProject project(file.c_str(), FRONTEND_ID_DESIGN_FILE, false, nullptr);
  std::string text;
  // A status above 1 is a code whose text is recorded; 1 alone means that there is nothing.
  if (const unsigned long status = project.initialize(); status != 0) {
    if (status != 1)
      project.getLastErrorString(text);
    std::cerr << "cannot open " << file << ". " << text << "\n";
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
