#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "tools/tervix/changes/NamedPath.h"
#include "tools/tervix/changes/PathMap.h"

namespace tervix::tool {

// Where each file of a project goes in its archive.
//
// What lies in the project's root keeps its place relative to the root. Other files go to a folder
// "external": each of their folders under its own name, numbered where that is taken, and folders
// between which files name each other under their common name, so that these names still lead
// there.
class ArchivePaths {
public:
  // root becomes newRoot, which is the folder archive or lies in it.
  ArchivePaths(const std::string& root, std::string newRoot, std::string archive);

  // Where a named file lies, as the system follows the name through links. A place in the root is
  // told as such also when a link leads there.
  std::string placeOf(const NamedPath& named) const;
  bool isOwn(const std::string& place) const;

  // A file or folder that goes along. All have to be added before settle.
  void addFile(const std::string& place);
  void addFolder(const std::string& place);
  // A file in one of these folders names one in the other, by the way from folder to folder.
  void keepTogether(const std::string& folder, const std::string& other);
  void settle();

  // The new place, once settled.
  std::string operator()(const std::string& place) const { return map_(place); }
  // The text under which the new place is found from the new folder; always relative.
  std::string textFor(const NamedPath& named, bool isNeverBare = false) const;

private:
  std::string groupOf(const std::string& folder) const;
  void noteOwn(const std::string& place);

  std::string root_;
  std::string realRoot_;
  std::string newRoot_;
  std::string archive_;
  std::vector<std::string> topNames_;             // what the archive holds beside "external"
  std::set<std::string> files_;                   // outside the root
  std::map<std::string, std::string> groupAbove_; // of each folder outside the root
  PathMap map_;
};

// Whether a path is the one above or lies in it. Both are full and without "." and "..".
bool liesIn(const std::string& path, const std::string& above);

} // namespace tervix::tool
