#include "tools/tervix/Printable.h"
#include "tools/tervix/check/Checkers.h"

// Lines of an include list that a load drops: the next save would lose them.

namespace tervix::tool {

void checkIncludeLists(ProjectFacts& facts, Findings& findings) {
  for (const DroppedLine& dropped : facts.dropped)
    if (!dropped.isEntry)
      findings.add(Code::kDroppedLine, dropped.place,
                   "the line is no entry, and lost when the list is saved");
    else if (dropped.isOpen)
      findings.add(Code::kDroppedEntry, dropped.place,
                   "the entry for " + inQuotes(dropped.value) + " lacks its second double quote");
    else if (dropped.value.empty())
      findings.add(Code::kDroppedEntry, dropped.place,
                   "the entry names no file between double quotes");
    else
      findings.add(Code::kDroppedEntry, dropped.place,
                   "the entry for " + inQuotes(dropped.value) +
                       " is not loaded: its ending does not fit its keyword");
}

} // namespace tervix::tool
