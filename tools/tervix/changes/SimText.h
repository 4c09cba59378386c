#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tervix::tool {

// The keys of a ".sim" file that name the profile, its project or its files.
enum class SimKey {
  kProfileName,
  kRootSchematics,
  kProfileFile,
  kDesignFile,
  kProjectFile,
  kNetlistFile,
  kDataFile,
  kOutFile
};

// Gives the value of a key its new text; none when it stays.
using SimValue = std::function<std::optional<std::string>(SimKey, const std::string&)>;

// The text with new values for the keys that begin a line, in any case; every other byte stays. A
// line without quotes has no value and stays.
std::string rewrittenSim(std::string_view text, const SimValue& newValue);

// The same for the lines with any other key, which belong to other programs.
std::string
rewrittenOtherKeys(std::string_view text,
                   const std::function<std::optional<std::string>(const std::string&)>& newValue);

// The value of the first line with that key; empty without one.
std::string simValueOf(std::string_view text, SimKey key);

// Tells of each line that begins with a key: the line's number, from 1, and its value, empty
// without one.
using SimKeyTold = std::function<void(SimKey, std::size_t line, std::string_view value)>;
void forEachKey(std::string_view text, const SimKeyTold& tell);
std::string_view wordOf(SimKey key);

// The text of a new ".sim" file with all keys.
std::string newSim(const std::function<std::string(SimKey)>& value);

} // namespace tervix::tool
