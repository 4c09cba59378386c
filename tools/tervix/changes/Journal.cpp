#include "tools/tervix/changes/Journal.h"

#include <filesystem>

#include "foundation/platform/Durability.h"
#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/changes/RecordText.h"

namespace tervix::tool {

namespace fs = std::filesystem;

std::string journalOf(const std::string& projectFile) {
  const fs::path path(projectFile);
  return (path.parent_path() / ("." + path.filename().string() + ".tervix-change"))
      .generic_string();
}

void writeJournal(const std::string& path, const ChangeRecord& record) {
  const std::string written = path + kJournalScratch;
  std::error_code error;
  fs::remove(written, error);
  writeNewFile(written, textOf(record));
  const bool isFlushed = platform::flushFile(written);
  if (isFlushed)
    fs::rename(written, path, error);
  if (!isFlushed || error) {
    fs::remove(written, error);
    throw Failure(inQuotes(path) + " could not be written");
  }
  // Whether the folder is flushed matters after a loss of power only, and then no more than whether
  // this journal or the one before is found.
  static_cast<void>(platform::flushFile(fs::path(path).parent_path().generic_string()));
}

void removeJournal(const std::string& path) {
  std::error_code error;
  fs::remove(path, error);
  if (error)
    throw Failure("The journal of the change, " + inQuotes(path) +
                  ", could not be removed. The next command that changes the project removes it.");
}

ChangeRecord readJournal(const std::string& path) {
  std::error_code error;
  const bool isFile = fs::symlink_status(path, error).type() == fs::file_type::regular;
  auto record = isFile ? recordIn(contentOf(path)) : std::nullopt;
  if (!record)
    throw Failure(inQuotes(path) + " should tell of an interrupted change, but cannot be read as a "
                                   "journal of one; nothing was changed. Look at it, and remove it "
                                   "by hand.");
  return std::move(*record);
}

} // namespace tervix::tool
