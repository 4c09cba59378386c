#include "model/SimFile.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "foundation/LastError.h"
#include "foundation/LineReader.h"
#include "foundation/PathNames.h"
#include "foundation/QuotedValue.h"
#include "foundation/Text.h"

namespace tervix {
namespace {

struct Key {
  std::string_view word;
  std::string& value;
};

constexpr std::string_view kProfileName = "ProfileName";
constexpr std::string_view kRootSchematics = "RootSchematics";
constexpr std::string_view kDataFile = "DataFile";
constexpr std::string_view kOutFile = "OutFile";
constexpr std::string_view kProfileFile = "ProfileFile";
constexpr std::string_view kDesignFile = "DesignFile";
constexpr std::string_view kProjectFile = "ProjectFile";

// Deliberate: lines are counted, not keys, so the same key twice counts as two.
unsigned long readKeys(const std::string& simPath, std::initializer_list<Key> keys) {
  LineReader file;
  switch (file.open(simPath)) {
  case platform::FileReader::Opening::kNoReadableFile:
    return raiseError(kFileDoesNotExist, simPath);
  case platform::FileReader::Opening::kFailed:
    return raiseError(kCannotReadFile, simPath);
  case platform::FileReader::Opening::kOpened:
    break;
  }
  std::size_t seen = 0;
  while (seen < keys.size()) {
    const auto line = file.next();
    if (!line)
      break;
    const auto* const key = std::find_if(keys.begin(), keys.end(), [&](const Key& candidate) {
      return startsWithIgnoringCase(*line, candidate.word);
    });
    if (key == keys.end())
      continue;
    ++seen;
    if (const auto value = quotedValue(*line))
      key->value = *value;
  }
  if (file.failed())
    return raiseError(kCannotReadFile, simPath);
  return seen == keys.size() ? 0 : raiseError(kInvalidSimFile, simPath);
}

} // namespace

unsigned long readProfileNameAndRoot(std::string& rootSchematic, std::string& profileName,
                                     const std::string& simPath) {
  return readKeys(simPath, {{kProfileName, profileName}, {kRootSchematics, rootSchematic}});
}

unsigned long readDataAndOutFile(std::string& outFile, std::string& dataFile,
                                 const std::string& simPath) {
  return readKeys(simPath, {{kDataFile, dataFile}, {kOutFile, outFile}});
}

unsigned long readSimProjectInfo(SimProjectInfo& info, const std::string& simPath) {
  return readKeys(simPath, {{kProfileName, info.profileName},
                            {kProfileFile, info.profileFile},
                            {kDesignFile, info.designFile},
                            {kProjectFile, info.projectFile},
                            {kRootSchematics, info.rootSchematic}});
}

unsigned long checkSimFile(const std::string& simPath) {
  SimProjectInfo info;
  if (const unsigned long status = readSimProjectInfo(info, simPath); status != 0)
    return status;
  const bool isWhole =
      !info.designFile.empty() && !info.projectFile.empty() && !info.rootSchematic.empty();
  if (isWhole && equalsIgnoringCase(stemOf(info.profileFile), info.profileName))
    return 0;
  return raiseError(kInvalidSimFile, simPath);
}

} // namespace tervix
