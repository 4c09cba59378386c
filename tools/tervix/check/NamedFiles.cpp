#include "foundation/platform/Platform.h"
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

constexpr std::array<Kind, 8> kKinds = {
    {{Role::kDesign, "design file", Code::kMissingDesign},
     {Role::kResource, "file of the design", Code::kMissingResource},
     {Role::kProfile, "profile", Code::kMissingProfile},
     {Role::kLibrary, "library", Code::kMissingLibrary},
     {Role::kStimulus, "stimulus file", Code::kMissingStimulus},
     {Role::kInclude, "include file", Code::kMissingInclude},
     {Role::kOutput, "output file", Code::kMissingOutput},
     {Role::kIncludeLine, "included file", Code::kUnresolvedInclude}}};

void checkFile(ProjectFacts& facts, Findings& findings, const Kind& kind,
               const Reference& reference) {
  if (reference.maybeSection)
    return;
  const std::string named = std::string("the ") + kind.what + " " + inQuotes(reference.text);
  if (reference.type == EntryType::kFile) {
    // The others are read, which tells.
    if (kind.role == Role::kResource && !platform::isReadableFile(reference.target))
      findings.add(Code::kUnreadableFile, reference.place, named + " cannot be read");
    return;
  }
  if (reference.type != EntryType::kMissing)
    findings.add(Code::kUnreadableFile, reference.place, named + " is not a regular file");
  else if (const auto spelled = facts.index.spelledPathOf(reference.target))
    findings.add(Code::kCaseDiffers, reference.place,
                 named + " is not there, but " + findings.named(*spelled) + " is");
  else
    findings.add(kind.missing, reference.place, named + " is not there");
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
    findings.add(Code::kUnreadableFile, place,
                 facts.index.typeOf(place.file) == EntryType::kFolder
                     ? "the folder cannot be read, so what lies there is not checked"
                     : "the file cannot be read, or is larger than 64 MiB");
}

} // namespace tervix::tool
