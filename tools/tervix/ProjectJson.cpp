#include "tools/tervix/ProjectJson.h"

#include "tools/tervix/Json.h"

namespace tervix::tool {
namespace {

constexpr int kShapeVersion = 1;

Json jsonOfFile(const FileView& file) {
  return {{"type", file.kind}, {"path", file.place}, {"exists", file.exists}};
}

Json jsonOfNamedFile(const FileView& file) {
  return {{"name", file.path}, {"path", file.place}, {"exists", file.exists}};
}

Json jsonOfProfile(const ProfileView& profile) {
  return {{"name", profile.name},
          {"displayName", profile.displayName},
          {"active", profile.active},
          {"path", profile.sim.place},
          {"exists", profile.sim.exists},
          {"folder", profile.folder},
          {"markerKey", profile.markerKey},
          {"profileLevelFiles", arrayOf(profile.variants, jsonOfVariant)},
          {"files", arrayOf(profile.files, jsonOfFile)}};
}

Json jsonOfSchematic(const SchematicView& schematic) {
  return {{"name", schematic.name},
          {"root", schematic.root},
          {"folder", schematic.folder},
          {"files", arrayOf(schematic.files, jsonOfFile)},
          {"profiles", arrayOf(schematic.profiles, jsonOfProfile)}};
}

Json jsonOfDesign(const ProjectView& project) {
  if (!project.hasDesign)
    return nullptr;
  // For front end 1 the design is a name and no file.
  const bool isFile = project.frontEnd == FRONTEND_ID_DESIGN_FILE;
  return {{"name", project.designName},
          {"path", isFile ? Json(project.design.place) : Json()},
          {"exists", isFile && project.design.exists}};
}

} // namespace

std::string jsonOf(const ProjectView& project) {
  const Json json = {
      {"version", kShapeVersion},
      {"name", project.name},
      {"path", project.path},
      {"folder", project.folder},
      {"projectType", project.type},
      {"frontEnd", project.frontEnd},
      {"design", jsonOfDesign(project)},
      {"outputFile", project.outputFile ? jsonOfNamedFile(*project.outputFile) : Json()},
      {"rootSchematic", project.rootSchematic},
      {"activeProfile", project.activeProfile},
      {"designLevelFiles", arrayOf(project.variants, jsonOfVariant)},
      {"schematics", arrayOf(project.schematics, jsonOfSchematic)},
      {"unusedProfiles", arrayOf(project.unusedProfiles, jsonOfNamedFile)}};
  return textOf(json);
}

} // namespace tervix::tool
