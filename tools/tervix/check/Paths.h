#pragma once

#include <string>
#include <string_view>

namespace tervix::tool {

// Full paths with forward slashes, taken apart and compared as text; nothing touches the disk.

inline constexpr std::string_view kIncludeListEnding = "_profile.inc";

std::string folderOf(const std::string& path); // without the last separator
std::string nameOf(const std::string& path);   // what follows the last separator of either kind
std::string stemOf(const std::string& name);   // up to the last dot
// What the library takes for the stem: up to the first dot.
std::string cutStemOf(const std::string& name);

bool endsWith(const std::string& text, std::string_view ending); // in any case

// The full path that text means, seen from the folder base.
std::string placeAt(const std::string& base, const std::string& text);
bool liesBelow(std::string_view place, std::string_view folder);
// path as seen from folder; path itself when it lies elsewhere.
std::string seenIn(const std::string& folder, const std::string& path);

} // namespace tervix::tool
