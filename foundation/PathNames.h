#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tervix {

// The path functions of TervixFiles.h for use inside the library: values instead of statuses.

// What stands before, and after, the last separator; none without a separator.
std::optional<std::string> folderOf(std::string_view path);
std::string fileNameOf(std::string_view path); // the whole path without a separator
// The file name without extension.
std::string stemOf(std::string_view path);

// A path that a project or profile file names, made absolute against a folder. A path that the
// system takes for absolute, or that is not relative, stands as it is. None when the folder gives
// nothing to start from.
std::optional<std::string> resolvedAgainst(std::string_view folder, std::string_view path);

} // namespace tervix
