#pragma once

#include <string>

namespace tervix::platform {

// Whether what was written is on the disk now, and not only in the system's memory. True where the
// system or the disk knows no such thing.
bool flushFile(const std::string& path);         // one file or folder
bool flushFileSystemOf(const std::string& path); // everything where the folder lies

} // namespace tervix::platform
