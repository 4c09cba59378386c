#pragma once

#include <string>

namespace tervix::tool {

// The folder in which a path lies; empty for a name alone.
std::string folderHolding(const std::string& path);

// The path as it is without links; empty when that cannot be told.
std::string withoutLinks(const std::string& path);

} // namespace tervix::tool
