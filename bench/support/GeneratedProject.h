#pragma once

#include <string>

#include <CTervixNode.h>

namespace tervix::bench {

// The four ways in which a project lies on disk.
struct Layout {
  FRONTEND_ID frontEnd = FRONTEND_ID_DESIGN_FILE;
  PROJECT_TYPE type = PROJECT_TYPE_SIMULATION;
};

// "2-2" is front end 2 with PROJECT_TYPE_SIMULATION, "1-1" front end 1 with PROJECT_TYPE_OTHER.
Layout layoutOf(const std::string& text);

struct ProjectSize {
  int schematics = 1;
  int profiles = 1;   // of each schematic
  int nameLength = 0; // names are padded to it
  int runBytes = 0;   // the size of each file of a run; 0 for none
};

// Where everything of a generated project lies. Front end 1 has the one schematic "prj".
class GeneratedProject {
public:
  GeneratedProject(std::string folder, Layout layout, ProjectSize size);

  // Makes the project, with an include list for each profile where its layout has them.
  void write() const;

  std::string projectFile() const;
  std::string schematic(int index) const;
  std::string profile(int index) const;
  std::string simFile(int schematicIndex, int profileIndex) const;
  std::string markerKey(int schematicIndex, int profileIndex) const;
  const ProjectSize& size() const { return size_; }
  const Layout& layout() const { return layout_; }

private:
  std::string projectFolder() const;
  std::string padded(std::string name) const;
  std::string projectText() const;
  void writeLibraries() const;
  void writeProfile(int schematicIndex, int profileIndex) const;

  std::string folder_;
  Layout layout_;
  ProjectSize size_;
};

} // namespace tervix::bench
