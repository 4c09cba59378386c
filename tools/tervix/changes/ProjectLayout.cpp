#include "tools/tervix/changes/ProjectLayout.h"

#include "model/FileSuffixes.h"
#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"

namespace tervix::tool {
namespace {

// The library composes every name. It is asked through a project of its own that lies in folders
// which exist nowhere, so that no file on disk has a say.
const std::string kProjectFolder = "/\x01/project";
const std::string kDesignFolder = "/\x01/design";

class ComposedTree {
public:
  explicit ComposedTree(const ProjectLayout& layout) : layout_(layout) {
    std::string name = layout.project;
    std::string design = layout.design;
    std::string folder = kProjectFolder;
    std::string designFolder = kDesignFolder;
    project_.setName(name);
    project_.setDesignName(design);
    project_.setFolderPath(folder);
    project_.setDesignFolderPath(designFolder);
    project_.setFrontEndId(layout.frontEnd);
    project_.setProjectType(layout.type);
  }

  ~ComposedTree() { project_.deleteSchematic(name_); }
  ComposedTree(const ComposedTree&) = delete;
  ComposedTree& operator=(const ComposedTree&) = delete;

  CTervixSchematic& schematic(const std::string& name) {
    name_ = name;
    CTervixNode* node = nullptr;
    project_.addSchematic(node, name_);
    if (node == nullptr)
      throw Failure("nothing can be a schematic named " + inQuotes(name));
    return static_cast<CTervixSchematic&>(*node);
  }

  CTervixProfile& profile(const std::string& schematicName, const std::string& profileName) {
    schematic(schematicName);
    std::string name = profileName;
    CTervixNode* node = nullptr;
    bool added = false;
    project_.addProfile(node, added, name_, name);
    if (node == nullptr)
      throw Failure("nothing can be a profile named " + inQuotes(profileName));
    return static_cast<CTervixProfile&>(*node);
  }

  // The place on disk of a path in the tree.
  std::string placed(const std::string& path) const {
    if (path.rfind(kProjectFolder, 0) == 0)
      return layout_.folder + path.substr(kProjectFolder.size());
    if (path.rfind(kDesignFolder, 0) == 0)
      return layout_.designFolder + path.substr(kDesignFolder.size());
    return path;
  }

private:
  const ProjectLayout& layout_;
  CTervixProject project_;
  std::string name_;
};

} // namespace

SchematicPlaces ProjectLayout::placesOf(const std::string& schematic) const {
  ComposedTree tree(*this);
  CTervixSchematic& node = tree.schematic(schematic);
  SchematicPlaces places;
  std::string path;
  node.getFolderPath(path);
  places.folder = tree.placed(path);
  for (std::size_t file = 0; file < kSchematicFileSuffixes.size(); ++file) {
    node.getSchematicBasedFile(path, static_cast<SCHEMATICFILE_TYPE>(file));
    places.files.push_back(tree.placed(path));
  }
  return places;
}

ProfilePlaces ProjectLayout::placesOf(const std::string& schematic,
                                      const std::string& profile) const {
  ComposedTree tree(*this);
  CTervixProfile& node = tree.profile(schematic, profile);
  ProfilePlaces places;
  std::string path;
  node.getPath(path);
  places.sim = tree.placed(path);
  node.getFolderPath(path);
  places.folder = tree.placed(path);
  node.getVariantFilePath(path);
  places.includeList = tree.placed(path);
  node.getDisplayName(places.displayName);
  return places;
}

std::vector<std::string> ProjectLayout::filesOf(const std::string& schematic,
                                                const std::string& profile) const {
  ComposedTree tree(*this);
  CTervixProfile& node = tree.profile(schematic, profile);
  std::vector<std::string> files;
  std::string path;
  for (std::size_t file = 0; file < kProfileFileSuffixes.size(); ++file) {
    node.getProfileBasedFile(path, static_cast<PROFILEFILE_TYPE>(file));
    files.push_back(tree.placed(path));
  }
  return files;
}

bool ProjectLayout::placesAllLike(const ProjectLayout& other) const {
  return frontEnd == other.frontEnd && type == other.type && project == other.project &&
         design == other.design && folder == other.folder && designFolder == other.designFolder;
}

ProjectLayout layoutOf(CTervixProject& project) {
  ProjectLayout layout{};
  project.getFrontEndId(layout.frontEnd);
  project.getProjectType(layout.type);
  project.getName(layout.project);
  project.getDesignName(layout.design);
  project.getPath(layout.projectFile);
  project.getFolderPath(layout.folder);
  project.getDesignFolderPath(layout.designFolder);
  if (layout.designFolder.empty())
    layout.designFolder = layout.folder;
  return layout;
}

} // namespace tervix::tool
