#pragma once

#include <string>

#include "tools/tervix/ProjectView.h"

namespace tervix::tool {

// What a person means by a name, whatever its case. Each throws a Failure that lists what there is
// when nothing, or more than one thing, fits.

const SchematicView& schematicNamed(const ProjectView& project, const std::string& name);

// The schematic for a new profile: the named one, otherwise the root or the only one.
const SchematicView& schematicForNew(const ProjectView& project, const std::string& name);

struct FoundProfile {
  const SchematicView& schematic;
  const ProfileView& profile;
};

// schematic may be empty; name may also be the display name.
FoundProfile profileNamed(const ProjectView& project, const std::string& schematic,
                          const std::string& name);

// Throws when the schematic has a profile, or the project a schematic, of that name. except is the
// one that is to get the name: it may change the case of its own.
void requireFreeProfileName(const SchematicView& schematic, const std::string& name,
                            const std::string& except);
void requireFreeSchematicName(const ProjectView& project, const std::string& name,
                              const std::string& except);

} // namespace tervix::tool
