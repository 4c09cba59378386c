#pragma once

#include <string>

#include "tools/tervix/changes/PathMap.h"

namespace tervix::tool {

// A path as a file names it: the text, and the folder from which it counts.
struct NamedPath {
  std::string text;
  std::string base;
};

// The full path that a text names, with forward slashes and without "." and "..".
std::string placeOf(const NamedPath& named);

// The path with "./" in front if it is relative and the library would not take it so: two letters
// and a slash, as in "ab/x", look like a drive to it.
std::string relativeToTheLibrary(const std::string& path);
bool isFullText(const std::string& text);

// The text for a place as seen from the folder base, with the kind of separators of like. With a
// folder in it, if only "./", where like has one in front or isNeverBare says so.
std::string relativeText(const std::string& place, const std::string& base, const std::string& like,
                         bool isNeverBare = false);

// The text that names the same file after a change, seen from newBase, in the manner of the old
// text: relative or full, with its kind of separators. A text that still holds stays as it is.
std::string renamedText(const NamedPath& named, const std::string& newBase, const PathMap& map);

} // namespace tervix::tool
