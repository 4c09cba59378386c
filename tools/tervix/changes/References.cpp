#include "tools/tervix/changes/References.h"

#include <filesystem>

#include "tools/tervix/changes/Folders.h"
#include "tools/tervix/changes/IncludeList.h"
#include "tools/tervix/changes/NamedPath.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/changes/SimText.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

using Changed = std::optional<std::string>;

Changed renamedName(const std::string& value, const std::string& name, const std::string& newName) {
  if (isSameName(value, name))
    return newName;
  return std::nullopt;
}

// A path counts from the folder of the ".sim" file. A bare name may also lie in the profile's own
// folder or in that of the project.
Changed renamedFile(const References& references, const std::string& value) {
  const std::string simFolder = folderHolding(references.places.sim);
  const std::string newSimFolder = folderHolding(references.map(references.places.sim));
  if (value.find_first_of("/\\") != std::string::npos)
    return renamedText({value, simFolder}, newSimFolder, references.map);
  for (const std::string& folder :
       {simFolder, references.places.folder, references.before.folder}) {
    const std::string name = fs::path(references.map(placeOf({value, folder}))).filename().string();
    if (name != value)
      return name;
  }
  return std::nullopt;
}

} // namespace

std::string References::renamedSim(const std::string& text) const {
  return rewrittenSim(text, [&](SimKey key, const std::string& value) -> Changed {
    if (value.empty())
      return std::nullopt;
    switch (key) {
    case SimKey::kProfileName:
      return renamedName(value, change.profile, change.newProfile);
    case SimKey::kRootSchematics:
      return renamedName(value, change.schematic, change.newSchematic);
    case SimKey::kDesignFile:
      // Front end 1 has no design file; the key then holds the design's name.
      if (auto name = renamedName(value, before.design, after.design))
        return name;
      return renamedFile(*this, value);
    default:
      return renamedFile(*this, value);
    }
  });
}

std::string References::renamedIncludeList(const std::string& text) const {
  return rewrittenIncludeList(text, [&](const std::string& value) -> Changed {
    return renamedText({value, places.folder}, map(places.folder), map);
  });
}

} // namespace tervix::tool
