#ifndef CTERVIX_NODE_H
#define CTERVIX_NODE_H

#include <string>

#include "TervixExport.h"

namespace tervix { // the library's own
struct NodeAccess;
struct NodeCell;
} // namespace tervix

// In each of these enumerations 0 means "not set".

// What an element of the tree is.
enum NODE_TYPE : int {
  NODE_TYPE_UNSET = 0,     // not known
  NODE_TYPE_PROJECT = 1,   // CTervixProject
  NODE_TYPE_SCHEMATIC = 2, // CTervixSchematic
  NODE_TYPE_PROFILE = 3    // CTervixProfile
};

// How the project was opened. A project is constructed with FRONTEND_ID_UNSET to be opened through
// a profile or analysis file.
enum FRONTEND_ID : int {
  FRONTEND_ID_UNSET = 0,        // not known
  FRONTEND_ID_PROJECT_FILE = 1, // the folder names the design; profiles are found on disk
  FRONTEND_ID_DESIGN_FILE = 2   // a design file lists schematics, the project file profiles
};

// Where the files of profiles lie.
enum PROJECT_TYPE : int {
  PROJECT_TYPE_UNSET = 0,     // not known
  PROJECT_TYPE_OTHER = 1,     // profile files lie in the schematic's folder
  PROJECT_TYPE_SIMULATION = 2 // each profile has a folder of its own
};

// An element of the project tree: a name, a kind, a parent, a file path, a folder path and the
// two classification values that it got from its project.
//
// A setter ignores the unset value (0, null, the empty string) and returns 0, so a field once
// set stays set. A getter returns 1 for a field that is not set: a string output is then empty,
// any other output is left as it was. Otherwise it returns 0.
class TERVIX_API CTervixNode {
public:
  // No field is set.
  CTervixNode();
  // Copies every field; both have the same parent.
  CTervixNode(const CTervixNode& other);
  // The parent stays.
  virtual ~CTervixNode();

  // Saves or loads the variant lists of the profiles at and below this node; a class of yours that
  // has none returns 0.
  virtual unsigned long writeVariants() = 0;
  virtual unsigned long readVariants() = 0;

  // Deliberate: assignment between tree elements copies nothing; so does clone, which returns 0.
  CTervixNode& operator=(const CTervixNode& other); // NOLINT(misc-unconventional-assign-operator)
  unsigned long clone(CTervixNode& other);

  // Sets a field, without a look at the disk. An unset value (0, null, empty) changes nothing.
  // Always 0; the argument is left as it is.
  unsigned long setName(std::string& name);
  unsigned long setPath(std::string& path);
  unsigned long setFolderPath(std::string& folderPath);
  unsigned long setType(NODE_TYPE type);
  unsigned long setFrontEndId(FRONTEND_ID frontEndId);
  unsigned long setProjectType(PROJECT_TYPE projectType);
  // Sets the parent, which is not owned; null changes nothing. Always 0.
  unsigned long setParent(CTervixNode* parent);

  // Hands out a field as it was set. 1 when it is not set, a string then empty and any other output
  // left as it was.
  unsigned long getName(std::string& name) const;
  unsigned long getPath(std::string& path) const;
  unsigned long getFolderPath(std::string& folderPath) const;
  unsigned long getType(NODE_TYPE& type) const;
  unsigned long getFrontEndId(FRONTEND_ID& frontEndId) const;
  unsigned long getProjectType(PROJECT_TYPE& projectType) const;
  unsigned long getParent(CTervixNode*& parent) const;

  // Makes the node's folder on disk (its parents must be there) and hands out its path.
  // 1, nothing made, unless the project type is PROJECT_TYPE_SIMULATION and the folder path is
  // set; 10102, recorded, when the folder cannot be made.
  unsigned long createFolder(std::string& folderPath);

private:
  friend struct tervix::NodeAccess;

  std::string name_;
  NODE_TYPE type_ = NODE_TYPE_UNSET;
  CTervixNode* parent_ = nullptr;
  std::string path_;
  std::string folderPath_;
  FRONTEND_ID frontEndId_ = FRONTEND_ID_UNSET;
  PROJECT_TYPE projectType_ = PROJECT_TYPE_UNSET;
  // The node's places in lists, which are told when its name or path changes; not copied.
  tervix::NodeCell* cells_ = nullptr;
};

#endif
