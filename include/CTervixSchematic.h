#ifndef CTERVIX_SCHEMATIC_H
#define CTERVIX_SCHEMATIC_H

#include <string>

#include "CTervixNode.h"
#include "CTervixNodeList.h"
#include "TervixExport.h"

class CTervixProfile;

// The files that belong to a schematic, each with its suffix.
enum SCHEMATICFILE_TYPE : int {
  SCHEMATIC_FILE_NET = 0,       // "net"
  SCHEMATIC_FILE_ALS = 1,       // "als"
  SCHEMATIC_FILE_PAR = 2,       // "par"
  SCHEMATIC_FILE_OPT = 3,       // "opt"
  SCHEMATIC_FILE_AAP = 4,       // "aap"
  SCHEMATIC_FILE_PRP = 5,       // "prp"
  SCHEMATIC_FILE_OPT_LOG = 6,   // "opt.log"
  SCHEMATIC_FILE_MONTE_LOG = 7, // "monte.log"
  SCHEMATIC_FILE_SENS_LOG = 8,  // "sens.log"
  SCHEMATIC_FILE_SMOKE_LOG = 9, // "smoke.log"
  SCHEMATIC_FILE_MARKER = 10    // "default.mrk"
};

// A schematic of a design: the simulation profiles made for it, and the names of its files. Its
// path and its folder path are the same string, the folder in which its files lie.
//
// The schematic owns its profiles and deletes them when it is destroyed. A copy holds the same
// profiles, so a schematic and its copy would both delete them: call deleteAllProfiles on one of
// the two before it is destroyed.
class TERVIX_API CTervixSchematic : public CTervixNode {
public:
  // Only its type is set.
  CTervixSchematic();
  // path is the folder. Any pointer may be null: that field then stays unset.
  CTervixSchematic(const char* path, const char* name, FRONTEND_ID frontEndId,
                   PROJECT_TYPE projectType, CTervixNode* parent);
  // The copy holds the same profiles.
  CTervixSchematic(const CTervixSchematic& other);
  // Destroys the profiles too, which saves their include lists.
  ~CTervixSchematic() override;

  // Call the same operation of every profile; their statuses are ignored. Always 0.
  unsigned long writeVariants() override;
  unsigned long readVariants() override;

  // Deliberate: both copy nothing.
  CTervixSchematic&
  operator=(const CTervixSchematic& other); // NOLINT(misc-unconventional-assign-operator)
  unsigned long clone(CTervixSchematic& other);

  // The project. As for any node.
  unsigned long setParent(CTervixNode* parent);
  unsigned long getParent(CTervixNode*& parent) const;

  // The profiles in the order in which they were added; null with 0 at the end.
  unsigned long getTopProfile(CTervixNode*& profile);
  unsigned long getNextProfile(CTervixNode*& profile);
  // The first profile of that name, case ignored. 1 and null: none.
  unsigned long findProfile(CTervixNode*& profile, std::string& name);

  // Hands out the profile of that name, made and listed when there is none. The path of its
  // ".sim" file follows from the front end and the project type; no file is made.
  // 0 when profile holds a node, otherwise 1 (deliberate: also after 10115 was recorded).
  unsigned long addProfile(CTervixNode*& profile, std::string& name, std::string& displayName);

  // Removes the first profile of that name and destroys it, which saves its include list. 1: none.
  unsigned long deleteProfile(std::string& name);
  // Forgets all profiles without destroying them. Always 0.
  unsigned long deleteAllProfiles();
  // The count, and 1 when it is 0.
  unsigned long numberOfProfiles(int& count);

  // The first active profile. 10117 when this is not the root schematic, 10116 when no profile
  // is active; both are recorded with the schematic's name, and profile is null.
  unsigned long getActiveProfile(CTervixNode*& profile);

  // The path of one of the schematic's files; nothing is created or tested on disk.
  // PROJECT_TYPE_SIMULATION: folder/NAME.suffix, "NAME-default.mrk", "NAME_sch.prp".
  // Otherwise: folder/DESIGN-NAME.suffix, and project folder/DESIGN-NAME-default.mrk.
  // 10118, recorded, for a type outside the enumeration; the status of a field or of a parent
  // that is not set, file as it was.
  unsigned long getSchematicBasedFile(std::string& file, SCHEMATICFILE_TYPE type);
  unsigned long getSchematicBasedFile(std::string& file, std::string& suffix);
  // The same, with the project's help for every type, while a rename is recorded in the project
  // (CTervixProject::setChangedName), with the new or the former name put in. A schematic rename
  // counts for the schematic that it names, by either name. A design rename puts in the design
  // name. A project rename counts outside PROJECT_TYPE_SIMULATION: a recorded text with a separator
  // is the folder itself, a bare name leaves the project's folder.
  unsigned long getSchematicBasedFile(std::string& file, std::string& suffix, bool useNewName);

  // Whether this is the root schematic. Setting it leaves other schematics and the project as they
  // are (see CTervixProject::setRootSchematic). Always 0.
  unsigned long setRoot(bool root);
  unsigned long isRoot(bool& root);

  // Gives the schematic its new name and the folder of getNewPath (its present folder when that
  // gives none), and carries every profile along: folder, display name, include list path, marker
  // key, ".sim" path, and the files through CTervixProfile::syncUpProfileFiles.
  // Record the rename with CTervixProject::setChangedName first.
  // Mind: with PROJECT_TYPE_SIMULATION a profile's new ".sim" path lies inside the profile's own
  // folder (NEW/profile/profile.sim), so its files go one folder deeper than a freshly opened
  // project looks for them; a front end that wants them beside the folder carries them there
  // itself with syncUpProfileFiles.
  // Without a record such a profile's new folder would lie in its old one: 10123.
  // An empty name, no project type or no parent project: 1, nothing changed. Otherwise the status
  // of the profile that failed; profiles handled before it stay moved.
  unsigned long rename(std::string& newName);

  // The folder that a recorded schematic or design rename gives this schematic. path is left as
  // it was when the record gives none. 1 without a parent project.
  unsigned long getNewPath(std::string& path);

private:
  friend class TreeWalk;
  TERVIX_LOCAL unsigned long composeSimPath(std::string& path, const std::string& name) const;
  TERVIX_LOCAL unsigned long checkNamed() const;
  TERVIX_LOCAL unsigned long renameProfile(CTervixProfile& profile, const std::string& folder);

  CTervixNodeList profiles_;
  bool isRoot_ = false;
};

#endif
