#pragma once

#include <optional>
#include <string>
#include <vector>

#include "CTervixProject.h"

namespace tervix::tool {

// What a project looks like at one moment, as values: gathered once, shown in any form.

struct FileView {
  std::string kind;  // the suffix of its type, or the kind of a variant file
  std::string path;  // as the project names it
  std::string place; // the full path
  bool exists;
};

struct ProfileView {
  std::string name;
  std::string displayName; // the name itself where the layout has no display names
  bool active;
  FileView sim;
  std::string folder;
  std::string markerKey;
  std::vector<FileView> variants;
  std::vector<FileView> files;
};

struct SchematicView {
  std::string name;
  bool root;
  std::string folder;
  std::vector<FileView> files;
  std::vector<ProfileView> profiles;
};

struct ProjectView {
  std::string name;
  std::string path;
  std::string folder;
  PROJECT_TYPE type;
  FRONTEND_ID frontEnd;
  bool hasDesign;
  std::string designName;
  FileView design;
  std::optional<FileView> outputFile;
  std::string rootSchematic;
  std::string activeProfile;
  std::vector<FileView> variants;
  std::vector<SchematicView> schematics;
  std::vector<FileView> unusedProfiles; // listed in the project file, but missing or not valid
};

// What a type of project means to a person; empty for one that is not known.
const char* layoutName(PROJECT_TYPE type);

ProjectView viewOf(CTervixProject& project);

} // namespace tervix::tool
