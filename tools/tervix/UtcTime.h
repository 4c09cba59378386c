#pragma once

#include <cstdint>
#include <string>

namespace tervix::tool {

// A time in seconds since the start of 1970 as "2026-03-01T09:30:00Z" (ISO 8601, UTC).
std::string utcTime(std::int64_t seconds);

} // namespace tervix::tool
