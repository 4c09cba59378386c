#ifndef CTERVIX_PROFILE_H
#define CTERVIX_PROFILE_H

#include <string>
#include <string_view>
#include <vector>

#include "CTervixNode.h"
#include "TervixExport.h"
#include "TervixFiles.h"

// The files that a simulation run of a profile leaves or takes, each with its suffix.
enum PROFILEFILE_TYPE : int {
  PROFILE_FILE_CSD = 0,       // "csd"
  PROFILE_FILE_DAT = 1,       // "dat"
  PROFILE_FILE_OPT_DAT = 2,   // "opt.dat"
  PROFILE_FILE_MC_DAT = 3,    // "mc.dat"
  PROFILE_FILE_SENS_DAT = 4,  // "sens.dat"
  PROFILE_FILE_OPT_CSD = 5,   // "opt.csd"
  PROFILE_FILE_MC_CSD = 6,    // "mc.csd"
  PROFILE_FILE_SENS_CSD = 7,  // "sens.csd"
  PROFILE_FILE_OUT = 8,       // "out"
  PROFILE_FILE_OUT_1 = 9,     // "out.1"
  PROFILE_FILE_OPT_OUT = 10,  // "opt.out"
  PROFILE_FILE_MC_OUT = 11,   // "mc.out"
  PROFILE_FILE_SENS_OUT = 12, // "sens.out"
  PROFILE_FILE_PRB = 13,      // "prb"
  PROFILE_FILE_MRK = 14,      // "mrk"
  PROFILE_FILE_1OP = 15,      // "1op"
  PROFILE_FILE_CIR = 16,      // "cir"
  PROFILE_FILE_MIF = 17       // "mif"
};

// A simulation profile. It hangs under a schematic, which hangs under the project. Its path is
// its ".sim" file; with PROJECT_TYPE_SIMULATION it has a folder of its own, named after it, and
// lists of library, stimulus and include files kept in that folder's "_profile.inc".
//
// Destroying a profile saves its lists, whether or not they were changed: the include list is
// rewritten in its normal form, or removed when the lists are empty. A program that only reads
// must therefore not destroy the profiles that it opened.
class TERVIX_API CTervixProfile : public CTervixNode {
public:
  // Only its type is set, and no list is loaded.
  CTervixProfile();
  // path is the ".sim" file. Any pointer may be null. Sets the folder, the include list path and
  // the marker key from path, name, project type and parents, and loads the include list; what
  // fails of that is left unset and not reported.
  CTervixProfile(const char* path, const char* name, const char* displayName,
                 FRONTEND_ID frontEndId, PROJECT_TYPE projectType, CTervixNode* parent);
  // Copies every field and the lists; both belong to the same schematic.
  CTervixProfile(const CTervixProfile& other);
  // Saves the lists as writeProfileLevelVariants does, whether or not they were changed.
  ~CTervixProfile() override;

  // The same as writeProfileLevelVariants and readProfileLevelVariants.
  unsigned long writeVariants() override;
  unsigned long readVariants() override;

  // Deliberate: both copy nothing.
  CTervixProfile&
  operator=(const CTervixProfile& other); // NOLINT(misc-unconventional-assign-operator)
  unsigned long clone(CTervixProfile& other);

  // The schematic. As for any node.
  unsigned long setParent(CTervixNode* parent);
  unsigned long getParent(CTervixNode*& parent) const;

  // The text shown to a user. Setting an empty one changes nothing; 1 and an empty string when
  // none is set.
  unsigned long setDisplayName(std::string& displayName);
  unsigned long getDisplayName(std::string& displayName) const;

  // Whether this is the active profile. Setting it leaves other profiles and the project as they
  // are (see CTervixProject::setActiveProfile). Always 0.
  unsigned long setActive(bool active);
  unsigned long isActive(bool& active) const;

  // The path of the include list. As for the display name.
  unsigned long setVariantFilePath(std::string& path);
  unsigned long getVariantFilePath(std::string& path) const;

  // Whether the lists differ from the include list on disk; a save writes only then.
  unsigned long setVariantsUpdated(bool updated);
  unsigned long areVariantsUpdated(bool& updated) const;

  // The data file and the output file of a run. path is rewritten with forward slashes (and "./"
  // in front of a relative one) and stored as a full path: a bare name lies in the profile's
  // folder; a relative path starts there too, but with PROJECT_TYPE_SIMULATION in the folder
  // above it. An empty path clears the field.
  // 1 when there is no folder to start from; the status of a missing front end or project type.
  unsigned long setDatFilePath(std::string& path);
  unsigned long setOutFilePath(std::string& path);
  // The full path as it was stored. 1, path left as it was, when none is set.
  unsigned long getDatFilePath(std::string& path) const;
  unsigned long getOutFilePath(std::string& path) const;

  // The file name of the profile's marker file, DESIGN-SCHEMATIC-PROFILE.mrk. It does not follow
  // later changes of a name until it is set again. Setting: 1, the key empty, without a schematic
  // and a project above. Getting: always 0.
  unsigned long setMarkerKey();
  unsigned long getMarkerKey(std::string& markerKey) const;

  // ---- Variant files: what the profile adds to those of its design ----
  // They exist only with PROJECT_TYPE_SIMULATION: for any other project type the first five
  // operations return 1. A type outside the enumeration: 10112, recorded.

  // The first, and each following, entry of one list; an empty string with 0 at the end.
  unsigned long getTopProfileLevelFile(std::string& file, VARIANTFILE_TYPE type);
  unsigned long getNextProfileLevelFile(std::string& file, VARIANTFILE_TYPE type);
  // Inserts file unless it is listed already (case and kind of separator ignored), at the front
  // or at the back. Then, inserted or not, "variants updated" becomes updated.
  unsigned long addProfileLevelFile(std::string& file, VARIANTFILE_TYPE type, bool updated,
                                    bool atFront);
  // Removes file if it is listed. Then, listed or not, "variants updated" becomes updated.
  unsigned long deleteProfileLevelFile(std::string& file, VARIANTFILE_TYPE type, bool updated);
  // Empty one list or all three, whatever the project type.
  unsigned long deleteAllProfileLevelFiles(VARIANTFILE_TYPE type, bool updated);
  unsigned long deleteAllProfileLevelFiles(bool updated);
  unsigned long numberOfProfileLevelFiles(int& count, VARIANTFILE_TYPE type) const;

  // Loads the three lists from the include list, dropping what they held; "variants updated" is
  // true afterwards, so that the next save writes the file in its normal form. Lines that are no
  // entries are skipped, and so is an entry whose path does not hold ".lib", ".stl" or ".inc" in
  // lower case. 0 without a look at the disk for a project type other than
  // PROJECT_TYPE_SIMULATION. 1: no path. 10104, 10105, recorded: no such file, or unreadable; the
  // lists are then empty.
  unsigned long readProfileLevelVariants();
  // Saves the three lists if "variants updated" is true, and clears it: includes, libraries,
  // stimuli, each path with backslashes. Empty lists remove the file. A project type other than
  // PROJECT_TYPE_SIMULATION touches no disk.
  // 1: no path. 10106, 10107, recorded: the file could not be written or removed; it is then as
  // it was, and "variants updated" stays true. 10106 also when the file is there but could not be
  // read when it was loaded: saving would lose what it holds, so it is left as it is until it has
  // been read or deleteAllProfileLevelFiles says that it may go.
  unsigned long writeProfileLevelVariants();

  // ---- Profile-based files ----

  // Where a file of the run lies; nothing is created or tested on disk. Data-like files
  // (a suffix with "dat", or "csd" or "prb") lie beside the data file, output-like ones (with
  // "out") beside the output file that the ".sim" file names; both are read from it on first
  // use. All others, and those when that fails, lie in the profile's folder:
  //   front end 2, PROJECT_TYPE_OTHER   DESIGN-SCHEMATIC-PROFILE.suffix
  //   otherwise                         PROFILE.suffix
  // where with PROJECT_TYPE_OTHER "1op", "cir" and "mif" become "sim.1op" and so on.
  // 10113, recorded, for a type outside the enumeration. 1: no such front end, no schematic or
  // project above; path then holds the folder only. The status of a field that is not set.
  unsigned long getProfileBasedFile(std::string& path, PROFILEFILE_TYPE type);
  unsigned long getProfileBasedFile(std::string& path, std::string& suffix);

  // ---- Renaming ----

  // Gives the profile its new name, and the folder, display name, include list path, marker key
  // and ".sim" path that follow from it, then brings the files in line with syncUpProfileFiles.
  // The old ".sim" file, and the old folder or files, stay on disk for the caller to remove. The
  // include list is saved under its new path by the next save.
  // 1: an empty name (nothing changed), or no schematic above (the name is changed).
  unsigned long rename(std::string& newName);

  // Carries the profile's files from the place that belongs to oldPath to the one of newPath,
  // both full paths of its ".sim" file. The node must have its new name already. Nothing that
  // belongs to oldPath is removed:
  // - the ".sim" file, unless newPath is a file already;
  // - PROJECT_TYPE_SIMULATION: the folder beside it, named like it without ".sim"; a file that
  //   the new folder holds under the same name is overwritten. In the new folder the include list
  //   and the run's files take the new name, unless only case changed; a file that is there under
  //   its new name already stays, and the copy under the old name goes (both stay where the
  //   one under the new name cannot be read);
  // - PROJECT_TYPE_OTHER: the run's files beside it, unless they are there; and in newPath the
  //   lines "NetlistFile" and "ProjectFile" are rewritten. A "newPath.bak" made for that is removed
  //   again; one that was there before is left alone. It is not rewritten through a link, unless
  //   oldPath is the same.
  // The stored data and output paths are dropped, to be read afresh.
  // 10108 with both files: the ".sim" file could not be copied (nothing further is done), or its
  // backup or a run's file (the rest goes on). 10123 with both folders: the folder could not be
  // copied whole, a path is too short to have one, or a link bears the name of the new folder, or
  // of the schematic's or project's new folder above it (nothing is done then). 1: no schematic or
  // project above, no such project type, or newPath could not be rewritten; it is then as it was.
  unsigned long syncUpProfileFiles(std::string& oldPath, std::string& newPath);

private:
  friend struct tervix::NodeAccess;
  TERVIX_LOCAL unsigned long findProfileLevelFile(bool& found, std::string*& entry,
                                                  std::string& file, VARIANTFILE_TYPE type);
  TERVIX_LOCAL unsigned long getFilePathFromProfile(std::string& path, std::string& suffix);
  TERVIX_LOCAL const std::vector<std::string>& listOf(VARIANTFILE_TYPE type) const;
  TERVIX_LOCAL std::vector<std::string>& listOf(VARIANTFILE_TYPE type);
  TERVIX_LOCAL bool hasVariants() const;
  TERVIX_LOCAL unsigned long resolveRunFile(std::string& path, std::string& field) const;
  TERVIX_LOCAL unsigned long loadRunFilePaths();
  TERVIX_LOCAL unsigned long namesForFiles(std::string& design, std::string& schematic) const;
  TERVIX_LOCAL unsigned long syncUpFolder(std::string& oldPath, std::string& newPath);
  TERVIX_LOCAL unsigned long syncUpFiles(std::string& oldPath, std::string& newPath);
  TERVIX_LOCAL unsigned long rewriteSimFile(std::string& simPath);

  std::vector<std::string> libraryFiles_;
  std::vector<std::string> stimulusFiles_;
  std::vector<std::string> includeFiles_;
  unsigned int cursors_[3] = {0, 0, 0}; // NOLINT(modernize-avoid-c-arrays)
  bool active_ = false;
  bool variantsUpdated_ = false;
  // The include list is there but could not be read: a save would lose what it holds.
  bool variantFileUnread_ = false;
  std::string displayName_;
  std::string variantFilePath_;
  std::string datFilePath_;
  std::string outFilePath_;
  std::string markerKey_;
};

#endif
