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
  case Dropped::kEntry:
    break;
  }
  if (dropped.value.empty())
    return "the entry names no file between double quotes";
  return "the entry for " + inQuotes(dropped.value) +
         " is not loaded: its ending does not fit its keyword";
}

// More quotes behind an entry are those of further entries, as where lines end in "\r" alone.
bool isEntry(const DroppedLine& dropped) {
  if (dropped.what == Dropped::kRest)
    return dropped.value.find('"') != std::string::npos;
  return dropped.what != Dropped::kLine;
}

} // namespace

void checkIncludeLists(ProjectFacts& facts, Findings& findings) {
  for (const DroppedLine& dropped : facts.dropped)
    findings.add(isEntry(dropped) ? Code::kDroppedEntry : Code::kDroppedLine, dropped.place,
                 reasonOf(dropped));
}

} // namespace tervix::tool
