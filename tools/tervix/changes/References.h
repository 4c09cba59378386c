#pragma once

#include <string>

#include "tools/tervix/changes/PathMap.h"
#include "tools/tervix/changes/ProjectLayout.h"

namespace tervix::tool {

// A profile as it is and as it will be.
struct ProfileChange {
  std::string schematic;
  std::string profile;
  std::string newSchematic;
  std::string newProfile;
};

// What the texts of one profile say after a change of names.
struct References {
  const ProjectLayout& before;
  const ProjectLayout& after;
  const ProfileChange& change;
  const ProfilePlaces& places; // before the change
  const PathMap& map;

  // The text of its ".sim" file and of its include list. Whatever names nothing that changed
  // stays byte for byte.
  std::string renamedSim(const std::string& text) const;
  std::string renamedIncludeList(const std::string& text) const;
};

} // namespace tervix::tool
