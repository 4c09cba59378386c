#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tools/tervix/ProjectView.h"
#include "tools/tervix/Style.h"

namespace tervix::tool {

// The model files that a design and its profiles name.
struct VariantListing {
  struct OfProfile {
    std::string schematic;
    std::string name;
    std::string displayName;
    std::string includeList; // empty where profiles have none
    std::vector<FileView> files;
  };

  std::string projectFile;
  std::string projectFolder;
  std::optional<std::vector<FileView>> ofDesign; // none unless asked for
  std::vector<OfProfile> ofProfiles;
};

// Prints a table for the design and each profile.
void printListing(std::ostream& out, const VariantListing& listing, const Style& style);

// The listing as JSON text; its shape is described in docs/lib-command.md and stays stable.
std::string jsonOf(const VariantListing& listing);

} // namespace tervix::tool
