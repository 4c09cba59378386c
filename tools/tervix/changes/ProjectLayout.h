#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "CTervixProject.h"

namespace tervix::tool {

// Where simulation projects keep the files of profiles: front end 2 in a folder that begins with
// the project's name, front end 1 in one of this name.
inline constexpr std::string_view kFilesFolderEnding = "-TervixFiles";
inline constexpr std::string_view kProfilesFolder = "profiles";

// Where the files of a schematic or profile lie.
struct SchematicPlaces {
  std::string folder;
  std::vector<std::string> files; // in the order of SCHEMATICFILE_TYPE
};

struct ProfilePlaces {
  std::string sim;
  std::string folder;
  std::string includeList; // empty where profiles have none
  std::string displayName; // empty where profiles have none
};

// The names and folders from which the place of every file of a project follows. Change a name,
// and it tells where the files will be; no file need be there.
struct ProjectLayout {
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  PROJECT_TYPE type = PROJECT_TYPE_UNSET;
  std::string project; // the names of project and design
  std::string design;
  std::string projectFile;
  std::string folder;
  std::string designFolder;

  bool isSimulation() const { return type == PROJECT_TYPE_SIMULATION; }
  bool hasDesignFile() const { return frontEnd == FRONTEND_ID_DESIGN_FILE; }

  SchematicPlaces placesOf(const std::string& schematic) const;
  ProfilePlaces placesOf(const std::string& schematic, const std::string& profile) const;
  // The files of a profile, in the order of PROFILEFILE_TYPE.
  std::vector<std::string> filesOf(const std::string& schematic, const std::string& profile) const;
  // Whether every file of every schematic and profile has one place in both.
  bool placesAllLike(const ProjectLayout& other) const;

  // Where all files of a simulation project for front end 2 lie.
  std::string filesFolder() const { return (folder + "/" + project).append(kFilesFolderEnding); }
};

ProjectLayout layoutOf(CTervixProject& project);

} // namespace tervix::tool
