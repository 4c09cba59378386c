#include "tools/tervix/ProjectJson.h"

#include <nlohmann/json.hpp>

#include "tools/tervix/Printable.h"

namespace tervix::tool {
namespace {

// Keys in the order in which they are written here.
using Json = nlohmann::ordered_json;

constexpr int kShapeVersion = 1;

template <class Value, class Convert>
Json arrayOf(const std::vector<Value>& values, Convert convert) {
  Json array = Json::array();
  for (const Value& value : values)
    array.push_back(convert(value));
  return array;
}

Json jsonOfFile(const FileView& file) {
  return {{"type", file.kind}, {"path", file.place}, {"exists", file.exists}};
}

Json jsonOfVariant(const FileView& file) {
  return {{"kind", file.kind}, {"name", file.path}, {"path", file.place}, {"exists", file.exists}};
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
      {"missingProfiles", arrayOf(project.missingProfiles, jsonOfNamedFile)}};
  // A name may hold any bytes; those that are no UTF-8 are replaced.
  return withControlsEscaped(json.dump(2, ' ', false, Json::error_handler_t::replace));
}

} // namespace tervix::tool
