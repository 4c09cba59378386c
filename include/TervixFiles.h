#ifndef TERVIX_FILES_H
#define TERVIX_FILES_H

// Free functions on path names and on files and folders.
//
// Every function returns an unsigned long status: 0 for success, 1 for "not applicable" or
// "failed". Only createPath records a last error (see CTervixProject::getLastErrorCode).
//
// Strings are narrow. Both "/" and "\" separate the components of a path, on every platform.
// A string passed as output may be the same object as one passed as input. Inputs are left as
// they are unless the function says that it rewrites them.

#include <string>

#include "TervixExport.h"

// The kind of a variant file, one that a design or a profile adds to a simulation.
enum VARIANTFILE_TYPE : int {
  VARIANTFILE_TYPE_LIBRARY = 0,  // "lib"
  VARIANTFILE_TYPE_STIMULUS = 1, // "stl"
  VARIANTFILE_TYPE_INCLUDE = 2   // "inc"
};

// The names of a folder's entries, read once when openDir opens it; changes made to the folder
// afterwards are not seen. Obtained from openDir, freed by closeDir.
struct _dirdesc; // NOLINT(bugprone-reserved-identifier,readability-identifier-naming)

// ---- Path names. None of these touches the disk or records a last error. ----

// suffix becomes the suffix of the kind, without a dot: "lib", "stl" or "inc".
// Any other value: 1 and an empty suffix.
TERVIX_API unsigned long getVariantFileType(std::string& suffix, VARIANTFILE_TYPE type);

// isRelative tells whether path is relative. Always 0.
// A path that begins with "./" or "../" is relative and stays as it is. One that begins with
// "//", has ":" as its second character or "/" as its third is not, and stays as it is.
// Any other is relative, and path is rewritten: "/" for "\", "./" in front.
// Deliberate: the test looks at fixed positions only, so "ab/c" counts as not relative, and
// "/x" counts as relative and becomes ".//x".
TERVIX_API unsigned long isRelativePathName(std::string& path, bool& isRelative);

// relative becomes path as seen from the folder base: "./" and what follows base and one
// separator. 1 and an empty string when base does not occur in path (case counts).
// A path equal to its base gives "./".
TERVIX_API unsigned long getRelativePathName(std::string& path, std::string& base,
                                             std::string& relative);

// absolute becomes relative resolved against the folder base, with forward slashes.
// One leading "../" is resolved; further ones stay in the result.
// 1 and an empty string when relative is not relative (see isRelativePathName) or base has no
// folder to start from.
TERVIX_API unsigned long getAbsolutePathName(std::string& relative, std::string& base,
                                             std::string& absolute);

// fileName becomes what follows the last separator of path.
// Without a separator it becomes the whole path, and the status is 1.
TERVIX_API unsigned long getFileNameFromFileNamePath(std::string& path, std::string& fileName);

// folder becomes what stands before the last separator of path.
// Without a separator: 1 and an empty string.
TERVIX_API unsigned long getFilePathFromFileNamePath(std::string& path, std::string& folder);

// extension becomes what follows the first dot of fileName, so "run.opt.out" gives "opt.out".
// A marker file's compound extension counts as one: "design-default.mrk" gives "default.mrk".
// "." and "..": 0 and an empty string. A name without a dot: 1 and an empty string.
TERVIX_API unsigned long getExtensionFromFileName(std::string& fileName, std::string& extension);

// stem becomes fileName without the first dot and what follows; "design-default.mrk" and
// "a.b-default.mrk" give "design" and "a.b". A name without a dot: 1 and the whole name.
TERVIX_API unsigned long removeExtensionFromFileName(std::string& fileName, std::string& stem);

// ---- Files and folders ----

// exists tells whether path can be accessed at all, be it a folder, a file or anything else.
// Always 0.
TERVIX_API unsigned long dirPathExists(std::string& path, bool& exists);

// exists tells whether path is a regular file that can be read. Always 0.
TERVIX_API unsigned long filePathExists(std::string& path, bool& exists);

// Makes the folder path; its parents must be there. 0 also when it is a readable folder already.
// 1 when it cannot be made, or path is empty or only separators.
TERVIX_API unsigned long createDir(std::string& path);

// Makes every missing folder along path, which must be a full path of at most 259 characters.
// 10102, recorded with the folder that could not be made; for a longer path with the whole
// path, and nothing is made.
TERVIX_API unsigned long createPath(std::string& path);

// Opens the folder path and hands out its entries in handle; the caller frees it with closeDir.
// 1 and a null handle when path is not an existing folder or memory runs out.
TERVIX_API unsigned long openDir(std::string& path, _dirdesc*& handle);

// name becomes the name of the next entry, "." and ".." included, in the system's order.
// 1 and an empty name after the last entry, or for a null handle.
TERVIX_API unsigned long readDir(_dirdesc* handle, std::string& name);

// Frees the handle. 0, also for a null handle.
TERVIX_API unsigned long closeDir(_dirdesc* handle);

// Copies what stands in the folder source into the folder target, made with its parents when
// missing, and stops at the first entry that cannot be copied. What was copied so far stays, but
// for the half of a new file.
// Deliberate: a name without a dot is taken for a folder, a name with one for a file, whatever
// the entry is. A link is copied as what it leads to; one of a folder's name that leads nowhere is
// left out.
// 0; 10102, recorded, when target cannot be made; 1 when source cannot be opened, an entry
// fails, a link leads back to a folder that is being copied, a link in target stands
// where an entry is to go, or target is source or lies in it (nothing is made then).
TERVIX_API unsigned long cpDir(std::string& source, std::string& target);

// Copies a regular file. A target that exists is overwritten and keeps its permissions, a new
// one takes those of source. 1 when the copy failed, and a target partly written stays.
// Source and target the same file, under whatever spelling or link: 1, the file intact.
// A source that is missing, unreadable or not a regular file: 1, the target as it was.
TERVIX_API unsigned long cpFile(std::string& source, std::string& target);

// Deletes the file path. 1 when it could not be deleted.
TERVIX_API unsigned long rmFile(std::string& path);

// Moves the file or folder oldPath to newPath; a file at newPath is replaced. A file is also moved
// between devices.
// 1 when the move failed: the old file is then still there. A missing oldPath, or two paths of
// one file: 1, nothing touched.
TERVIX_API unsigned long mvFile(std::string& oldPath, std::string& newPath);

#endif
