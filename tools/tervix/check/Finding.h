#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tervix::tool {

enum class Severity { kError, kWarning, kNote };

// What a check can find, in the order of the table in FindingKinds.cpp.
enum class Code {
  kProjectUnopenable,
  kMissingDesign,
  kMissingResource,
  kMissingProfile,
  kMissingLibrary,
  kMissingInclude,
  kMissingStimulus,
  kUnresolvedInclude,
  kCaseDiffers,
  kUnreadableFile,
  kInvalidProfile,
  kSameProfile,
  kUnknownSchematic,
  kMisplacedProfile,
  kDroppedEntry,
  kUnknownRoot,
  kLostOriginal,
  kInterruptedChange,
  kKeyDisagrees,
  kRepeatedKey,
  kListedTwice,
  kUnregisteredProfile,
  kIncludeCycle,
  kOrphanFolder,
  kStaleBackup,
  kCaseTwins,
  kWindowsName,
  kLongPath,
  kDottedName,
  kAbsolutePath,
  kUnknownActive,
  kMisnamedProject,
  kMissingOutput,
  kDroppedLine,
  kFormerName,
  kOutsideReference
};

struct FindingKind {
  Code code;
  const char* slug; // stable, for programs
  Severity severity;
  const char* meaning;
  const char* repair;
};

// All of them: errors, then warnings, then notes.
const std::vector<FindingKind>& findingKinds();
const char* nameOf(Severity severity);

// What `--fix` does about a finding. Paths are full.
struct Repair {
  enum class Action { kNone, kReplaceText, kRemoveFile, kRegisterProfile };

  Action action = Action::kNone;
  std::string file;
  std::size_t line = 0; // of the text; its line is counted as the file stands
  std::string text;
  std::string newText;
  std::string schematic; // of a profile to be registered, with its name
  std::string profile;
};

struct Finding {
  Code code;
  std::string path;     // as seen from the project's folder; in full where it lies elsewhere
  std::size_t line = 0; // from 1; 0 for a file as a whole
  std::string message;
  Repair repair;

  const FindingKind& kind() const { return findingKinds()[static_cast<std::size_t>(code)]; }
  Severity severity() const { return kind().severity; }
  bool isFixable() const { return repair.action != Repair::Action::kNone; }
};

} // namespace tervix::tool
