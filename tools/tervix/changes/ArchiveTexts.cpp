#include "tools/tervix/changes/ArchiveTexts.h"

#include <filesystem>
#include <optional>
#include <vector>

#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/changes/IncludeList.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/changes/OpenFormats.h"
#include "tools/tervix/changes/SimText.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

bool isFile(const std::string& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

bool isBare(const std::string& text) {
  return text.find_first_of("/\\") == std::string::npos;
}

// What the ".sim" file of one profile names.
class SimReferences {
public:
  SimReferences(const ProjectLayout& layout, const ProfilePlaces& places)
      : layout_(layout), places_(places),
        simFolder_(fs::path(places.sim).parent_path().generic_string()) {}

  std::optional<NamedFile> named(SimKey key, const std::string& value) const {
    switch (key) {
    case SimKey::kProfileName:
    case SimKey::kRootSchematics:
      return std::nullopt;
    case SimKey::kDesignFile:
      // Front end 1 has no design file; the key then holds the design's name.
      if (isSameName(value, layout_.design))
        return std::nullopt;
      [[fallthrough]];
    case SimKey::kProfileFile:
    case SimKey::kProjectFile:
      return namedFrom(folderOf(value), value, false);
    case SimKey::kNetlistFile:
      return namedFrom(folderOf(value), value, true, true);
    default: // the data and the output file
      return namedFrom(isBare(value) && layout_.isSimulation() ? places_.folder : simFolder_, value,
                       true);
    }
  }

  // A value of another key names a file only where it leads to one.
  std::optional<NamedFile> namedByOther(const std::string& value) const {
    const NamedFile file = namedFrom(folderOf(value), value, false);
    return isFile(placeOf(file.named)) ? std::optional(file) : std::nullopt;
  }

private:
  NamedFile namedFrom(const std::string& folder, const std::string& value, bool isExpected,
                      bool isNetlist = false) const {
    return {{value, folder}, places_.sim, isExpected, true, isNetlist};
  }

  // A path counts from the folder of the ".sim" file; a bare name may also lie in the profile's own
  // folder or in that of the project.
  std::string folderOf(const std::string& value) const {
    if (isBare(value))
      for (const std::string& folder : {simFolder_, places_.folder, layout_.folder})
        if (isFile(placeOf({value, folder})))
          return folder;
    return simFolder_;
  }

  const ProjectLayout& layout_;
  const ProfilePlaces& places_;
  std::string simFolder_;
};

std::string simText(const SimReferences& references, const std::string& text,
                    const NewText& newText) {
  const auto renamed = [&](const std::optional<NamedFile>& file) {
    return file ? std::optional(newText(*file)) : std::nullopt;
  };
  const std::string known = rewrittenSim(text, [&](SimKey key, const std::string& value) {
    return value.empty() ? std::nullopt : renamed(references.named(key, value));
  });
  return rewrittenOtherKeys(known, [&](const std::string& value) {
    return value.empty() ? std::nullopt : renamed(references.namedByOther(value));
  });
}

std::string projectText(const ProjectLayout& layout, const NewText& newText) {
  OpenFormatFile file(layout.projectFile);
  file.renamePaths([&](const std::string& text) {
    return text.empty() ? text
                        : newText({{text, layout.folder}, layout.projectFile, true, false, false});
  });
  return file.text();
}

} // namespace

std::map<std::string, std::string> textsOf(const ProjectView& view, const ProjectLayout& layout,
                                           const NewText& newText) {
  std::map<std::string, std::string> texts;
  texts[layout.projectFile] = projectText(layout, newText);
  for (const SchematicView& schematic : view.schematics)
    for (const ProfileView& profile : schematic.profiles) {
      const ProfilePlaces places = layout.placesOf(schematic.name, profile.name);
      if (isFile(places.sim))
        texts[places.sim] = simText(SimReferences(layout, places), contentOf(places.sim), newText);
      if (!layout.isSimulation() || !isFile(places.includeList))
        continue;
      const auto renamed = [&](const std::string& text) {
        return newText({{text, places.folder}, places.includeList, true, false, true});
      };
      texts[places.includeList] = rewrittenIncludeList(contentOf(places.includeList), renamed);
    }
  return texts;
}

} // namespace tervix::tool
