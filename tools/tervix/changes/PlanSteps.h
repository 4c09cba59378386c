#pragma once

#include <string>
#include <vector>

#include "tools/tervix/changes/ChangeRecord.h"

namespace tervix::tool {

// The pieces of work of a change. Those that go forward throw a Failure at the first thing that
// goes wrong; those that clear up do all that they can, and give what they could not.

void makeFolders(const ChangeRecord& record);
// The new files, with the plan's calls into the library.
void makeFiles(const ChangeRecord& record, const ChangePlan& plan);
void rewriteFiles(const ChangeRecord& record);
// What is new, and on the disk before anything old is removed.
void flushFiles(const ChangeRecord& record);

// Nothing that holds something else than the plan has put there is removed or written over. Can be
// repeated until nothing is left to do.
std::vector<std::string> takeFilesBack(const ChangeRecord& record);
std::vector<std::string> takeFoldersBack(const ChangeRecord& record);
std::vector<std::string> removeScratch(const ChangeRecord& record);
std::vector<std::string> removeOldFiles(const ChangeRecord& record);
std::vector<std::string> removeOldFolders(const ChangeRecord& record);

} // namespace tervix::tool
