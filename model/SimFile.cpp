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

// Whether line begins with key. Most lines differ in their first letter.
bool beginsWith(std::string_view line, std::string_view key) {
  return !line.empty() && toLowerCase(line.front()) == toLowerCase(key.front()) &&
         startsWithIgnoringCase(line, key);
}

// Deliberate: lines are counted, not keys, so the same key twice counts as two.
unsigned long readKeys(const SimFile& file, std::initializer_list<Key> keys) {
  LineReader* lines = nullptr;
  if (const unsigned long status = file.readLines(lines); status != 0)
    return status;
  std::size_t seen = 0;
  while (seen < keys.size()) {
    const auto line = lines->next();
    if (!line)
      break;
    const auto* const key = std::find_if(keys.begin(), keys.end(), [&](const Key& candidate) {
      return beginsWith(*line, candidate.word);
    });
    if (key == keys.end())
      continue;
    ++seen;
    if (const auto value = quotedValue(*line))
      key->value = *value;
  }
  if (lines->failed())
    return raiseError(kCannotReadFile, file.path());
  return seen == keys.size() ? 0 : raiseError(kInvalidSimFile, file.path());
}

} // namespace

unsigned long SimFile::readLines(LineReader*& lines) const {
  using Opening = platform::FileReader::Opening;
  if (opening_ == Opening::kOpened && !lines_.rewind())
    opening_.reset();
  switch (opening()) {
  case Opening::kNoReadableFile:
    return raiseError(kFileDoesNotExist, path_);
  case Opening::kFailed:
    return raiseError(kCannotReadFile, path_);
  case Opening::kOpened:
    break;
  }
  lines = &lines_;
  return 0;
}

unsigned long readProfileNameAndRoot(std::string& rootSchematic, std::string& profileName,
                                     const SimFile& file) {
  return readKeys(file, {{kProfileName, profileName}, {kRootSchematics, rootSchematic}});
}

unsigned long readDataAndOutFile(std::string& outFile, std::string& dataFile, const SimFile& file) {
  return readKeys(file, {{kDataFile, dataFile}, {kOutFile, outFile}});
}

unsigned long readSimProjectInfo(SimProjectInfo& info, const SimFile& file) {
  return readKeys(file, {{kProfileName, info.profileName},
                         {kProfileFile, info.profileFile},
                         {kDesignFile, info.designFile},
                         {kProjectFile, info.projectFile},
                         {kRootSchematics, info.rootSchematic}});
}

unsigned long checkSimFile(const SimFile& file) {
  SimProjectInfo info;
  if (const unsigned long status = readSimProjectInfo(info, file); status != 0)
    return status;
  const bool isWhole =
      !info.designFile.empty() && !info.projectFile.empty() && !info.rootSchematic.empty();
  if (isWhole && equalsIgnoringCase(stemOf(info.profileFile), info.profileName))
    return 0;
  return raiseError(kInvalidSimFile, file.path());
}

} // namespace tervix
