#include "tools/tervix/changes/Interruption.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "foundation/platform/Process.h"
#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/changes/Journal.h"
#include "tools/tervix/changes/PlanSteps.h"
#include "tools/tervix/changes/RecordCheck.h"
#include "tools/tervix/changes/RecordText.h"

namespace tervix::tool {
namespace {

using Left = std::vector<std::string>;

void append(Left& left, Left more) {
  left.insert(left.end(), std::make_move_iterator(more.begin()),
              std::make_move_iterator(more.end()));
}

void removeJournalOf(const std::string& projectFile, Left& left) {
  try {
    removeJournal(journalOf(projectFile));
  } catch (const Failure& failure) {
    left.emplace_back(failure.what());
  }
}

// The journal beside the project file's new place is the one that says when the change is complete.
ChangeRecord latest(ChangeRecord record) {
  const std::string later = journalOf(record.plan.projectFile);
  if (record.isComplete || !isThere(later))
    return record;
  ChangeRecord other = readJournal(later);
  const bool isComplete = other.isComplete;
  other.isComplete = false;
  if (textOf(other) == textOf(record))
    record.isComplete = isComplete;
  return record;
}

// An old file goes only when its new one is whole: it may have been changed since.
void requireWhole(const ChangeRecord& record) {
  for (const ChangePlan::Made& made : record.plan.made) {
    const auto& removed = record.plan.removed;
    const bool goes = std::find(removed.begin(), removed.end(), made.source) != removed.end();
    if (goes && isThere(made.source) && (!isThere(made.path) || !isWhole(made)))
      throw Failure(
          inQuotes(printable(record.plan.title)) + " was interrupted, and " + inQuotes(made.path) +
          " is not what it made of " + inQuotes(made.source) +
          ". Nothing was changed: keep the file that is right, remove the other one and " +
          inQuotes(journalOf(record.plan.projectFile)) + ".");
  }
}

void requireNotRunning(const ChangeRecord& record) {
  if (record.process != platform::processNumber() && platform::isProcessRunning(record.process))
    throw Failure("process " + std::to_string(record.process) + " is changing this project (" +
                  printable(record.plan.title) + "). If it is none of tervix, remove " +
                  inQuotes(journalOf(record.formerProjectFile())) + ".");
}

} // namespace

std::string listed(const std::vector<std::string>& left) {
  std::string text;
  for (const std::string& line : left)
    text += "\n  " + line;
  return text;
}

std::vector<std::string> takeBack(const ChangeRecord& record) {
  Left left = takeFilesBack(record);
  append(left, removeScratch(record));
  if (!record.plan.formerProjectFile.empty())
    removeJournalOf(record.plan.projectFile, left);
  append(left, takeFoldersBack(record));
  if (left.empty())
    removeJournalOf(record.formerProjectFile(), left);
  return left;
}

std::vector<std::string> removeOld(const ChangeRecord& record) {
  Left left = removeOldFiles(record);
  append(left, removeScratch(record));
  if (!record.plan.formerProjectFile.empty() && left.empty())
    removeJournalOf(record.plan.formerProjectFile, left);
  append(left, removeOldFolders(record));
  if (left.empty())
    removeJournalOf(record.plan.projectFile, left);
  return left;
}

void tellOfInterruption(const std::string& projectFile) {
  if (const std::string journal = journalOf(projectFile); isThere(journal))
    std::cerr << "tervix: " << inQuotes(journal)
              << " tells of an interrupted change; the next command that changes the project "
                 "takes it back or finishes it\n";
}

std::optional<ChangePlan> settleInterruption(const std::string& projectFile) {
  const std::string journal = journalOf(projectFile);
  std::error_code error;
  if (!isThere(journal)) {
    std::filesystem::remove(journal + kJournalScratch, error);
    return std::nullopt;
  }
  const ChangeRecord record = latest(readJournal(journal));
  requireNotRunning(record);
  requireRecordOf(projectFile, record, journal);
  if (record.isComplete)
    requireWhole(record);
  const Left left = record.isComplete ? removeOld(record) : takeBack(record);
  const std::string title = inQuotes(record.plan.title);
  if (!left.empty())
    throw Failure(title + " was interrupted and could not be " +
                  (record.isComplete ? "finished" : "taken back") + ":" + listed(left));
  std::cerr << "tervix: " << title << " was interrupted and is now "
            << (record.isComplete ? "finished" : "taken back") << "\n";
  return record.isComplete ? std::make_optional(record.plan) : std::nullopt;
}

} // namespace tervix::tool
