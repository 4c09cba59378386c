#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "foundation/platform/FileDetails.h"
#include "tools/tervix/ProjectView.h"
#include "tools/tervix/Style.h"
#include "tools/tervix/changes/Lookup.h"

namespace tervix::tool {

// What is there of a file that counts as one; none for what cannot be opened.
std::optional<platform::FileDetails> detailsOf(const FileView& file);

// The schematics and profiles of a project whose files are listed.
struct FileListing {
  const ProjectView& project;
  std::vector<std::reference_wrapper<const SchematicView>> schematics;
  std::vector<FoundProfile> profiles;
};

// Prints a table for each schematic, and below it one for each of its profiles.
void printListing(std::ostream& out, const FileListing& listing, const Style& style);

// The listing as JSON text; its shape is described in docs/files-json.md and stays stable.
std::string jsonOf(const FileListing& listing);

} // namespace tervix::tool
