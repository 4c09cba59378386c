#pragma once

#include <optional>
#include <string>

#include "tools/tervix/changes/ChangeRecord.h"

namespace tervix::tool {

// The journal of a change: its record, in a file beside the project file, from before anything is
// touched until all is done. Whoever opens the project finds it there. A change that moves the
// project file has a second one beside the new place; there it says when the change is complete.

std::string journalOf(const std::string& projectFile);
constexpr const char* kJournalScratch = ".new"; // what is written takes the place of the journal

// Each writes or removes one file in one step; writing throws a Failure.
void writeJournal(const std::string& path, const ChangeRecord& record);
void removeJournal(const std::string& path);

// The record of a journal. Throws a Failure for a file that cannot be read as one.
ChangeRecord readJournal(const std::string& path);

} // namespace tervix::tool
