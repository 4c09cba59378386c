#include "tools/tervix/Printable.h"
#include "tools/tervix/check/Checkers.h"

// Lines of an include list that a load drops: the next save would lose them.

namespace tervix::tool {
namespace {

std::string reasonOf(const DroppedLine& dropped) {
  switch (dropped.what) {
  case Dropped::kLine:
    return "the line is no entry, and lost when the list is saved";
  case Dropped::kRest:
    return "what follows the second double quote is lost when the list is saved";
  case Dropped::kOpenEntry:
    return "the entry for " + inQuotes(dropped.value) + " lacks its second double quote";
  case Dropped::kHiddenEntry:
    return "an entry that does not begin its line is not loaded";
  case Dropped::kEntry:
    break;
  }
  if (dropped.value.empty())
    return "the entry names no file between double quotes";
  return "the entry for " + inQuotes(dropped.value) +
         " is not loaded: its ending does not fit its keyword";
}

} // namespace

void checkIncludeLists(ProjectFacts& facts, Findings& findings) {
  for (const DroppedLine& dropped : facts.dropped) {
    const bool isEntry = dropped.what != Dropped::kLine && dropped.what != Dropped::kRest;
    findings.add(isEntry ? Code::kDroppedEntry : Code::kDroppedLine, dropped.place,
                 reasonOf(dropped));
  }
}

} // namespace tervix::tool
