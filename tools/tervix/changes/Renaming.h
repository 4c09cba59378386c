#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "CTervixProject.h"
#include "tools/tervix/ProjectView.h"
#include "tools/tervix/changes/ChangePlan.h"
#include "tools/tervix/changes/PathMap.h"
#include "tools/tervix/changes/ProjectLayout.h"
#include "tools/tervix/changes/References.h"

namespace tervix::tool {

// A project whose names change: of itself, its design, its schematics and profiles, in any
// combination. It turns the new names into the plan of all that they imply on disk.
class Renaming {
public:
  // Everything keeps its name at first.
  explicit Renaming(CTervixProject& project);

  const ProjectView& view() const { return view_; }
  const ProjectLayout& before() const { return before_; }

  void renameProject(const std::string& newName);
  void renameDesign(const std::string& newName);
  void renameSchematic(const std::string& name, const std::string& newName);
  void renameProfile(const std::string& schematic, const std::string& name,
                     const std::string& newName);

  ChangePlan plan(const std::string& title);

  // The plan of a copy of one profile; nothing else changes.
  ChangePlan planCopy(const std::string& schematic, const std::string& name,
                      const std::string& newName, const std::string& title);

private:
  // What the library is told of the rename.
  struct ChangedName {
    std::string former;
    std::string changed;
    RENAME_TYPE kind = RENAME_TYPE_NONE;
  };

  void renameAll(const std::string& newName);
  void mapProfile(const ProfileChange& change);
  void planProfileTexts(ChangePlan& plan, const ProfileChange& change);
  std::string newNameOf(const std::string& schematic) const;
  void mapPaths();
  void planText(ChangePlan& plan, const std::string& path, const std::string& content);
  void planTexts(ChangePlan& plan);
  void planMovedFiles(ChangePlan& plan) const;
  void planLibraryCalls(ChangePlan& plan);
  void remarkNetlists(ChangePlan& plan) const;

  CTervixProject& project_;
  ProjectView view_;
  ProjectLayout before_;
  ProjectLayout after_;
  std::vector<ProfileChange> profiles_;
  std::map<std::string, std::string> schematicNames_;
  PathMap map_;
  ChangedName changedName_;
  std::set<std::string> texts_; // files whose content the plan has seen to
};

} // namespace tervix::tool
