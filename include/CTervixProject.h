#ifndef CTERVIX_PROJECT_H
#define CTERVIX_PROJECT_H

#include <string>
#include <vector>

#include "CTervixNode.h"
#include "CTervixNodeList.h"
#include "CTervixProfile.h"
#include "CTervixSchematic.h"
#include "TervixExport.h"
#include "TervixFiles.h"

namespace tervix { // the library's own
class SimFile;
} // namespace tervix

// What the two names of a changed-name record belong to.
enum RENAME_TYPE : int {
  RENAME_TYPE_NONE = 0,      // no rename is recorded
  RENAME_TYPE_SCHEMATIC = 1, // a schematic
  RENAME_TYPE_PROFILE = 2,   // a profile
  RENAME_TYPE_DESIGN = 3,    // the design
  RENAME_TYPE_PROJECT = 4    // the project, and with it its "-TervixFiles" folder
};

// A simulation project: its design, schematics, profiles and design-level files.
//
// Construct it from a path, call initialize once, then ask and change. Every operation returns 0
// for success, a code from 10102 to 10124 that it recorded as the last error, or a bare 1 for
// "not set", "not found" or "not applicable", which records nothing. Nothing throws. Strings are
// outputs or inputs as named; an input is rewritten only where that is said. An output string is
// emptied first unless that is said otherwise; a node output is null when nothing is found.
//
// Names and paths are compared without regard to case. Searches take the first match, schematics
// in list order and in each its profiles in list order; they leave the cursors of getTop and
// getNext where they are.
//
// Destroying a project forgets its schematics without destroying them, since copies of a project
// share them: delete the schematics first if they are to go. Mind that this destroys their
// profiles, and that a profile saves its include list when it is destroyed.
//
// The last error is one for the whole process, and nothing here is locked: use the library from
// one thread at a time.
class TERVIX_API CTervixProject : public CTervixNode {
public:
  // Only its type is set; initialize gives 1.
  CTervixProject();
  // The copy shares the schematics of other, whose parent other stays: use the copy no longer than
  // other lives.
  CTervixProject(const CTervixProject& other);
  // frontEndId 1 or 2: path is a project file; it must hold ".tvp", in whatever case. extra, when
  // not null or empty, is the project's name, otherwise the file's name without extension is;
  // flag tells that the project is known to be a PROJECT_TYPE_SIMULATION, so that no folder is
  // examined. frontEndId 0: path is a ".sim", ".aap" or ".$ap" file (in lower case), and its
  // project file is looked for around it; flag and extra are not used.
  // Any other path leaves the project empty; initialize then says so. Nothing is recorded.
  CTervixProject(const char* path, FRONTEND_ID frontEndId, bool flag, const char* extra);
  // Forgets the schematics without destroying them.
  ~CTervixProject() override;

  // Deliberate: both copy nothing.
  CTervixProject&
  operator=(const CTervixProject& other); // NOLINT(misc-unconventional-assign-operator)
  unsigned long clone(CTervixProject& other);

  // ---- The last error of the process ----

  // The code and text of the last recorded failure, 0 and empty before the first. Success never
  // clears them: read them only after a status from 10102 to 10124. They do not depend on the
  // object. Always 0.
  unsigned long getLastErrorCode(unsigned long& code);
  unsigned long getLastErrorString(std::string& text);

  // ---- The project itself; each returns 0 unless said otherwise ----

  // The project file from which initialize reads.
  unsigned long setInitializationPath(std::string& path);
  unsigned long getInitializationPath(std::string& path) const;
  // How long the last initialize took, in whole seconds.
  unsigned long setInitializationTime(long seconds);
  unsigned long getInitializationTime(long& seconds) const;
  // The name of the design.
  unsigned long setDesignName(std::string& name);
  unsigned long getDesignName(std::string& name) const;
  // The design file, and the folder that it lies in.
  unsigned long setDesignPath(std::string& path);
  unsigned long getDesignPath(std::string& path) const;
  unsigned long setDesignFolderPath(std::string& path);
  unsigned long getDesignFolderPath(std::string& path) const;
  // The simulator output file of the design.
  unsigned long setTervixOutputFile(std::string& path);
  unsigned long getTervixOutputFile(std::string& path) const;
  // PROJECT_TYPE_UNSET when it is not known.
  unsigned long getProjectType(PROJECT_TYPE& projectType) const;
  // A project has no parent of its own; a client may give it one. 1 when unset, as for any node.
  unsigned long setParent(CTervixNode* parent);
  unsigned long getParent(CTervixNode*& parent) const;

  // A count that the caller keeps; it starts at 1. release never deletes the project and does not
  // stop at 0.
  unsigned long addRef();
  unsigned long release();
  unsigned long setRefCount(unsigned int count);
  unsigned long getRefCount(unsigned int& count);

  // Whether the index of ".prp" files must be rebuilt; true at first.
  unsigned long isPrpIndexStale(bool& stale);
  unsigned long setPrpIndexStale(bool stale);

  // createPath and cpDir of TervixFiles.h.
  unsigned long createFolder(std::string& path);
  unsigned long copyFolder(std::string& from, std::string& to);

  // Call the same operation of every schematic; their statuses are ignored.
  unsigned long writeVariants() override;
  unsigned long readVariants() override;

  // ---- Opening ----

  // Reads the project's design, schematics, profiles, output file and design-level files and
  // builds the tree. A second call adds to the tree; nothing is cleared first.
  // 0 also when the project was opened from a profile or analysis file without a project file.
  // 1: nothing recognised was opened, or an unknown front end or project type. Otherwise the code
  // of the reader that failed: 10103, 10109, 10110, 10122. What was read before stays.
  // A project without a design (10124) still gets its output file and design-level files; when
  // these can be read the status is 0, and the last error tells of the missing design.
  unsigned long initialize();

  // Records the design and makes its schematics; schematicFolders gets their folders appended,
  // for PROJECT_TYPE_OTHER only the first. 10110, recorded: the design could not be read.
  unsigned long initializeDesignConfiguration(std::vector<std::string>& schematicFolders,
                                              std::string& designPath,
                                              std::string& designFolderPath,
                                              std::string& designName, FRONTEND_ID frontEndId,
                                              PROJECT_TYPE projectType);

  // ---- Schematics ----

  // The first, and each following, schematic in the order of the design; null with 0 at the end.
  unsigned long getTopSchematic(CTervixNode*& schematic);
  unsigned long getNextSchematic(CTervixNode*& schematic);
  // Finds by name; while a schematic rename is recorded also by the new name, spelt as recorded.
  // 1: none.
  unsigned long findSchematic(CTervixNode*& schematic, std::string& name);
  // Hands out the schematic of that name, made when there is none. 1: unknown front end.
  // 10119, recorded: it could not be made.
  unsigned long addSchematic(CTervixNode*& schematic, std::string& name);
  // Removes and destroys the first schematic of that name, with its profiles. 1: none.
  unsigned long deleteSchematic(std::string& name);
  // Forgets all schematics without destroying them. Always 0.
  unsigned long deleteAllSchematics();
  // Always 0.
  unsigned long numberOfSchematics(int& count) const;

  // ---- Profiles ----

  // Finds by the names of the schematic and of the profile. 1: no such schematic, or no such
  // profile in it.
  unsigned long findProfile(CTervixNode*& profile, std::string& schematicName,
                            std::string& profileName);
  // Finds the profile of a ".sim" file: by a recorded profile rename (no file is read then, and
  // profileName becomes the former name), by the names that the file holds, by the file's path,
  // then by the paths that the names give beside the file. The two names become those of the
  // profile found, or those read from the file; a name that could not be had stays as it was.
  // profileFilePath is rewritten only on a hit by path. On a miss the reader's code (10104, 10105,
  // 10121), otherwise 1.
  unsigned long findProfile(CTervixNode*& profile, std::string& schematicName,
                            std::string& profileName, std::string& profileFilePath);
  // Hand out the profile, made when there is none, with its schematic if need be; added tells
  // whether a profile came back, found or new. No file is made.
  unsigned long addProfile(CTervixNode*& profile, bool& added, std::string& schematicName,
                           std::string& profileName);
  // The same for the names that a ".sim" file holds. 10104, 10105, 10121: no such file,
  // unreadable, not a valid profile. For front end 1 with PROJECT_TYPE_OTHER a new profile's file
  // must name design file, project file and root schematic, and be named after its profile;
  // otherwise 10121.
  unsigned long addProfile(CTervixNode*& profile, bool& added, std::string& profileFilePath);
  // Make the root schematic hold a profile of that name, and hand it out. 1: no root schematic.
  unsigned long addProfileToRootSchematic(CTervixNode*& profile, std::string& profileName);
  unsigned long addProfileToRootSchematic(std::string& profileName);

  // Marks the root schematic's profiles of that display name active and all its others not.
  // An empty name changes nothing. 1: no root schematic.
  unsigned long setActiveProfile(std::string& displayName);
  // The display name that setActiveProfile or initialize recorded. 1 when none is set.
  unsigned long getActiveProfile(std::string& displayName) const;
  // The root schematic's active profile; see CTervixSchematic::getActiveProfile.
  unsigned long getActiveProfile(CTervixNode*& profile);
  // Marks the schematic of that name as root and all others not. An empty name changes nothing.
  unsigned long setRootSchematic(std::string& name);
  // The name that setRootSchematic or initialize recorded, and the schematic of that name. 1 when
  // none is set, or none of that name is listed.
  unsigned long getRootSchematic(std::string& name) const;
  unsigned long getRootSchematic(CTervixNode*& schematic);

  // ---- Design-level files ----
  // A type outside the enumeration: 10120, recorded.

  // The first, and each following, entry of one list; an empty string with 0 at the end.
  unsigned long getTopDesignLevelFile(std::string& file, VARIANTFILE_TYPE type);
  unsigned long getNextDesignLevelFile(std::string& file, VARIANTFILE_TYPE type);
  // Appends file unless it is listed (case ignored).
  unsigned long addDesignLevelFile(std::string& file, VARIANTFILE_TYPE type);
  // Removes file from one list, and all entries of one or of all three. 0 also when file is not
  // listed.
  unsigned long deleteDesignLevelFile(std::string& file, VARIANTFILE_TYPE type);
  unsigned long deleteAllDesignLevelFiles(VARIANTFILE_TYPE type);
  unsigned long deleteAllDesignLevelFiles();
  unsigned long numberOfDesignLevelFiles(int& count, VARIANTFILE_TYPE type) const;
  // A path for a new file of that kind, named after the design: in the project's folder, for
  // front end 2 with PROJECT_TYPE_SIMULATION in its "-TervixFiles" folder. 1: unknown front end.
  unsigned long getDefaultDesignLibPath(std::string& path, VARIANTFILE_TYPE type);
  // The same for a profile, given by its ".sim" file: in its folder, named after it. 1 unless the
  // project is a PROJECT_TYPE_SIMULATION; 10112 for a type outside the enumeration; the status of
  // findProfile.
  unsigned long getDefaultProfileLibPath(std::string& path, std::string& profileFile,
                                         VARIANTFILE_TYPE type);

  // ---- Names and paths, asked by name ----

  // The project file. 1 when none is set.
  unsigned long getProjectPath(std::string& path);
  // The names along the schematics' cursor; an empty string with 0 at the end.
  unsigned long getTopSchematicName(std::string& name);
  unsigned long getNextSchematicName(std::string& name);
  // The netlist of the root schematic, with backslashes.
  unsigned long getRootSchematicNetFile(std::string& file);
  // See CTervixSchematic::getSchematicBasedFile. 1: no such schematic.
  unsigned long getSchematicBasedFile(std::string& file, std::string& schematicName,
                                      SCHEMATICFILE_TYPE type, bool useNewName);
  unsigned long getSchematicBasedFile(std::string& file, std::string& schematicName,
                                      std::string& suffix, bool useNewName);
  // The schematic is the one whose ".aap" file aapPath is. aapPath is rewritten: forward slashes,
  // ".aap" for ".$ap". 1: none.
  unsigned long getSchematicBasedFileForAap(std::string& file, std::string& aapPath,
                                            SCHEMATICFILE_TYPE type);
  unsigned long getSchematicBasedFileForAap(std::string& file, std::string& aapPath,
                                            std::string& suffix);
  // The names along the cursor of one schematic's profiles. At the end 0, outputs as they were.
  // The pairs share that cursor. 1: no such schematic.
  unsigned long getTopProfNameForSch(std::string& name, std::string& schematicName);
  unsigned long getNextProfNameForSch(std::string& name, std::string& schematicName);
  unsigned long getTopProfDispNameForSch(std::string& displayName, std::string& schematicName);
  unsigned long getNextProfDispNameForSch(std::string& displayName, std::string& schematicName);
  unsigned long getTopProfDispNameProfNameForSch(std::string& displayName, std::string& name,
                                                 std::string& schematicName);
  unsigned long getNextProfDispNameProfNameForSch(std::string& displayName, std::string& name,
                                                  std::string& schematicName);
  // DESIGN-SCHEMATIC-PROFILE for front end 2 with PROJECT_TYPE_OTHER, otherwise the profile's
  // name. 1: unknown front end.
  unsigned long getTopProfMarkerNameForSch(std::string& name, std::string& schematicName);
  unsigned long getNextProfMarkerNameForSch(std::string& name, std::string& schematicName);
  // The path of a profile's ".sim" file, following a recorded rename. 1: none.
  unsigned long getProfilePathForSchProf(std::string& path, std::string& schematicName,
                                         std::string& profileName);
  // The same, the schematic given by its ".aap" file, which is rewritten as above.
  unsigned long getProfilePathForAapProf(std::string& path, std::string& aapPath,
                                         std::string& profileName);
  // The name of the schematic that holds the profile; profile is a name or a ".sim" path. 1: none.
  unsigned long getParentNameForProfile(std::string& name, std::string& profile);
  // See CTervixProfile::getProfileBasedFile; profile is a name or a ".sim" path. For a profile
  // that is not in the tree the path gives its place, and the recorded new name of a profile that
  // of the former one under the new name. 1: anything else. 10113 for a type that is none.
  unsigned long getProfileBasedFile(std::string& path, std::string& profile, PROFILEFILE_TYPE type);
  unsigned long getProfileBasedFile(std::string& path, std::string& profile, std::string& suffix);

  // ---- Profile files through the project ----
  // Each finds a profile, by its ".sim" file or by the names of its schematic and of itself, and
  // forwards to the operation of CTervixProfile. A look-up by file passes its status on; one by
  // names that finds nothing returns 0 and changes nothing (deliberate: test the output).

  // CTervixProfile::setDatFilePath and setOutFilePath.
  unsigned long setDatFileForProfile(std::string& datFilePath, std::string& profileFilePath);
  unsigned long setDatFileForProfile(std::string& datFilePath, std::string& schematicName,
                                     std::string& profileName);
  unsigned long setOutFileForProfile(std::string& outFilePath, std::string& profileFilePath);
  unsigned long setOutFileForProfile(std::string& outFilePath, std::string& schematicName,
                                     std::string& profileName);
  // The operation of CTervixProfile that has the same name, "ForSch" left out.
  unsigned long getTopProfileLevelFile(std::string& file, std::string& profileFilePath,
                                       VARIANTFILE_TYPE type);
  unsigned long getNextProfileLevelFile(std::string& file, std::string& profileFilePath,
                                        VARIANTFILE_TYPE type);
  unsigned long addProfileLevelFile(std::string& profileFilePath, std::string& file,
                                    VARIANTFILE_TYPE type, bool updated, bool atFront);
  unsigned long deleteAllProfileLevelFiles(std::string& profileFilePath, VARIANTFILE_TYPE type,
                                           bool updated);
  unsigned long writeProfileLevelVariants(std::string& profileFilePath);
  unsigned long getTopProfileLevelFileForSch(std::string& file, std::string& schematicName,
                                             std::string& profileName, VARIANTFILE_TYPE type);
  unsigned long getNextProfileLevelFileForSch(std::string& file, std::string& schematicName,
                                              std::string& profileName, VARIANTFILE_TYPE type);
  // CTervixProfile::numberOfProfileLevelFiles. count is left as it was when nothing is found.
  unsigned long getProfileLevelFileCount(int& count, std::string& schematicName,
                                         std::string& profileName, VARIANTFILE_TYPE type);
  // The netlist of the profile's schematic.
  unsigned long getNetFileForProfile(std::string& netFile, std::string& profileFilePath);
  // Removes file from a list of the first profile of that display name. 1: none.
  unsigned long deleteVariantForProfileDispName(std::string& displayName, VARIANTFILE_TYPE type,
                                                std::string& file);

  // ---- What exists; marker keys ----
  // None of these records a last error. Each also accepts names that a recorded rename explains.

  // The profile of a ".sim" file. simPath is rewritten: cut before ".bak", forward slashes, the
  // former name for the recorded new one of a schematic or of the "-TervixFiles" folder.
  // Always 0.
  unsigned long simProfileExists(bool& exists, CTervixNode*& profile, std::string& simPath);
  // The schematic of an ".aap" file; aapPath is rewritten with forward slashes and ".aap" for
  // ".$ap". 1 when there is none (deliberate: unlike simProfileExists).
  unsigned long aapExists(bool& exists, CTervixNode*& schematic, std::string& aapPath);
  // Tells whether a profile has that marker key. Always 0.
  unsigned long markerKeyExists(bool& exists, std::string& markerKey);
  // The names that a marker key stands for, empty when no profile has it. Always 0.
  unsigned long getDsnSchProfNamesForMarkerKey(std::string& designName, std::string& schematicName,
                                               std::string& profileName, std::string& markerKey);
  // The same for a key spelt with the new name of the recorded rename. A renamed schematic is
  // reported under its new name. 1: no rename recorded, or the key does not hold the new name.
  unsigned long getDsnSchProfNamesForNewMarkerKey(std::string& designName,
                                                  std::string& schematicName,
                                                  std::string& profileName,
                                                  std::string& newMarkerKey);

  // ---- Operations on the design ----

  // The folder of the profile of a ".sim" file, under its new name while a rename is recorded.
  // The file name in profileFilePath is cut before ".bak". The status of findProfile.
  unsigned long getProfileDir(std::string& profileDir, std::string& profileFilePath);
  // Gives the design its new name and the folder of designFilePath, which is rewritten with
  // forward slashes; profiles take their new marker keys. With PROJECT_TYPE_OTHER the schematics
  // move to that folder and the profiles' files are brought in line with syncUpProfileFiles,
  // whose last status is returned; a failing profile does not stop the others.
  // 1: an empty name, nothing changed; or no folder in designFilePath, the name changed.
  unsigned long renameDesign(std::string& designName, std::string& designFilePath);
  // Forgets the design and its schematics; nothing is deleted on disk. 1 unless front end 2.
  unsigned long deleteDesign();
  // Attaches a design file and makes its schematics; profiles come with initialize. 1 unless front
  // end 2, and for a path without a folder; 10104, recorded: no such file; 10110: unreadable.
  unsigned long addDesign(std::string& designFilePath);

  // ---- Archive and rename; the tree stays as it is ----

  // Copies every profile, ".sim" file and folder, to archiveDir/NAME-TervixFiles/SCHEMATIC, as
  // syncUpProfileFiles does; a profile that has no folder of its own stops it with 10123.
  // archiveDir is rewritten: forward slashes, no trailing one. 0 without action unless the project
  // is a PROJECT_TYPE_SIMULATION; 1 for an empty archiveDir; 10123, nothing made: it lies in a
  // profile's folder; otherwise the first failing status.
  unsigned long archiveProject(std::string& archiveDir);
  // Carries every profile's files from the place that belongs to one project file to that of the
  // other. The first failing status.
  unsigned long rename(std::string& oldProjectFilePath, std::string& newProjectFilePath);

  // ---- The changed-name record ----

  // Tell the project of a rename before it is made: look-ups then accept newName while the tree
  // still holds formerName. One record is kept, until the next call; nothing clears it. It counts
  // when kind is not RENAME_TYPE_NONE and neither name is empty. Always 0.
  unsigned long setChangedName(std::string& formerName, std::string& newName, RENAME_TYPE kind);
  unsigned long getChangedName(std::string& formerName, std::string& newName,
                               RENAME_TYPE& kind) const;

private:
  friend class TreeWalk;
  friend struct tervix::NodeAccess;

  TERVIX_LOCAL unsigned long setProjectInfoForTvp(std::string& projectFilePath,
                                                  FRONTEND_ID frontEnd, std::string& projectName,
                                                  bool typeTwoKnown);
  TERVIX_LOCAL unsigned long setProjectInfoForSim(std::string& simPath);
  TERVIX_LOCAL unsigned long setProjectInfoForAap(std::string& aapPath);
  TERVIX_LOCAL void takeProjectFile(std::string& candidate);
  TERVIX_LOCAL unsigned long findDesignLevelFile(bool& found, std::string*& entry,
                                                 std::string& file, VARIANTFILE_TYPE type);
  TERVIX_LOCAL unsigned long addProfileTo(CTervixNode*& profile, CTervixSchematic& schematic,
                                          const std::string& schematicName,
                                          std::string& profileName);
  TERVIX_LOCAL unsigned long findProfileOf(CTervixNode*& profile, std::string& schematicName,
                                           std::string& profileName, std::string& profileFilePath,
                                           const tervix::SimFile& file);
  TERVIX_LOCAL unsigned long addProfileOf(CTervixNode*& profile, bool& added,
                                          std::string& profileFilePath,
                                          const tervix::SimFile& file);
  TERVIX_LOCAL unsigned long findProfileIn(CTervixNode*& schematic, CTervixNode*& profile,
                                           std::string& schematicName, std::string& profileName);
  TERVIX_LOCAL unsigned long profileBasedFile(std::string& path, const std::string& profile,
                                              std::string& suffix) const;
  TERVIX_LOCAL CTervixNode* renamedProfileOf(const std::string& simPath);
  TERVIX_LOCAL unsigned long moveToMarkerKey(CTervixProfile& profile) const;
  TERVIX_LOCAL unsigned long readDesign(std::vector<std::string>& schematicFolders);
  TERVIX_LOCAL unsigned long readProfiles(const std::vector<std::string>& schematicFolders);
  TERVIX_LOCAL unsigned long readTree();
  TERVIX_LOCAL unsigned long readResources();

  std::string initializationPath_;
  long initializationTime_ = 0;
  std::string designName_;
  std::string designPath_;
  std::string designFolderPath_;
  CTervixNodeList schematicList_;
  std::vector<std::string> designLevelFiles_[3];   // NOLINT(modernize-avoid-c-arrays)
  unsigned int designLevelCursors_[3] = {0, 0, 0}; // NOLINT(modernize-avoid-c-arrays)
  std::string activeProfile_;
  std::string rootSchematic_;
  std::string tervixOutputFile_;
  unsigned int refCount_ = 1;
  std::string changedName_;
  std::string changedNewName_;
  RENAME_TYPE renameType_ = RENAME_TYPE_NONE;
  bool prpIndexStale_ = true;
  // Opened from a profile or analysis file, whose project file may be missing.
  bool openedFromRunFile_ = false;
};

#endif
