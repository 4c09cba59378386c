#include "tools/tervix/changes/ArchiveCheck.h"

#include <algorithm>

#include "tools/tervix/Failure.h"
#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/changes/ProjectCheck.h"

namespace tervix::tool {
namespace {

class Comparison {
public:
  explicit Comparison(const NewPlaceOf& newPlaceOf) : newPlaceOf_(newPlaceOf) {}

  void compare(const ProjectView& before, const ProjectView& after) const {
    require(before.name == after.name && before.type == after.type &&
                before.frontEnd == after.frontEnd && before.designName == after.designName &&
                before.rootSchematic == after.rootSchematic &&
                before.activeProfile == after.activeProfile,
            before.path);
    if (before.hasDesign && before.frontEnd == FRONTEND_ID_DESIGN_FILE)
      compare(before.design, after.design, before.folder);
    require(before.outputFile.has_value() == after.outputFile.has_value(), before.path);
    if (before.outputFile)
      compare(*before.outputFile, *after.outputFile, before.folder);
    compare(before.variants, after.variants, before.folder);
    compare(before.unusedProfiles, after.unusedProfiles, before.folder);
    for (const SchematicView& schematic : before.schematics)
      compare(schematic, named(after.schematics, schematic.name, before.path));
  }

private:
  static void require(bool holds, const std::string& path) {
    if (!holds)
      throw Failure("the archive would not show " + inQuotes(path) + " as the project does");
  }

  // Front end 1 lists what it finds in no certain order, and of two names that differ in case only
  // the one that it finds first.
  template <class View>
  static const View& named(const std::vector<View>& views, const std::string& name,
                           const std::string& by) {
    const auto found = std::find_if(views.begin(), views.end(),
                                    [&](const View& view) { return isSameName(view.name, name); });
    require(found != views.end(), by);
    return *found;
  }

  // The names count from folder.
  void compare(const FileView& before, const FileView& after, const std::string& folder) const {
    // The library leaves a ".." in a path that leads out of the profile's folder.
    const std::string place = placeOf({after.place, ""});
    require(place == newPlaceOf_({before.path, folder}) && before.exists == after.exists,
            before.place);
  }

  void compare(const std::vector<FileView>& before, const std::vector<FileView>& after,
               const std::string& folder) const {
    require(before.size() == after.size(), folder);
    for (std::size_t i = 0; i < before.size(); ++i)
      compare(before[i], after[i], folder);
  }

  void compare(const SchematicView& before, const SchematicView& after) const {
    compare(before.files, after.files, before.folder);
    require(before.profiles.size() == after.profiles.size(), before.folder);
    for (const ProfileView& profile : before.profiles) {
      const ProfileView& archived = named(after.profiles, profile.name, profile.sim.place);
      if (archived.name != profile.name)
        continue;
      compare(profile.sim, archived.sim, profile.folder);
      compare(profile.variants, archived.variants, profile.folder);
      compare(profile.files, archived.files, profile.folder);
    }
  }

  const NewPlaceOf& newPlaceOf_;
};

} // namespace

void requireArchived(const ProjectView& project, const std::string& archivedProjectFile,
                     const NewPlaceOf& newPlaceOf) {
  requireTree(archivedProjectFile, project.frontEnd, treeOf(project));
  const int frontEnd = project.frontEnd;
  Comparison(newPlaceOf).compare(project, viewOf(openProject(archivedProjectFile, frontEnd)));
}

} // namespace tervix::tool
