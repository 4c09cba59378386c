#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tervix::platform {

struct FileDetails {
  std::uint64_t size;        // in bytes
  std::int64_t lastModified; // in seconds since the start of 1970, UTC
};

// Of the file that path leads to; none when there is none, or it may not be asked.
std::optional<FileDetails> detailsOf(const std::string& path);

} // namespace tervix::platform
