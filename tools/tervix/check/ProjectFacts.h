#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "CTervixProject.h"
#include "tools/tervix/Progress.h"
#include "tools/tervix/changes/ProjectLayout.h"
#include "tools/tervix/changes/SimText.h"
#include "tools/tervix/check/FolderIndex.h"
#include "tools/tervix/check/ReadAhead.h"

namespace tervix::tool {

// All that the checks look at, gathered once: what the library made of the project, and what its
// files say word for word. Paths are full unless they are said to be as written.

// Where a text stands. A line of 0 is the file as a whole.
struct Place {
  std::string file;
  std::size_t line = 0;
};

struct PlacedName {
  std::string name;
  Place place;
};

// What is named where, and so what has to be there.
enum class Role {
  kDesign,
  kResource,
  kProfile,
  kLibrary,
  kStimulus,
  kInclude,
  kOutput,
  kSimKey,
  kIncludeLine
};

// Files that a project or profile lists for the simulator.
inline bool isVariant(Role role) {
  return role == Role::kLibrary || role == Role::kStimulus || role == Role::kInclude;
}

struct Reference {
  Role role;
  Place place;      // of the name; what is relative counts from the folder of that file
  std::string text; // as written
  std::string target;
  EntryType type;            // of the target
  bool maybeSection = false; // need not be a file
};

// A profile as the library has it.
struct LoadedProfile {
  std::string schematic;
  std::string name;
  std::string displayName;
  bool isOfRoot;
  std::string sim; // composed from the names
  std::string folder;
  std::string includeList;
  std::string netlist;
  std::array<std::vector<std::string>, 3> files; // by VARIANTFILE_TYPE
};

struct SimKeyFacts {
  std::string value; // of the last line that has one
  std::size_t valueLine = 0;
  std::size_t line = 0; // the last
  std::size_t count = 0;
};

// A folder of the project, with what stands in it.
struct ListedFolder {
  std::string path;
  const FolderIndex::Folder* listed;

  const std::vector<FolderIndex::Entry>& entries() const { return listed->entries; }
};

// A ".sim" file of the project.
struct SimFile {
  std::string path;
  Place registered;        // in the project file; without a file when it is not registered
  bool isRepeated = false; // an earlier line registers it
  bool isThere = false;
  bool isRead = false;
  std::array<SimKeyFacts, 8> keys;

  bool isRegistered() const { return !registered.file.empty(); }
  const SimKeyFacts& key(SimKey key) const { return keys.at(static_cast<std::size_t>(key)); }
};

// What a load of an include list drops.
enum class Dropped {
  kLine, // that is no entry
  kRest, // of the line of an entry
  kEntry,
  kOpenEntry,  // without its second quote, and loaded with the line's end
  kHiddenEntry // that does not begin its line
};

struct DroppedLine {
  Place place;
  Dropped what;
  std::string value; // of the entry
};

struct IncludeCycle {
  Place place; // of the line that closes it
  std::vector<std::string> files;
};

struct ProjectFacts {
  explicit ProjectFacts(const std::string& rootFolder) : index(rootFolder), root(rootFolder) {}

  FolderIndex index;
  std::string root; // what moves as one: the project's folder, for front end 1 the one above it
  ProjectLayout layout;
  std::string designFile; // empty without one
  std::string rootSchematic;
  Place rootPlace;
  std::string activeProfile;
  Place activePlace;
  std::vector<PlacedName> schematics;                          // as the design lists them
  std::unordered_map<std::string, std::string> schematicNames; // the same by lower case
  std::vector<LoadedProfile> loaded;
  std::unordered_map<std::string, std::size_t> loadedByNames; // see keyOfNames
  std::vector<SimFile> sims; // registered ones first, in their order
  std::vector<Reference> references;
  std::vector<DroppedLine> dropped;
  std::vector<Place> unread; // files that are there, are to be read and cannot be
  std::vector<IncludeCycle> cycles;
  std::vector<ListedFolder> ownFolders;       // the project's, and those below that are its alone
  std::vector<ListedFolder> schematicFolders; // in which profiles have folders
  std::vector<ListedFolder> simFolders;       // in which ".sim" files are the project's

  bool isFrontEnd2() const { return layout.hasDesignFile(); }
  // Without its design file nothing can be said of what belongs to the design.
  bool knowsDesign() const { return !isFrontEnd2() || !layout.design.empty(); }
  // Takes a name down, with what stands where it leads.
  Reference& refer(Role role, Place place, std::string text);
  void addSchematic(const std::string& name, const Place& place);
  bool hasSchematic(const std::string& name) const;
  const LoadedProfile* loadedAs(const std::string& key) const; // of keyOfNames
};

std::string keyOfNames(const std::string& schematic, const std::string& name);

// The names by which the library takes a ".sim" file for a profile.
struct ProfileNames {
  std::string schematic;
  std::string name;
};

// Why it is no profile; empty when it is one.
std::string reasonAgainstProfile(const ProjectFacts& facts, const SimFile& sim);
ProfileNames namesOf(const ProjectFacts& facts, const SimFile& sim);

// Opens nothing for writing, and asks the library nothing that does.
ProjectFacts gatherFacts(CTervixProject& project, ReadAhead& ahead, Progress& progress);

} // namespace tervix::tool
