#include "tools/tervix/changes/Lookup.h"

#include <vector>

#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/Names.h"

namespace tervix::tool {
namespace {

std::string listed(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names)
    text.append(text.empty() ? "" : ", ").append(printable(name));
  return text.empty() ? "none" : text;
}

std::string schematicsOf(const ProjectView& project) {
  std::vector<std::string> names;
  for (const SchematicView& schematic : project.schematics)
    names.push_back(schematic.name);
  return listed(names);
}

} // namespace

const SchematicView& schematicNamed(const ProjectView& project, const std::string& name) {
  for (const SchematicView& schematic : project.schematics)
    if (isSameName(schematic.name, name))
      return schematic;
  throw Failure("there is no schematic " + inQuotes(name) +
                "; the project has: " + schematicsOf(project));
}

const SchematicView& schematicForNew(const ProjectView& project, const std::string& name) {
  if (!name.empty())
    return schematicNamed(project, name);
  for (const SchematicView& schematic : project.schematics)
    if (schematic.root || project.schematics.size() == 1)
      return schematic;
  if (project.schematics.empty())
    throw Failure("the project has no schematic");
  throw Failure("no root schematic; name one with --schematic: " + schematicsOf(project));
}

FoundProfile profileNamed(const ProjectView& project, const std::string& schematic,
                          const std::string& name) {
  std::vector<FoundProfile> found;
  std::vector<FoundProfile> foundByDisplayName;
  std::vector<std::string> all;
  for (const SchematicView& candidate : project.schematics) {
    if (!schematic.empty() && !isSameName(candidate.name, schematic))
      continue;
    for (const ProfileView& profile : candidate.profiles) {
      all.push_back(profile.displayName);
      if (isSameName(profile.name, name))
        found.push_back({candidate, profile});
      else if (isSameName(profile.displayName, name))
        foundByDisplayName.push_back({candidate, profile});
    }
  }
  if (!schematic.empty())
    schematicNamed(project, schematic);
  if (found.empty())
    found.swap(foundByDisplayName);
  if (found.empty())
    throw Failure("there is no profile " + inQuotes(name) + "; there are: " + listed(all));
  if (found.size() > 1)
    throw Failure("more than one schematic has a profile " + inQuotes(name) +
                  "; name one with --schematic: " + listed(all));
  return found.front();
}

void requireFreeProfileName(const SchematicView& schematic, const std::string& name,
                            const std::string& except) {
  for (const ProfileView& profile : schematic.profiles)
    if (isSameName(profile.name, name) && profile.name != except)
      throw Failure("schematic " + inQuotes(schematic.name) + " has a profile " +
                    inQuotes(profile.name) + " already");
}

void requireFreeSchematicName(const ProjectView& project, const std::string& name,
                              const std::string& except) {
  for (const SchematicView& schematic : project.schematics)
    if (isSameName(schematic.name, name) && schematic.name != except)
      throw Failure("the project has a schematic " + inQuotes(schematic.name) + " already");
}

} // namespace tervix::tool
