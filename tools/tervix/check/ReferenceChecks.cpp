#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/NamedPath.h"
#include "tools/tervix/check/Checkers.h"
#include "tools/tervix/check/Paths.h"

// Names that hold where the project is, and not where it will be.

namespace tervix::tool {
namespace {

// Where a full path leads, by the way on which the project was opened: a link may lead there, too.
std::string placeOf(ProjectFacts& facts, const Reference& reference) {
  if (liesBelow(reference.target, facts.root) || !isFullText(reference.text))
    return reference.target;
  const std::string root = facts.index.realPathOf(facts.root);
  const std::string place = facts.index.realPathOf(reference.target);
  return liesBelow(place, root) ? facts.root + place.substr(root.size()) : reference.target;
}

Repair repairOf(ProjectFacts& facts, const Reference& reference, const std::string& place) {
  const bool isSafe = reference.text.find('"') == std::string::npos;
  // A link is left alone: what it leads to may be somebody else's.
  if (!isSafe || !facts.index.isDirectlyIn(reference.place.file, facts.layout.folder))
    return {};
  Repair repair;
  repair.action = Repair::Action::kReplaceText;
  repair.file = reference.place.file;
  repair.line = reference.place.line;
  repair.text = reference.text;
  repair.newText = relativeText(place, folderOf(reference.place.file), reference.text, true);
  return repair;
}

void checkReference(ProjectFacts& facts, Findings& findings, const Reference& reference) {
  const std::string place = placeOf(facts, reference);
  if (!liesBelow(place, facts.root))
    findings.add(Code::kOutsideReference, reference.place,
                 inQuotes(reference.text) + " lies outside the project's folder");
  else if (isFullText(reference.text))
    findings.add(Code::kAbsolutePath, reference.place,
                 inQuotes(reference.text) + " is a full path to a place in the project",
                 repairOf(facts, reference, place));
}

} // namespace

void checkReferences(ProjectFacts& facts, Findings& findings) {
  for (const Reference& reference : facts.references) {
    // A file that is not there has been told; those that a run makes need not be.
    const bool mayBeMissing = reference.role == Role::kSimKey || reference.role == Role::kOutput;
    const bool isOwn = liesBelow(reference.place.file, facts.root);
    if (isOwn && (mayBeMissing || reference.type == EntryType::kFile))
      checkReference(facts, findings, reference);
  }
}

} // namespace tervix::tool
