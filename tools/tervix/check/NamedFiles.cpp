#include "tools/tervix/Printable.h"
#include "tools/tervix/check/Checkers.h"
#include "tools/tervix/check/Paths.h"

// Files that are named have to be there.

namespace tervix::tool {
namespace {

struct Kind {
  Role role;
  const char* what;
  Code missing;
};

constexpr std::array<Kind, 7> kKinds = {
    {{Role::kDesign, "design file", Code::kMissingDesign},
     {Role::kProfile, "profile", Code::kMissingProfile},
     {Role::kLibrary, "library", Code::kMissingLibrary},
     {Role::kStimulus, "stimulus file", Code::kMissingStimulus},
     {Role::kInclude, "include file", Code::kMissingInclude},
     {Role::kOutput, "output file", Code::kMissingOutput},
     {Role::kIncludeLine, "included file", Code::kUnresolvedInclude}}};

void checkFile(ProjectFacts& facts, Findings& findings, const Kind& kind,
               const Reference& reference) {
  if (reference.type == EntryType::kFile)
    return;
  const std::string named = std::string("the ") + kind.what + " " + inQuotes(reference.text);
  const auto twin = facts.index.twinOf(reference.target);
  if (reference.type == EntryType::kMissing && twin)
    findings.add(Code::kCaseDiffers, reference.place,
                 named + " is not there, but " + inQuotes(*twin) + " is");
  else if (reference.type == EntryType::kMissing && !reference.maybeSection)
    findings.add(kind.missing, reference.place, named + " is not there");
  else if (reference.type != EntryType::kMissing && !reference.maybeSection)
    findings.add(Code::kUnreadableFile, reference.place, named + " is not a regular file");
}

} // namespace

void checkNamedFiles(ProjectFacts& facts, Findings& findings) {
  for (const Reference& reference : facts.references)
    for (const Kind& kind : kKinds)
      if (reference.role == kind.role)
        checkFile(facts, findings, kind, reference);
  if (facts.isFrontEnd2() && facts.designFile.empty())
    findings.add(Code::kMissingDesign, {facts.layout.projectFile},
                 "the project file lists no design file (.dsn)");
  for (const Place& place : facts.unread)
    findings.add(Code::kUnreadableFile, place, "the file cannot be read, or is larger than 64 MiB");
}

} // namespace tervix::tool
